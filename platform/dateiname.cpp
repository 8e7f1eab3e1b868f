#include "platform/dateiname.hpp"

#include "platform/utf8.hpp"

#include <algorithm>
#include <cstddef>

namespace quittika {

namespace {

constexpr std::size_t kLaengsterName = 255; ///< in bytes
constexpr std::size_t kLaengsteEndung = 16; ///< what is longer belongs to the name

bool steuert(char32_t zeichen) {
    return zeichen < 0x20 || (zeichen >= 0x7F && zeichen < 0xA0);
}

bool wird_abgelehnt(char zeichen) {
    return std::string_view("/\\:*?\"<>|").find(zeichen) != std::string_view::npos;
}

std::string zeichen_ersetzt(std::string_view text) {
    std::string ergebnis;
    for (std::size_t i = 0; i < text.size();) {
        const Utf8Zeichen zeichen = utf8_zeichen(text, i);
        if (steuert(zeichen.wert)) {
            ergebnis += ' ';
        } else if (wird_abgelehnt(text[i])) {
            ergebnis += '-';
        } else {
            ergebnis += text.substr(i, zeichen.laenge);
        }
        i += zeichen.laenge;
    }
    return ergebnis;
}

/// Where the extension begins with its dot; the end of a name that has none.
std::size_t endung_von(std::string_view name) {
    const std::size_t punkt = name.rfind('.');
    const bool ist_endung = punkt != std::string_view::npos && name.size() - punkt > 1 &&
                            name.size() - punkt <= kLaengsteEndung &&
                            name.find(' ', punkt) == std::string_view::npos;
    return ist_endung ? punkt : name.size();
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
    const std::string name = zeichen_ersetzt(vorschlag);
    const std::string endung = name.substr(endung_von(name));
    std::string_view stamm = std::string_view(name).substr(0, name.size() - endung.size());
    stamm.remove_prefix(std::min(stamm.find_first_not_of('.'), stamm.size()));
    stamm = gekappt(stamm, kLaengsterName - endung.size());
    return (stamm.empty() ? "Unbenannt" : std::string(stamm)) + endung;
}

} // namespace quittika
