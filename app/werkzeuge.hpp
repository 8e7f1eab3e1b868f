#pragma once

#include "app/ereignisse.hpp"
#include "invoice/form1.hpp"
#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "platform/verzeichnis.hpp"
#include "tools/notiz.hpp"

namespace quittika {

/// Wires the buttons of the main window that open a tool: templates, helpers, note.
void WERKZEUGE(Form1& form1, const Ereignisse& ereignisse, Rechnungszustand& zustand, Notizfenster& notiz,
               const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Desktop& desktop);

} // namespace quittika
