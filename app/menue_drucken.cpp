#include "app/menue_drucken.hpp"

namespace quittika {

void MENUE_DRUCKEN(Form1& form1, Etiketten& etiketten) {
    // Not one command each: what is printed in these windows is.
    form1.m_druckenBRIEF.Click = [&etiketten] { etiketten.m_druckenBRIEF_Click(); };
    form1.m_druckenpaketschein.Click = [&etiketten] { etiketten.m_druckenpaketschein_Click(); };
    form1.m_druckenpaketscheinHVersand.Click = [&etiketten] {
        etiketten.m_druckenpaketscheinHVersand_Click();
    };
    form1.m_druckenpaeckchenschein.Click = [&etiketten] { etiketten.m_druckenpaeckchenschein_Click(); };
}

} // namespace quittika
