#include "app/menue_einstellungen.hpp"

namespace quittika {

void MENUE_EINSTELLUNGEN(Form1& form1, frm_einstellungen& einstellungen, const Ereignisse& ereignisse,
                         Einstellungsfenster& fenster) {
    form1.m_Rechnungsdaten.Click = ereignisse.befehl([&fenster] { fenster.m_Rechnungsdaten_Click(); });
    form1.m_druckjustierung.Click = ereignisse.befehl([&fenster] { fenster.m_druckjustierung_Click(); });
    SPERREN({&form1.m_Programmeinstellungen, &form1.m_startdesigner, &form1.Command2,
             &einstellungen.CMD_DESIGNER});
}

} // namespace quittika
