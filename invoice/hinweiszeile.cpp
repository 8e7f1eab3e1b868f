#include "invoice/hinweiszeile.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

Hinweiszeile::Befehl::Befehl(Hinweiszeile& zeile) : zeile_(zeile) {
    if (zeile_.befehle_++ > 0) {
        return;
    }
    zeile_.fremdes_uebernehmen();
    if (!std::exchange(zeile_.frisch_, false)) {
        zeile_.leeren();
    }
}

void Hinweiszeile::melden(const std::string& text) {
    if (text.empty()) {
        return;
    }
    fremdes_uebernehmen();
    frisch_ = befehle_ == 0;
    if (frisch_) {
        meldungen_.clear();
    }
    if (std::find(meldungen_.begin(), meldungen_.end(), text) == meldungen_.end()) {
        meldungen_.push_back(text);
    }
    zeigen();
}

void Hinweiszeile::setzen(Lage lage, const std::string& text) {
    std::string& jetzt = lagen_.at(static_cast<std::size_t>(lage));
    if (jetzt != text) {
        fremdes_uebernehmen();
        jetzt = text;
        zeigen();
    }
}

void Hinweiszeile::leeren() {
    meldungen_.clear();
    zeigen();
}

/// What another module has put into the panel itself counts as a message.
void Hinweiszeile::fremdes_uebernehmen() {
    if (panel_.Caption() != gezeigt_) {
        meldungen_.clear();
        if (!panel_.Caption().empty()) {
            meldungen_.push_back(panel_.Caption());
        }
    }
}

void Hinweiszeile::zeigen() {
    std::vector<std::string> teile = meldungen_;
    teile.insert(teile.begin(), lagen_.front());
    teile.insert(teile.end(), lagen_.begin() + 1, lagen_.end());
    gezeigt_.clear();
    for (const std::string& teil : teile) {
        gezeigt_ += (gezeigt_.empty() || teil.empty() ? "" : " ") + teil;
    }
    panel_.Caption = gezeigt_;
}

} // namespace quittika
