#pragma once

#include "app/ereignisse.hpp"
#include "invoice/form1.hpp"
#include "masterdata/artikeluebernahme.hpp"
#include "platform/dialogs.hpp"

namespace quittika {

/// Wires the menu "Listen" of the main window and the buttons that stand for its commands.
void MENUE_LISTEN(Form1& form1, const Ereignisse& ereignisse, Dialogs& dialogs, Kundenfenster& kundenfenster,
                  Artikeluebernahme& artikel);

} // namespace quittika
