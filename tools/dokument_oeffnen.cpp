#include "tools/dokument_oeffnen.hpp"

#include "platform/fehlertitel.hpp"
#include "platform/laufzeitfehler.hpp"

namespace quittika {

void DOKUMENT_OEFFNEN(const std::string& dokument, Shell& shell, Dialogs& dialogs) {
    try {
        shell.open(dokument);
    } catch (const Laufzeitfehler& fehler) {
        dialogs.message({"Das Dokument konnte nicht geöffnet werden: " + dokument,
                         FEHLERTITEL(fehler.nummer()), Buttons::Ok, Symbol::Exclamation});
    }
}

void OEFFNEN_ANBIETEN(const std::string& name, const std::string& pfad, Dialogs& dialogs, Shell& shell) {
    if (dialogs.message({"Soll die Datei [" + name + "] jetzt geöffnet werden?", "Quittika", Buttons::YesNo,
                         Symbol::Question}) == Answer::Yes) {
        DOKUMENT_OEFFNEN(pfad, shell, dialogs);
    }
}

} // namespace quittika
