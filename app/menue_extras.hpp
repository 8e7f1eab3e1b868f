#pragma once

#include "analyzer/analyzer.hpp"
#include "app/ereignisse.hpp"
#include "barcode/barcodemodus.hpp"
#include "einvoice/pflichtpruefung.hpp"
#include "invoice/eingabezeile.hpp"
#include "invoice/form1.hpp"
#include "safety/nummernfenster.hpp"
#include "safety/rueckspielfenster.hpp"
#include "safety/sicherungsfenster.hpp"
#include "tools/updatecheck.hpp"

namespace quittika {

/// Wires the menu "Extras" of the main window and the buttons that stand for its commands.
void MENUE_EXTRAS(Form1& form1, const Ereignisse& ereignisse, Eingabezeile& eingabezeile,
                  const Pflichtpruefung& pflichtpruefung, Barcodefenster& barcode, Analyzerfenster& analyzer,
                  Nummernpruefung& nummern, Datensicherung& sicherung, Rueckspielfenster& rueckspielen,
                  Updatecheck& updatecheck);

} // namespace quittika
