#include "app/menue_drucken.hpp"

#include "app/ereignisse.hpp"

namespace quittika {

void MENUE_DRUCKEN(Form1& form1) {
    SPERREN({&form1.m_druckenBRIEF, &form1.m_druckenpaketschein, &form1.m_druckenpaketscheinHVersand,
             &form1.m_druckenpaeckchenschein, &form1.m_druckjustierung});
}

} // namespace quittika
