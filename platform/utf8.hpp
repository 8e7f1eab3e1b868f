#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quittika {

/// Stands for a byte that belongs to no character.
constexpr char32_t kKeinZeichen = 0xFFFFFFFF;

/// One character of a text.
struct Utf8Zeichen {
    char32_t wert;
    std::size_t laenge; ///< in bytes
};

/// The character at byte `i` (within the text). A byte that begins no well-formed character, so also one of
/// an overlong form or of a surrogate, is `kKeinZeichen` with the length 1.
inline Utf8Zeichen utf8_zeichen(std::string_view text, std::size_t i) {
    constexpr Utf8Zeichen kUngueltig{kKeinZeichen, 1};
    const auto c = static_cast<unsigned char>(text[i]);
    if (c < 0x80) {
        return {c, 1};
    }
    const std::size_t laenge = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : 2;
    if (c < 0xC2 || c > 0xF4 || laenge > text.size() - i) {
        return kUngueltig;
    }
    char32_t wert = c & (0xFFU >> (laenge + 1));
    for (std::size_t k = 1; k < laenge; ++k) {
        const auto folge = static_cast<unsigned char>(text[i + k]);
        if ((folge & 0xC0U) != 0x80U) {
            return kUngueltig;
        }
        wert = (wert << 6U) | (folge & 0x3FU);
    }
    const bool ueberlang = (laenge == 3 && wert < 0x800) || (laenge == 4 && wert < 0x10000);
    const bool ersatzzeichen = wert >= 0xD800 && wert <= 0xDFFF;
    return ueberlang || ersatzzeichen || wert > 0x10FFFF ? kUngueltig : Utf8Zeichen{wert, laenge};
}

/// Length of the run of ASCII characters at `anfang`: most text is nothing else, and is quickly done with.
inline std::size_t ascii_lauf(std::string_view text, std::size_t anfang) {
    std::size_t i = anfang;
    for (std::uint64_t acht = 0; i + sizeof acht <= text.size(); i += sizeof acht) {
        std::memcpy(&acht, text.data() + i, sizeof acht);
        if ((acht & 0x8080808080808080U) != 0) {
            break;
        }
    }
    while (i < text.size() && static_cast<unsigned char>(text[i]) < 0x80) {
        ++i;
    }
    return i - anfang;
}

} // namespace quittika
