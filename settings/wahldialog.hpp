#pragma once

#include "platform/dialogs.hpp"
#include "platform/laufzeitfehler.hpp"

#include <optional>
#include <string>

namespace quittika {

/// What a common dialog answers. Nothing where the user cancelled it, and where it failed, which a box tells;
/// `was` is what should be chosen there ("Die Farbe").
template <class Dialog>
auto WAHL(Dialogs& dialogs, const std::string& was, Dialog dialog) -> std::optional<decltype(dialog())> {
    try {
        return dialog();
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDialogAbgebrochen) {
            dialogs.message({was + " ließ sich nicht wählen. Fehlernr.: " + std::to_string(fehler.nummer()) +
                                 "\r\n" + fehlertext(fehler.nummer()),
                             "Achtung!", Buttons::Ok, Symbol::Exclamation});
        }
        return std::nullopt;
    }
}

} // namespace quittika
