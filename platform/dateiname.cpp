#include "platform/dateiname.hpp"

#include "platform/utf8.hpp"

#include <algorithm>
#include <cstddef>

namespace quittika {

namespace {

constexpr std::size_t kLaengsterName = 255; ///< in bytes
constexpr std::size_t kLaengsteEndung = 16; ///< what is longer belongs to the name

/// Characters that part folders, or texts from each other.
bool trennt(char32_t zeichen) {
    return zeichen == '/' || zeichen == '\\' || zeichen == '|';
}

/// Control characters, and what some media do not take in names.
bool wird_abgelehnt(char32_t zeichen) {
    const bool steuert = zeichen < 0x20 || (zeichen >= 0x7F && zeichen < 0xA0);
    return steuert || (zeichen < 0x7F && std::string_view(":*?\"<>").find(static_cast<char>(zeichen)) !=
                                             std::string_view::npos);
}

std::string zeichen_ersetzt(std::string_view text) {
    std::string ergebnis;
    bool luecke = false;
    for (std::size_t i = 0; i < text.size();) {
        const Utf8Zeichen zeichen = utf8_zeichen(text, i);
        if (wird_abgelehnt(zeichen.wert)) {
            luecke = !ergebnis.empty() && ergebnis.back() != ' ';
        } else {
            ergebnis += luecke && zeichen.wert != ' ' ? " " : "";
            ergebnis += trennt(zeichen.wert) ? "-" : text.substr(i, zeichen.laenge);
            luecke = false;
        }
        i += zeichen.laenge;
    }
    return ergebnis;
}

/// The extension with its dot; empty for a name that has none.
std::string_view endung_von(std::string_view name) {
    const std::string_view endung = name.substr(std::min(name.rfind('.'), name.size()));
    const bool rein = endung.find(' ') == std::string_view::npos && zeichen_ersetzt(endung) == endung;
    return rein && endung.size() > 1 && endung.size() <= kLaengsteEndung ? endung : std::string_view();
}

/// At most that many bytes, and no character in part.
std::string_view gekappt(std::string_view text, std::size_t bytes) {
    std::size_t ende = 0;
    while (ende < text.size() && ende + utf8_zeichen(text, ende).laenge <= bytes) {
        ende += utf8_zeichen(text, ende).laenge;
    }
    return text.substr(0, ende);
}

} // namespace

std::string DATEINAME_BEREINIGEN(std::string_view vorschlag) {
    if (vorschlag.empty()) {
        return {};
    }
    const std::string_view endung = endung_von(vorschlag);
    const std::string name = zeichen_ersetzt(vorschlag.substr(0, vorschlag.size() - endung.size()));
    std::string_view stamm = name;
    stamm.remove_prefix(std::min(stamm.find_first_not_of('.'), stamm.size()));
    stamm = gekappt(stamm, kLaengsterName - endung.size());
    return std::string(stamm.empty() ? "Unbenannt" : stamm).append(endung);
}

} // namespace quittika
