#include "app/menue_extras.hpp"

namespace quittika {

void MENUE_EXTRAS(Form1& form1, const Ereignisse& ereignisse, Eingabezeile& eingabezeile,
                  Barcodefenster& barcode, Updatecheck& updatecheck) {
    form1.m_eingabezeile.Click = [&eingabezeile] { eingabezeile.anwaehlen(); };
    form1.Cmd_Barcode.Click = ereignisse.befehl([&barcode] { barcode.open(); });
    form1.m_updatesuchen.Click = ereignisse.befehl([&updatecheck] { updatecheck.m_updatesuchen_Click(); });
    SPERREN({&form1.m_start_analyzer, &form1.Command1});
}

} // namespace quittika
