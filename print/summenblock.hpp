#pragma once

#include "invoice/form1.hpp"
#include "print/blatt.hpp"

namespace quittika {

/// Prints the result fields of the main window below the last row, ending at the total edge
/// `x_gesamt` mm. It computes nothing.
void DRUCKE_SUMMENBLOCK(Blatt& blatt, const Form1& form1, Color farbe_linien, double x_gesamt);

} // namespace quittika
