#include "app/menue_hilfe.hpp"

#include "app/hilfekapitel.hpp"
#include "app/ueber_quittika.hpp"
#include "tools/dokument_oeffnen.hpp"
#include "tools/internetseiten.hpp"

namespace quittika {

MenueHilfe::MenueHilfe(Form1& form1, const Ereignisse& ereignisse, const Programmverzeichnis& verzeichnis,
                       const PROGRAMMEINSTELLUNG& werte, Shell& shell, Dialogs& dialogs, Desktop& desktop)
    : shell_(shell), dialogs_(dialogs) {
    const std::string handbuch = "file:///" + verzeichnis.pfad("\\startbenutzerhandbuch.htm");
    form1.m_Hilfe_Fenster.Click = oeffnen(handbuch + '#' + std::string(HILFEKAPITEL(form1.name())));
    form1.m_Benutzerhandbuch_html.Click = oeffnen(handbuch);
    desktop.on_help([this, handbuch](const Form& fenster) {
        DOKUMENT_OEFFNEN(handbuch + '#' + std::string(HILFEKAPITEL(fenster.name())), shell_, dialogs_);
    });
    form1.m_Benutzerhandbuch_pdf.Click = oeffnen(verzeichnis.pfad("\\Benutzerhandbuch - Quittika 2008.pdf"));
    form1.m_ErsteRechnungerstellen.Click = oeffnen(verzeichnis.pfad("\\DIE_ERSTE_RECHNUNG.pdf"));
    form1.m_hilfe.Click = oeffnen(kHilfeseite);
    form1.m_website.Click = oeffnen(kHauptseite);
    form1.ueber_QUITTIKA.Click =
        ereignisse.befehl([&werte, &desktop] { UEBER_QUITTIKA_ZEIGEN(werte, desktop); });
}

Ereignisse::Ereignis MenueHilfe::oeffnen(const std::string& dokument) {
    return [this, dokument] { DOKUMENT_OEFFNEN(dokument, shell_, dialogs_); };
}

} // namespace quittika
