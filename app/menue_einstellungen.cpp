#include "app/menue_einstellungen.hpp"

namespace quittika {

void MENUE_EINSTELLUNGEN(Form1& form1, frm_einstellungen& einstellungen, const Ereignisse& ereignisse,
                         Einstellungsfenster& einstellungsfenster, Programmfenster& programmfenster,
                         Designeraufruf& designeraufruf, Designerfenster& designerfenster) {
    form1.m_Rechnungsdaten.Click =
        ereignisse.befehl([&einstellungsfenster] { einstellungsfenster.m_Rechnungsdaten_Click(); });
    form1.m_druckjustierung.Click =
        ereignisse.befehl([&einstellungsfenster] { einstellungsfenster.m_druckjustierung_Click(); });
    form1.m_Programmeinstellungen.Click =
        ereignisse.befehl([&programmfenster] { programmfenster.m_Programmeinstellungen_Click(); });
    for (Control* designer :
         {static_cast<Control*>(&form1.m_startdesigner), static_cast<Control*>(&form1.Command2)}) {
        designer->Click = ereignisse.befehl([&designerfenster] { designerfenster.open(); });
    }
    einstellungen.CMD_DESIGNER.Click =
        ereignisse.befehl([&designeraufruf] { designeraufruf.CMD_DESIGNER_Click(); });
}

} // namespace quittika
