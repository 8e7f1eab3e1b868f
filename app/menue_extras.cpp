#include "app/menue_extras.hpp"

#include "app/ereignisse.hpp"

namespace quittika {

void MENUE_EXTRAS(Form1& form1, Eingabezeile& eingabezeile) {
    form1.m_eingabezeile.Click = [&eingabezeile] { eingabezeile.anwaehlen(); };
    SPERREN({&form1.m_start_analyzer, &form1.Command1, &form1.Cmd_Barcode, &form1.m_updatesuchen});
}

} // namespace quittika
