#include "einvoice/festkomma.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"

namespace quittika {

namespace {

__extension__ using Breit = __int128;

constexpr std::int64_t kGroesstes = 100'000'000'000'000'000; // 17 digits

bool ist_ziffer(char c) {
    return c >= '0' && c <= '9';
}

/// Takes a sign in front or behind off the text; nothing where there are two.
std::optional<bool> vorzeichen_nehmen(std::string& text) {
    bool negativ = false;
    bool genommen = false;
    const auto nehmen = [&](std::size_t stelle) {
        if (text.empty() || (text[stelle] != '-' && text[stelle] != '+')) {
            return true;
        }
        negativ = text[stelle] == '-';
        text.erase(stelle, 1);
        text = gekuerzt(text);
        const bool erstes = !genommen;
        genommen = true;
        return erstes;
    };
    const bool gueltig = nehmen(0) && (text.empty() || nehmen(text.size() - 1));
    return gueltig ? std::optional<bool>(negativ) : std::nullopt;
}

/// Digits behind the comma filled up or cut to `stellen`; nothing where more than zeros would be cut.
std::optional<std::string> nachkomma(std::string ziffern, std::size_t stellen) {
    if (ziffern.size() > stellen) {
        if (ziffern.find_first_not_of('0', stellen) != std::string::npos) {
            return std::nullopt;
        }
        ziffern.resize(stellen);
    }
    ziffern.append(stellen - ziffern.size(), '0');
    return ziffern;
}

} // namespace

std::optional<std::int64_t> dezimal_lesen(std::string_view getippt, int stellen) {
    std::string text = gekuerzt(getippt);
    const std::optional<bool> negativ = vorzeichen_nehmen(text);
    if (!negativ) {
        return std::nullopt;
    }
    const std::size_t komma = text.find(',');
    std::string ziffern = ersetzen(text.substr(0, komma), ".", "");
    const std::string hinten = komma == std::string::npos ? "" : text.substr(komma + 1);
    const std::optional<std::string> bruch = nachkomma(hinten, static_cast<std::size_t>(stellen));
    if (!bruch || (ziffern.empty() && hinten.empty())) {
        return std::nullopt;
    }
    ziffern += *bruch;
    ziffern.erase(0, ziffern.find_first_not_of('0'));
    if (ziffern.size() > kDezimalziffern) {
        return std::nullopt;
    }
    std::int64_t wert = 0;
    for (const char c : ziffern) {
        if (!ist_ziffer(c)) {
            return std::nullopt;
        }
        wert = wert * 10 + (c - '0');
    }
    return *negativ ? -wert : wert;
}

std::string dezimal_text(std::int64_t wert, int stellen, int mindestens, char komma) {
    std::string text = std::to_string(wert < 0 ? -wert : wert);
    const auto hinten = static_cast<std::size_t>(stellen);
    if (text.size() <= hinten) {
        text.insert(0, hinten + 1 - text.size(), '0');
    }
    text.insert(text.size() - hinten, 1, komma);
    const std::size_t kuerzeste = text.size() - hinten + static_cast<std::size_t>(mindestens);
    while (text.size() > kuerzeste && text.back() == '0') {
        text.pop_back();
    }
    if (text.back() == komma) {
        text.pop_back();
    }
    return (wert < 0 ? "-" : "") + text;
}

std::int64_t mal_durch(std::int64_t a, std::int64_t b, std::int64_t teiler) {
    if (teiler == 0) {
        throw Laufzeitfehler(fehler::kDivisionDurchNull);
    }
    const Breit produkt = static_cast<Breit>(a) * b;
    const Breit nenner = teiler < 0 ? -static_cast<Breit>(teiler) : teiler;
    const Breit zaehler = teiler < 0 ? -produkt : produkt;
    const Breit betrag = zaehler < 0 ? -zaehler : zaehler;
    const Breit gerundet = betrag / nenner + (betrag % nenner * 2 >= nenner ? 1 : 0);
    if (gerundet > kGroesstes) {
        throw Laufzeitfehler(fehler::kUeberlauf);
    }
    return static_cast<std::int64_t>(zaehler < 0 ? -gerundet : gerundet);
}

} // namespace quittika
