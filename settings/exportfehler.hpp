#pragma once

#include "platform/dialogs.hpp"
#include "platform/fehlertitel.hpp"

namespace quittika {

/// The message that an export failed; `vorhanden`: because of a file of that name.
inline MessageBox EXPORTFEHLER(int nummer, bool vorhanden) {
    return {vorhanden
                ? "Fehler beim Exportieren dieser Datei. Es existiert bereits eine Datei mit diesem Namen!"
                : "Fehler beim Exportieren dieser Datei.",
            vorhanden ? "Achtung!" : FEHLERTITEL(nummer), Buttons::Ok, Symbol::Stop};
}

} // namespace quittika
