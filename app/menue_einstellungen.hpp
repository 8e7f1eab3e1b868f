#pragma once

#include "invoice/form1.hpp"

namespace quittika {

/// Wires the menu "Einstellungen" of the main window and the buttons that stand for its commands.
void MENUE_EINSTELLUNGEN(Form1& form1);

} // namespace quittika
