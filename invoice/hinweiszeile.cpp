#include "invoice/hinweiszeile.hpp"

#include "platform/text.hpp"

namespace quittika {

Hinweiszeile::Befehl::Befehl(Hinweiszeile& zeile) : zeile_(zeile) {
    if (zeile_.befehle_++ > 0) {
        return;
    }
    std::erase_if(zeile_.meldungen_, [](const Meldung& meldung) { return !meldung.frisch; });
    for (Meldung& meldung : zeile_.meldungen_) {
        meldung.frisch = false;
    }
    zeile_.zeigen();
}

void Hinweiszeile::melden(const std::string& text, const Control* feld) {
    if (text.empty()) {
        return;
    }
    std::erase_if(meldungen_, [&](const Meldung& meldung) {
        return meldung.text == text || (feld != nullptr && meldung.feld == feld);
    });
    meldungen_.push_back({text, feld, befehle_ == 0});
    zeigen();
}

void Hinweiszeile::vergessen(const Control& feld) {
    std::erase_if(meldungen_, [&](const Meldung& meldung) { return meldung.feld == &feld; });
    zeigen();
}

void Hinweiszeile::setzen(Lage lage, const std::string& text) {
    std::string& jetzt = lagen_.at(static_cast<std::size_t>(lage));
    if (jetzt != text) {
        jetzt = text;
        zeigen();
    }
}

void Hinweiszeile::leeren() {
    meldungen_.clear();
    zeigen();
}

void Hinweiszeile::zeigen() {
    std::string text;
    const auto anfuegen = [&text](const std::string& teil) {
        text += (text.empty() || teil.empty() ? "" : " ") + teil;
    };
    anfuegen(lagen_.front());
    for (const Meldung& meldung : meldungen_) {
        anfuegen(meldung.text);
    }
    for (std::size_t i = 1; i < lagen_.size(); ++i) {
        anfuegen(lagen_.at(i));
    }
    panel_.Caption = text;
}

std::string BESCHRIFTUNG(const Control& steuerelement) {
    return ersetzen(steuerelement.Caption(), "&", "");
}

} // namespace quittika
