#pragma once

#include "analyzer/analyzer.hpp"
#include "app/ereignisse.hpp"
#include "barcode/barcodemodus.hpp"
#include "invoice/eingabezeile.hpp"
#include "invoice/form1.hpp"

namespace quittika {

/// Wires the menu "Extras" of the main window and the buttons that stand for its commands.
void MENUE_EXTRAS(Form1& form1, const Ereignisse& ereignisse, Eingabezeile& eingabezeile,
                  Barcodefenster& barcode, Analyzerfenster& analyzer);

} // namespace quittika
