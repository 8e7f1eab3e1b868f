#include "tools/dokument_oeffnen.hpp"

#include "platform/laufzeitfehler.hpp"

namespace quittika {

void DOKUMENT_OEFFNEN(const std::string& dokument, Shell& shell, Dialogs& dialogs) {
    try {
        shell.open(dokument);
    } catch (const Laufzeitfehler& fehler) {
        dialogs.message({"Das Dokument konnte nicht geöffnet werden: " + dokument,
                         "Achtung!  Fehlernr.:" + std::to_string(fehler.nummer()), Buttons::Ok,
                         Symbol::Exclamation});
    }
}

} // namespace quittika
