#pragma once

#include "invoice/form1.hpp"
#include "print/blatt.hpp"
#include "print/druckseiten.hpp"
#include "print/drucktabelle.hpp"

#include <optional>

namespace quittika {

/// Prints the result fields of the main window below the last row, ending at the total edge
/// `x_gesamt` mm. It computes nothing.
void DRUCKE_SUMMENBLOCK(Blatt& blatt, const Form1& form1, Color farbe_linien, double x_gesamt);

/// Prints the amounts below the rows of a page: carry, and subtotal or totals. Nothing where the table shows
/// no prices. Returns where the totals begin, in mm of the surface; nothing for a page without.
std::optional<double> DRUCKE_BETRAEGE(Blatt& blatt, const Druckseite& seite, const Drucktabelle& tabelle,
                                      const Form1& form1, Color farbe_linien);

} // namespace quittika
