#include "platform/text.hpp"

#include "platform/utf8.hpp"

#include <algorithm>

namespace quittika {

namespace {

/// Byte position of character `nummer`, the end if there are fewer.
std::size_t stelle(std::string_view text, std::size_t nummer) {
    std::size_t i = 0;
    for (std::size_t n = 0; n < nummer && i < text.size(); ++n) {
        i += utf8_zeichen(text, i).laenge;
    }
    return i;
}

} // namespace

std::size_t zeichenzahl(std::string_view text) {
    const std::size_t ascii = ascii_lauf(text, 0);
    std::size_t anzahl = ascii;
    for (std::size_t i = ascii; i < text.size(); i += utf8_zeichen(text, i).laenge) {
        ++anzahl;
    }
    return anzahl;
}

std::string links(std::string_view text, std::size_t anzahl) {
    return std::string(text.substr(0, stelle(text, anzahl)));
}

std::string rechts(std::string_view text, std::size_t anzahl) {
    const std::size_t alle = zeichenzahl(text);
    return alle <= anzahl ? std::string(text) : ab(text, alle - anzahl);
}

std::string ab(std::string_view text, std::size_t anfang) {
    return std::string(text.substr(stelle(text, anfang)));
}

std::string leerzeichen(std::size_t anzahl) {
    return std::string(anzahl, ' ');
}

std::string rechtsbuendig(std::string_view text, std::size_t breite) {
    const std::size_t laenge = zeichenzahl(text);
    std::string ergebnis(laenge < breite ? breite - laenge : 0, ' ');
    return ergebnis.append(text);
}

std::string linksbuendig(std::string_view text, std::size_t breite) {
    const std::size_t laenge = zeichenzahl(text);
    std::string ergebnis(text);
    return ergebnis.append(laenge < breite ? breite - laenge : 0, ' ');
}

std::string gekuerzt(std::string_view text) {
    const std::size_t anfang = text.find_first_not_of(' ');
    if (anfang == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(anfang, text.find_last_not_of(' ') - anfang + 1));
}

bool beginnt_mit(std::string_view text, std::string_view anfang) {
    return text.substr(0, anfang.size()) == anfang;
}

std::string ersetzen(std::string_view text, std::string_view alt, std::string_view neu) {
    if (alt.empty()) {
        return std::string(text);
    }
    std::string ergebnis;
    ergebnis.reserve(text.size());
    std::size_t i = 0;
    for (std::size_t fund = text.find(alt); fund != std::string_view::npos; fund = text.find(alt, i)) {
        ergebnis.append(text.substr(i, fund - i)).append(neu);
        i = fund + alt.size();
    }
    return ergebnis.append(text.substr(i));
}

std::string einzeilig(std::string text) {
    // Two searches for a single character are many times faster than one for either of two.
    if (text.find('\r') != std::string::npos || text.find('\n') != std::string::npos) {
        text = ersetzen(text, "\r\n", " ");
        std::replace(text.begin(), text.end(), '\r', ' ');
        std::replace(text.begin(), text.end(), '\n', ' ');
    }
    return text;
}

std::string grossbuchstaben(std::string_view text) {
    std::string ergebnis(text);
    for (std::size_t i = 0; i < ergebnis.size(); ++i) {
        const auto c = static_cast<unsigned char>(ergebnis[i]);
        if (c >= 'a' && c <= 'z') {
            ergebnis[i] = static_cast<char>(c - 'a' + 'A');
        } else if (c == 0xC3 && i + 1 < ergebnis.size()) {
            const auto d = static_cast<unsigned char>(ergebnis[i + 1]);
            if (d >= 0xA0 && d <= 0xBE && d != 0xB7) { // à to þ, without the division sign
                ergebnis[i + 1] = static_cast<char>(d - 0x20);
            }
            ++i;
        }
    }
    return ergebnis;
}

std::string ZEICHENERSETZEN(std::string_view text, std::string_view von, std::string_view durch) {
    return ersetzen(text, von, durch);
}

} // namespace quittika
