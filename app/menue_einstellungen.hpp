#pragma once

#include "app/ereignisse.hpp"
#include "settings/programmfenster.hpp"

namespace quittika {

/// Wires the menu "Einstellungen" of the main window and the buttons that stand for its commands.
void MENUE_EINSTELLUNGEN(Form1& form1, const Ereignisse& ereignisse, Programmfenster& programmfenster);

} // namespace quittika
