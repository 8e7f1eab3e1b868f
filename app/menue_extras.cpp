#include "app/menue_extras.hpp"

namespace quittika {

void MENUE_EXTRAS(Form1& form1, const Ereignisse& ereignisse, Eingabezeile& eingabezeile,
                  const Pflichtpruefung& pflichtpruefung, Barcodefenster& barcode, Analyzerfenster& analyzer,
                  Updatecheck& updatecheck) {
    form1.m_eingabezeile.Click = [&eingabezeile] { eingabezeile.anwaehlen(); };
    form1.m_Pflichtangaben.Click =
        ereignisse.befehl([&pflichtpruefung] { pflichtpruefung.m_Pflichtangaben_Click(); });
    form1.Cmd_Barcode.Click = ereignisse.befehl([&barcode] { barcode.open(); });
    for (Control* starten :
         {static_cast<Control*>(&form1.m_start_analyzer), static_cast<Control*>(&form1.Command1)}) {
        starten->Click = ereignisse.befehl([&analyzer] { analyzer.open(); });
    }
    form1.m_updatesuchen.Click = ereignisse.befehl([&updatecheck] { updatecheck.m_updatesuchen_Click(); });
}

} // namespace quittika
