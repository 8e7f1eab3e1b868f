#include "safety/zeilentausch.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

namespace quittika {

namespace {

using Spalten = std::array<const std::vector<std::string>*, 5>;

constexpr unsigned kSiebenBit = 7;
constexpr std::size_t kFortsetzung = 128; ///< a length goes on in the next byte

/// Lengths take one byte as far as they are short: a row costs hardly more than its characters.
void anfuegen(std::string& texte, std::string_view text) {
    std::size_t laenge = text.size();
    for (; laenge >= kFortsetzung; laenge >>= kSiebenBit) {
        texte += static_cast<char>(laenge % kFortsetzung + kFortsetzung);
    }
    texte += static_cast<char>(laenge);
    texte += text;
}

std::string abtrennen(std::string_view& texte) {
    std::size_t laenge = 0;
    for (unsigned stelle = 0;; stelle += kSiebenBit) {
        const std::size_t byte = static_cast<unsigned char>(texte.front());
        texte.remove_prefix(1);
        laenge += byte % kFortsetzung << stelle;
        if (byte < kFortsetzung) {
            break;
        }
    }
    std::string text(texte.substr(0, laenge));
    texte.remove_prefix(laenge);
    return text;
}

bool gleiche_zeile(const Zeilenspalten& alt, std::size_t a, const Spalten& neu, std::size_t b) {
    for (std::size_t s = 0; s < alt.size(); ++s) {
        if (alt.at(s)[a] != (*neu.at(s))[b]) {
            return false;
        }
    }
    return true;
}

} // namespace

Zeilentausch ZEILEN_NACHFUEHREN(Zeilenspalten& alt, const Spalten& neu) {
    std::size_t alt_ende = alt.front().size();
    std::size_t neu_ende = neu.front()->size();
    Zeilentausch tausch;
    while (tausch.ab < std::min(alt_ende, neu_ende) && gleiche_zeile(alt, tausch.ab, neu, tausch.ab)) {
        ++tausch.ab;
    }
    while (std::min(alt_ende, neu_ende) > tausch.ab && gleiche_zeile(alt, alt_ende - 1, neu, neu_ende - 1)) {
        --alt_ende;
        --neu_ende;
    }
    tausch.jetzt = neu_ende - tausch.ab;
    tausch.frueher = alt_ende - tausch.ab;
    for (std::size_t zeile = tausch.ab; zeile < alt_ende; ++zeile) {
        for (const std::vector<std::string>& spalte : alt) {
            anfuegen(tausch.texte, spalte[zeile]);
        }
    }
    tausch.texte.shrink_to_fit();
    const auto stelle = [](auto& spalte, std::size_t zeile) {
        return spalte.begin() + static_cast<std::ptrdiff_t>(zeile);
    };
    for (std::size_t s = 0; s < alt.size(); ++s) {
        std::vector<std::string>& spalte = alt.at(s);
        spalte.erase(stelle(spalte, tausch.ab), stelle(spalte, alt_ende));
        spalte.insert(stelle(spalte, tausch.ab), stelle(*neu.at(s), tausch.ab), stelle(*neu.at(s), neu_ende));
    }
    return tausch;
}

Zeilenspalten FRUEHERE_ZEILEN(const Zeilentausch& tausch) {
    Zeilenspalten zeilen;
    std::string_view rest = tausch.texte;
    for (std::size_t i = 0; i < tausch.frueher; ++i) {
        for (std::vector<std::string>& spalte : zeilen) {
            spalte.push_back(abtrennen(rest));
        }
    }
    return zeilen;
}

} // namespace quittika
