#include "app/menue_einstellungen.hpp"

namespace quittika {

void MENUE_EINSTELLUNGEN(Form1& form1, const Ereignisse& ereignisse, Programmfenster& programmfenster) {
    form1.m_Programmeinstellungen.Click =
        ereignisse.befehl([&programmfenster] { programmfenster.m_Programmeinstellungen_Click(); });
    SPERREN({&form1.m_Rechnungsdaten, &form1.m_startdesigner, &form1.Command2});
}

} // namespace quittika
