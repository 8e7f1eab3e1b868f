#include "app/menue_extras.hpp"

namespace quittika {

void MENUE_EXTRAS(Form1& form1, const Ereignisse& ereignisse, Eingabezeile& eingabezeile,
                  const Pflichtpruefung& pflichtpruefung, Barcodefenster& barcode, Analyzerfenster& analyzer,
                  Nummernpruefung& nummern, Datensicherung& sicherung, Rueckspielfenster& rueckspielen,
                  Updatecheck& updatecheck) {
    form1.m_eingabezeile.Click = [&eingabezeile] { eingabezeile.anwaehlen(); };
    form1.m_Pflichtangaben.Click =
        ereignisse.befehl([&pflichtpruefung] { pflichtpruefung.m_Pflichtangaben_Click(); });
    form1.Cmd_Barcode.Click = ereignisse.befehl([&barcode] { barcode.open(); });
    for (Control* starten :
         {static_cast<Control*>(&form1.m_start_analyzer), static_cast<Control*>(&form1.Command1)}) {
        starten->Click = ereignisse.befehl([&analyzer] { analyzer.open(); });
    }
    form1.m_nummern_pruefen.Click = ereignisse.befehl([&nummern] { nummern.open(); });
    form1.m_datensicherung.Click = ereignisse.befehl([&sicherung] { sicherung.open(); });
    form1.m_zurueckspielen.Click =
        ereignisse.befehl([&rueckspielen] { rueckspielen.m_zurueckspielen_Click(); });
    form1.m_updatesuchen.Click = ereignisse.befehl([&updatecheck] { updatecheck.m_updatesuchen_Click(); });
}

} // namespace quittika
