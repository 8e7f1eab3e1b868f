#include "masterdata/listensuche.hpp"

#include "platform/forms/tasten.hpp"
#include "platform/suchtext.hpp"
#include "platform/text.hpp"

#include <algorithm>

namespace quittika {

Listensuche::Listensuche(TextBox& feld, ListBox& liste, Label& befund)
    : feld_(feld), liste_(liste), befund_(befund) {
    feld.Change = [this] { Text_suchen_Change(); };
    feld.KeyDown = TASTEN({{kEingabetaste, [this] { weitersuchen(); }},
                           {kF3, [this] { weitersuchen(); }},
                           {kPfeilHoch, [this] { bewegen(-1); }},
                           {kPfeilRunter, [this] { bewegen(1); }}});
}

void Listensuche::Text_suchen_Change() {
    const std::string gesucht = SUCHTEXT(einzeilig(feld_.Text()));
    if (gesucht.empty()) {
        befund_.Caption = "";
    } else {
        waehlen(gesucht, 0);
    }
}

void Listensuche::weitersuchen() {
    const std::string gesucht = SUCHTEXT(einzeilig(feld_.Text()));
    if (!gesucht.empty()) {
        waehlen(gesucht, liste_.ListIndex() + 1);
    }
}

void Listensuche::bewegen(int schritt) {
    if (liste_.ListCount() > 0) {
        liste_.ListIndex = std::clamp(liste_.ListIndex() + schritt, 0, liste_.ListCount() - 1);
    }
}

void Listensuche::waehlen(std::string_view gesucht, int ab) {
    int gefunden = finden(gesucht, ab);
    if (gefunden < 0) {
        gefunden = finden(gesucht, 0);
    }
    befund_.Caption = gefunden < 0 ? "Kein Eintrag enthält diesen Text." : "";
    liste_.ListIndex = gefunden;
}

int Listensuche::finden(std::string_view gesucht, int ab) {
    auffrischen();
    if (ab >= static_cast<int>(anfaenge_.size())) {
        return -1;
    }
    const std::size_t ort = gefaltet_.find(gesucht, anfaenge_[static_cast<std::size_t>(ab)]);
    if (ort == std::string::npos) {
        return -1;
    }
    return static_cast<int>(std::upper_bound(anfaenge_.begin(), anfaenge_.end(), ort) - anfaenge_.begin()) -
           1;
}

void Listensuche::auffrischen() {
    if (stand_ == liste_.revision()) {
        return;
    }
    stand_ = liste_.revision();
    gefaltet_.clear();
    anfaenge_.clear();
    for (const std::string& eintrag : liste_.items()) {
        anfaenge_.push_back(gefaltet_.size());
        suchtext_anfuegen(gefaltet_, eintrag);
        gefaltet_ += '\n';
    }
}

} // namespace quittika
