#include "app/menue_einstellungen.hpp"

#include "app/ereignisse.hpp"

namespace quittika {

void MENUE_EINSTELLUNGEN(Form1& form1) {
    SPERREN(
        {&form1.m_Rechnungsdaten, &form1.m_Programmeinstellungen, &form1.m_startdesigner, &form1.Command2});
}

} // namespace quittika
