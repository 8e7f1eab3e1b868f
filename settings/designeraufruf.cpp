#include "settings/designeraufruf.hpp"

#include <utility>

namespace quittika {

namespace {

constexpr int kHinweistag = 15; ///< of a month

} // namespace

Designeraufruf::Designeraufruf(Einstellungsuebernahme& uebernahme, Dialogs& dialogs, const Clock& uhr,
                               std::function<void()> designer_oeffnen)
    : uebernahme_(uebernahme), dialogs_(dialogs), uhr_(uhr), designer_oeffnen_(std::move(designer_oeffnen)) {}

void Designeraufruf::CMD_DESIGNER_Click() {
    if (uhr_.now().tag == kHinweistag) {
        dialogs_.message({"Der Designer wird ständig weiterentwickelt.\r\nVielen Dank!", "Hinweis",
                          Buttons::Ok, Symbol::Information});
    }
    uebernahme_.ALLEUEBERNEHMEN(false);
    designer_oeffnen_();
}

} // namespace quittika
