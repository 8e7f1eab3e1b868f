#pragma once

#include "app/ereignisse.hpp"
#include "invoice/form1.hpp"
#include "settings/einstellungsfenster.hpp"

namespace quittika {

/// Wires the menu "Einstellungen" of the main window, and what else opens the settings.
void MENUE_EINSTELLUNGEN(Form1& form1, frm_einstellungen& einstellungen, const Ereignisse& ereignisse,
                         Einstellungsfenster& fenster);

} // namespace quittika
