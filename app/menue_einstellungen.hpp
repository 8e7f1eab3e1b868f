#pragma once

#include "app/ereignisse.hpp"
#include "designer/designer.hpp"
#include "invoice/form1.hpp"
#include "settings/designeraufruf.hpp"
#include "settings/einstellungsfenster.hpp"
#include "settings/programmfenster.hpp"

namespace quittika {

/// Wires the menu "Einstellungen" of the main window, and what else opens the settings.
void MENUE_EINSTELLUNGEN(Form1& form1, frm_einstellungen& einstellungen, const Ereignisse& ereignisse,
                         Einstellungsfenster& einstellungsfenster, Programmfenster& programmfenster,
                         Designeraufruf& designeraufruf, Designerfenster& designerfenster);

} // namespace quittika
