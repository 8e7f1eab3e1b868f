#include "settings/designeraufruf.hpp"

#include <utility>

namespace quittika {

namespace {

constexpr int kHinweistag = 15; ///< of a month

} // namespace

Designeraufruf::Designeraufruf(Dialogs& dialogs, const Clock& uhr, std::function<void()> uebernehmen,
                               std::function<void()> designer_oeffnen)
    : dialogs_(dialogs),
      uhr_(uhr),
      uebernehmen_(std::move(uebernehmen)),
      designer_oeffnen_(std::move(designer_oeffnen)) {}

void Designeraufruf::CMD_DESIGNER_Click() {
    if (uhr_.now().tag == kHinweistag) {
        dialogs_.message({"Der Designer wird ständig weiterentwickelt.\r\nVielen Dank!", "Hinweis",
                          Buttons::Ok, Symbol::Information});
    }
    uebernehmen_();
    designer_oeffnen_();
}

} // namespace quittika
