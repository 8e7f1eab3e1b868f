#include "app/werkzeuge.hpp"

#include "tools/helferlein.hpp"
#include "tools/textvorlagen.hpp"

namespace quittika {

void WERKZEUGE(Form1& form1, const Ereignisse& ereignisse, Rechnungszustand& zustand, Notizfenster& notiz,
               const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Desktop& desktop) {
    form1.Cmd_Vorlagen.Click = ereignisse.befehl([&form1, &verzeichnis, &dialogs, &desktop] {
        VORLAGEN_ZEIGEN(form1, verzeichnis, dialogs, desktop);
    });
    form1.CMD_FORM_HELFERLEIN.Click =
        ereignisse.befehl([&form1, &desktop] { HELFER_ADRESSE_ZEIGEN(form1, desktop); });
    form1.CMD_FORM_HELFERLEIN_Bkg.Click =
        ereignisse.befehl([&form1, &desktop] { HELFER_TEXT_ZEIGEN(form1, desktop); });
    form1.Cmd_Notiz.Click = ereignisse.befehl([&zustand, &notiz] {
        zustand.aendern();
        notiz.open();
    });
    form1.Text_Notiz.Change = [&notiz] {
        if (Notiz* offen = notiz.module()) {
            offen->Zeigen();
        }
    };
}

} // namespace quittika
