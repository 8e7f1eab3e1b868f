#include "invoice/zahleneingabe.hpp"

#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

constexpr std::string_view kZiffern = "0123456789";

/// The digits and points of a text, without the blanks and the sign in front of them.
std::string_view ohne_vorzeichen(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        text.remove_prefix(1);
    }
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    return text;
}

/// One to three digits, and behind each point exactly three more.
bool in_dreiergruppen(std::string_view text) {
    constexpr std::size_t kGruppe = 3;
    std::size_t stellen = std::min(text.find('.'), text.size());
    bool erste = true;
    while (true) {
        const std::string_view gruppe = text.substr(0, stellen);
        const bool passt = erste ? stellen >= 1 && stellen <= kGruppe : stellen == kGruppe;
        if (!passt || gruppe.find_first_not_of(kZiffern) != std::string_view::npos) {
            return false;
        }
        if (stellen == text.size()) {
            return true;
        }
        text.remove_prefix(stellen + 1);
        stellen = std::min(text.find('.'), text.size());
        erste = false;
    }
}

/// A comma as the only mark; nothing where points stand as they do in no number.
std::optional<std::string> mit_einem_komma(std::string_view text) {
    const std::size_t komma = text.find(',');
    if (komma == std::string_view::npos) {
        return MIT_KOMMA(text);
    }
    const std::string_view vorn = text.substr(0, komma);
    const std::string_view hinten = text.substr(komma);
    if (hinten.find('.') != std::string_view::npos) {
        return std::nullopt;
    }
    if (vorn.find('.') != std::string_view::npos && !in_dreiergruppen(ohne_vorzeichen(vorn))) {
        return std::nullopt;
    }
    return ersetzen(vorn, ".", "") + std::string(hinten);
}

/// "5,-" and "5,--" are whole amounts: what stands in front of the comma.
std::string_view ohne_pfennigstrich(std::string_view text) {
    const std::size_t komma = text.find(',');
    if (komma == std::string_view::npos || komma == 0) {
        return text;
    }
    const std::string_view hinten = text.substr(komma + 1);
    const bool strich = hinten == "-" || hinten == "--" || hinten == "–" || hinten == "—";
    return strich ? text.substr(0, komma + 1) : text;
}

bool wie_tausender(std::string_view text) {
    const bool ein_punkt = std::count(text.begin(), text.end(), '.') == 1;
    const std::string_view ziffern = ohne_vorzeichen(text);
    return ein_punkt && !ziffern.empty() && ziffern.front() != '0' && in_dreiergruppen(ziffern);
}

} // namespace

std::string MIT_KOMMA(std::string_view text) {
    return ZEICHENERSETZEN(text, ".", ",");
}

std::string KEINE_ZAHL(std::string_view getippt) {
    constexpr std::size_t kHoechstens = 30;
    if (gekuerzt(getippt).empty()) {
        return "Ein leeres Feld ist keine Zahl";
    }
    return "\"" + links(getippt, kHoechstens) + "\" ist keine Zahl";
}

std::optional<Zahleneingabe> ZAHL_LESEN(std::string_view getippt) {
    const std::string gekuerzter = gekuerzt(getippt);
    const std::string_view text = ohne_pfennigstrich(gekuerzter);
    std::optional<std::string> zahl = mit_einem_komma(text);
    const std::optional<double> wert = zahl ? double_versuch(*zahl) : std::nullopt;
    if (!wert) {
        return std::nullopt;
    }
    return Zahleneingabe{*wert, std::move(*zahl), wie_tausender(text)};
}

Feldwert FELDWERT(std::string_view getippt, const Zahleneingabe& zahl, double wert, std::string_view muster,
                  const std::string& ausweg) {
    Feldwert feld;
    feld.text = format_zahl(wert, muster);
    feld.wert = double_versuch(feld.text).value_or(wert); // the largest doubles round up to none
    const bool gerundet = feld.wert != zahl.wert;
    const std::string gelesen = gerundet ? zahl.text : feld.text;
    if (zahl.wie_tausender) {
        const std::string eingabe = gekuerzt(getippt);
        feld.hinweis = eingabe + " wurde als " + gelesen +
                       " gelesen. Tausender: " + ersetzen(eingabe, ".", "") + " oder " + eingabe + ",00.";
    }
    if (gerundet) {
        feld.hinweis += (feld.hinweis.empty() ? "" : " ") + gelesen + " wurde auf " + feld.text +
                        " gerundet." + (ausweg.empty() ? "" : " ") + ausweg;
    }
    return feld;
}

} // namespace quittika
