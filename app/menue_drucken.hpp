#pragma once

#include "invoice/form1.hpp"
#include "print/etiketten.hpp"

namespace quittika {

/// Wires the menu "Drucken" of the main window: what is printed besides the invoice.
void MENUE_DRUCKEN(Form1& form1, Etiketten& etiketten);

} // namespace quittika
