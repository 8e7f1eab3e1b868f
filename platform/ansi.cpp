#include "platform/text.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace quittika {

namespace {

/// Characters of the bytes 80 to 9F; the five without one stand for themselves.
constexpr std::array<char32_t, 32> kHoch{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152,
    0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122,
    0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct Ersatz {
    char32_t von; ///< first character of a run
    char32_t bis; ///< last one
    const char* durch; ///< in Windows-1252
};

/// Closest letters, in ascending order.
constexpr Ersatz kErsatz[] = {
    {0x0100, 0x0100, "A"}, {0x0101, 0x0101, "a"}, {0x0102, 0x0102, "A"}, {0x0103, 0x0103, "a"},
    {0x0104, 0x0104, "A"}, {0x0105, 0x0105, "a"}, {0x0106, 0x0106, "C"}, {0x0107, 0x0107, "c"},
    {0x0108, 0x0108, "C"}, {0x0109, 0x0109, "c"}, {0x010A, 0x010A, "C"}, {0x010B, 0x010B, "c"},
    {0x010C, 0x010C, "C"}, {0x010D, 0x010D, "c"}, {0x010E, 0x010E, "D"}, {0x010F, 0x010F, "d"},
    {0x0110, 0x0110, "\xD0"}, {0x0111, 0x0111, "d"}, {0x0112, 0x0112, "E"}, {0x0113, 0x0113, "e"},
    {0x0114, 0x0114, "E"}, {0x0115, 0x0115, "e"}, {0x0116, 0x0116, "E"}, {0x0117, 0x0117, "e"},
    {0x0118, 0x0118, "E"}, {0x0119, 0x0119, "e"}, {0x011A, 0x011A, "E"}, {0x011B, 0x011B, "e"},
    {0x011C, 0x011C, "G"}, {0x011D, 0x011D, "g"}, {0x011E, 0x011E, "G"}, {0x011F, 0x011F, "g"},
    {0x0120, 0x0120, "G"}, {0x0121, 0x0121, "g"}, {0x0122, 0x0122, "G"}, {0x0123, 0x0123, "g"},
    {0x0124, 0x0124, "H"}, {0x0125, 0x0125, "h"}, {0x0126, 0x0126, "H"}, {0x0127, 0x0127, "h"},
    {0x0128, 0x0128, "I"}, {0x0129, 0x0129, "i"}, {0x012A, 0x012A, "I"}, {0x012B, 0x012B, "i"},
    {0x012C, 0x012C, "I"}, {0x012D, 0x012D, "i"}, {0x012E, 0x012E, "I"}, {0x012F, 0x012F, "i"},
    {0x0130, 0x0130, "I"}, {0x0131, 0x0131, "i"}, {0x0134, 0x0134, "J"}, {0x0135, 0x0135, "j"},
    {0x0136, 0x0136, "K"}, {0x0137, 0x0137, "k"}, {0x0139, 0x0139, "L"}, {0x013A, 0x013A, "l"},
    {0x013B, 0x013B, "L"}, {0x013C, 0x013C, "l"}, {0x013D, 0x013D, "L"}, {0x013E, 0x013E, "l"},
    {0x013F, 0x013F, "L"}, {0x0140, 0x0140, "l"}, {0x0141, 0x0141, "L"}, {0x0142, 0x0142, "l"},
    {0x0143, 0x0143, "N"}, {0x0144, 0x0144, "n"}, {0x0145, 0x0145, "N"}, {0x0146, 0x0146, "n"},
    {0x0147, 0x0147, "N"}, {0x0148, 0x0148, "n"}, {0x014C, 0x014C, "O"}, {0x014D, 0x014D, "o"},
    {0x014E, 0x014E, "O"}, {0x014F, 0x014F, "o"}, {0x0150, 0x0150, "\xD6"}, {0x0151, 0x0151, "\xF6"},
    {0x0154, 0x0154, "R"}, {0x0155, 0x0155, "r"}, {0x0156, 0x0156, "R"}, {0x0157, 0x0157, "r"},
    {0x0158, 0x0158, "R"}, {0x0159, 0x0159, "r"}, {0x015A, 0x015A, "S"}, {0x015B, 0x015B, "s"},
    {0x015C, 0x015C, "S"}, {0x015D, 0x015D, "s"}, {0x015E, 0x015E, "S"}, {0x015F, 0x015F, "s"},
    {0x0162, 0x0162, "T"}, {0x0163, 0x0163, "t"}, {0x0164, 0x0164, "T"}, {0x0165, 0x0165, "t"},
    {0x0166, 0x0166, "T"}, {0x0167, 0x0167, "t"}, {0x0168, 0x0168, "U"}, {0x0169, 0x0169, "u"},
    {0x016A, 0x016A, "U"}, {0x016B, 0x016B, "u"}, {0x016C, 0x016C, "U"}, {0x016D, 0x016D, "u"},
    {0x016E, 0x016E, "U"}, {0x016F, 0x016F, "u"}, {0x0170, 0x0170, "\xDC"}, {0x0171, 0x0171, "\xFC"},
    {0x0172, 0x0172, "U"}, {0x0173, 0x0173, "u"}, {0x0174, 0x0174, "W"}, {0x0175, 0x0175, "w"},
    {0x0176, 0x0176, "Y"}, {0x0177, 0x0177, "y"}, {0x0179, 0x0179, "Z"}, {0x017A, 0x017A, "z"},
    {0x017B, 0x017B, "Z"}, {0x017C, 0x017C, "z"}, {0x0218, 0x0218, "S"}, {0x0219, 0x0219, "s"},
    {0x021A, 0x021A, "T"}, {0x021B, 0x021B, "t"}, {0x02BC, 0x02BC, "'"}, {0x1E9E, 0x1E9E, "SS"},
    {0x2000, 0x200A, " "}, {0x200B, 0x200D, ""}, {0x2010, 0x2012, "-"}, {0x2015, 0x2015, "\x97"},
    {0x201B, 0x201B, "'"}, {0x201F, 0x201F, "\""}, {0x202F, 0x202F, " "}, {0x2032, 0x2032, "'"},
    {0x2033, 0x2033, "\""}, {0x2044, 0x2044, "/"}, {0x205F, 0x205F, " "}, {0x2060, 0x2060, ""},
    {0x20BD, 0x20BD, "RUB"}, {0x2116, 0x2116, "Nr."}, {0x2190, 0x2190, "<-"}, {0x2192, 0x2192, "->"},
    {0x2212, 0x2212, "-"}, {0x2215, 0x2215, "/"}, {0x2217, 0x2217, "*"}, {0x2219, 0x2219, "\xB7"},
    {0x2260, 0x2260, "<>"}, {0x2264, 0x2264, "<="}, {0x2265, 0x2265, ">="}, {0x3000, 0x3000, " "},
    {0xFB00, 0xFB00, "ff"}, {0xFB01, 0xFB01, "fi"}, {0xFB02, 0xFB02, "fl"}, {0xFB03, 0xFB03, "ffi"},
    {0xFB04, 0xFB04, "ffl"}, {0xFEFF, 0xFEFF, ""},
};

struct Verbindung {
    char32_t zeichen; ///< combining mark
    const char* grund; ///< letters that the code page has with it
    const char* ergebnis; ///< those, in the same order, in Windows-1252
};

constexpr Verbindung kVerbindungen[] = {
    {0x0300, "AEIOUaeiou", "\xC0\xC8\xCC\xD2\xD9\xE0\xE8\xEC\xF2\xF9"},
    {0x0301, "AEIOUYaeiouy", "\xC1\xC9\xCD\xD3\xDA\xDD\xE1\xE9\xED\xF3\xFA\xFD"},
    {0x0302, "AEIOUaeiou", "\xC2\xCA\xCE\xD4\xDB\xE2\xEA\xEE\xF4\xFB"},
    {0x0303, "ANOano", "\xC3\xD1\xD5\xE3\xF1\xF5"},
    {0x0308, "AEIOUaeiouy", "\xC4\xCB\xCF\xD6\xDC\xE4\xEB\xEF\xF6\xFC\xFF"},
    {0x030A, "Aa", "\xC5\xE5"},
    {0x030C, "SZsz", "\x8A\x8E\x9A\x9E"},
    {0x0327, "Cc", "\xC7\xE7"},
};

void utf8_anhaengen(std::string& text, char32_t c) {
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0U | (c >> 6U));
        text += static_cast<char>(0x80U | (c & 0x3FU));
    } else {
        text += static_cast<char>(0xE0U | (c >> 12U));
        text += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (c & 0x3FU));
    }
}

constexpr char32_t kUngueltig = 0xFFFD;

/// The character at `i`, which moves behind it; a byte that is no UTF-8 is `kUngueltig`.
char32_t naechstes(std::string_view text, std::size_t& i) {
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[k]); };
    const unsigned char c = byte(i++);
    if (c < 0x80) {
        return c;
    }
    const int folgen = c >= 0xF0 && c < 0xF5 ? 3 : c >= 0xE0 && c < 0xF0 ? 2 : c >= 0xC2 && c < 0xE0 ? 1 : 0;
    if (folgen == 0 || i + static_cast<std::size_t>(folgen) > text.size()) {
        return kUngueltig;
    }
    char32_t zeichen = c & (0x3FU >> folgen);
    for (int k = 0; k < folgen; ++k) {
        const unsigned char f = byte(i + static_cast<std::size_t>(k));
        if ((f & 0xC0U) != 0x80U) {
            return kUngueltig;
        }
        zeichen = (zeichen << 6U) | (f & 0x3FU);
    }
    i += static_cast<std::size_t>(folgen);
    return zeichen;
}

/// Byte of the code page, -1 if it lacks the character.
int byte_fuer(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<int>(c);
    }
    const auto* fund = std::find(kHoch.begin(), kHoch.end(), c);
    return fund == kHoch.end() ? -1 : static_cast<int>(fund - kHoch.begin()) + 0x80;
}

bool verbinden(std::string& bytes, char32_t c) {
    for (const Verbindung& v : kVerbindungen) {
        if (v.zeichen != c || bytes.empty()) {
            continue;
        }
        const std::string_view grund = v.grund;
        const std::size_t i = grund.find(bytes.back());
        if (i != std::string_view::npos) {
            bytes.back() = v.ergebnis[i];
            return true;
        }
    }
    return false;
}

const char* ersatz_fuer(char32_t c) {
    for (const Ersatz& e : kErsatz) {
        if (c >= e.von && c <= e.bis) {
            return e.durch;
        }
    }
    return c >= 0x0300 && c <= 0x036F ? "" : "?";
}

} // namespace

std::string aus_ansi(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) {
        const auto c = static_cast<unsigned char>(byte);
        utf8_anhaengen(text, c >= 0x80 && c < 0xA0 ? kHoch[c - 0x80U] : c);
    }
    return text;
}

Ansi nach_ansi(std::string_view text) {
    Ansi ansi;
    ansi.bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const char32_t c = naechstes(text, i);
        const int byte = byte_fuer(c);
        if (byte >= 0) {
            ansi.bytes += static_cast<char>(byte);
        } else if (!verbinden(ansi.bytes, c)) {
            ansi.bytes += ersatz_fuer(c);
            ++ansi.ersetzt;
        }
    }
    return ansi;
}

} // namespace quittika
