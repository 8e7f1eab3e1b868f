#include "platform/text.hpp"

#include "platform/utf8.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace quittika {

namespace {

/// Characters of the bytes 80 to 9F; the five without one stand for themselves.
constexpr std::array<char32_t, 32> kHoch{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                         0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Closest letters in Windows-1252 of a run of characters, one byte each; "?" where there is none.
struct Lauf {
    char32_t von;
    std::string_view durch;
};

constexpr Lauf kLaeufe[] = {
    {0x0100, "AaAaAaCcCcCcCcDd\320dEeEeEeEeEeGgGg"
             "GgGgHhHhIiIiIiIiIi??JjKkkLlLlLlL"
             "lLlNnNnNn???OoOo\326\366??RrRrRrSsSsSs"
             "SsTtTtTtUuUuUuUu\334\374UuWwYyYZzZzZzs"
             "bBBb??OCc\320DDd?E?EFfG???IKkl?MNn\330"
             "Oo??Pp?????tTtTUu?VYyZz?????????"
             "|????????????AaIiOoUu\334\374\334\374\334\374\334\374e\304\344"
             "Aa\306\346GgGgKkOoOo??j???Gg??Nn\305\345\306\346\330\370"
             "AaAaEeEeIiIiOoOoRrRrUuUuSsTt??Hh"
             "Nd??ZzAaEe\326\366\325\365OoOoYylntj??ACcLTs"
             "z??BUVEeJjQqRrYy"},
    {0x1E00, "AaBbBbBb\307\347DdDdDdDdDdEeEeEeEeEeFf"
             "GgHhHhHhHhHhIi\317\357KkKkKkLlLlLlLlMm"
             "MmMmNnNnNnNn\325\365\325\365OoOoPpPpRrRrRrRr"
             "SsSsSs\212\232SsTtTtTtTtUuUuUuUuUuVvVv"
             "WwWwWwWwWwXxXxYyZzZzZzhtwyasss??"
             "AaAa\302\342\302\342\302\342\302\342AaAaAaAaAaAaEeEeEe\312\352"
             "\312\352\312\352\312\352EeIiIiOoOo\324\364\324\364\324\364\324\364OoOoOoOo"
             "OoOoUuUuUuUuUuUuUuYyYyYyYy????Yy"},
};

/// What one letter cannot stand for.
struct Ersatz {
    char32_t von;      ///< first character of a run
    char32_t bis;      ///< last one
    const char* durch; ///< in Windows-1252
};

constexpr Ersatz kErsatz[] = {
    {0x0132, 0x0132, "IJ"},    {0x0133, 0x0133, "ij"},  {0x0149, 0x0149, "'n"},    {0x014A, 0x014A, "Ng"},
    {0x014B, 0x014B, "ng"},    {0x0195, 0x0195, "hv"},  {0x01C4, 0x01C4, "D\216"}, {0x01C5, 0x01C5, "D\236"},
    {0x01C6, 0x01C6, "d\236"}, {0x01C7, 0x01C7, "LJ"},  {0x01C8, 0x01C8, "Lj"},    {0x01C9, 0x01C9, "lj"},
    {0x01CA, 0x01CA, "NJ"},    {0x01CB, 0x01CB, "Nj"},  {0x01CC, 0x01CC, "nj"},    {0x01F1, 0x01F1, "DZ"},
    {0x01F2, 0x01F2, "Dz"},    {0x01F3, 0x01F3, "dz"},  {0x01F6, 0x01F6, "Hv"},    {0x02B9, 0x02B9, "'"},
    {0x02BA, 0x02BA, "\""},    {0x02BB, 0x02BD, "'"},   {0x1E9E, 0x1E9E, "SS"},    {0x2000, 0x200A, " "},
    {0x200B, 0x200F, ""},      {0x2010, 0x2012, "-"},   {0x2015, 0x2015, "\x97"},  {0x201B, 0x201B, "'"},
    {0x201F, 0x201F, "\""},    {0x2024, 0x2024, "."},   {0x2025, 0x2025, ".."},    {0x2027, 0x2027, "\xB7"},
    {0x2028, 0x2029, " "},     {0x202A, 0x202E, ""},    {0x202F, 0x202F, " "},     {0x2032, 0x2032, "'"},
    {0x2033, 0x2033, "\""},    {0x2034, 0x2034, "'''"}, {0x2035, 0x2035, "'"},     {0x2036, 0x2036, "\""},
    {0x2043, 0x2043, "-"},     {0x2044, 0x2044, "/"},   {0x205F, 0x205F, " "},     {0x2060, 0x2064, ""},
    {0x2066, 0x2069, ""},      {0x20BD, 0x20BD, "RUB"}, {0x2116, 0x2116, "Nr."},   {0x2190, 0x2190, "<-"},
    {0x2192, 0x2192, "->"},    {0x2212, 0x2212, "-"},   {0x2215, 0x2215, "/"},     {0x2217, 0x2217, "*"},
    {0x2219, 0x2219, "\xB7"},  {0x2260, 0x2260, "<>"},  {0x2264, 0x2264, "<="},    {0x2265, 0x2265, ">="},
    {0x3000, 0x3000, " "},     {0xFB00, 0xFB00, "ff"},  {0xFB01, 0xFB01, "fi"},    {0xFB02, 0xFB02, "fl"},
    {0xFB03, 0xFB03, "ffi"},   {0xFB04, 0xFB04, "ffl"}, {0xFB05, 0xFB06, "st"},    {0xFE00, 0xFE0F, ""},
    {0xFEFF, 0xFEFF, ""},
};

struct Verbindung {
    char32_t zeichen;     ///< combining mark
    const char* grund;    ///< letters that the code page has with it
    const char* ergebnis; ///< those, in the same order, in Windows-1252
};

constexpr Verbindung kVerbindungen[] = {
    {0x0300, "AEIOUaeiou", "\xC0\xC8\xCC\xD2\xD9\xE0\xE8\xEC\xF2\xF9"},
    {0x0301, "AEIOUYaeiouy", "\xC1\xC9\xCD\xD3\xDA\xDD\xE1\xE9\xED\xF3\xFA\xFD"},
    {0x0302, "AEIOUaeiou", "\xC2\xCA\xCE\xD4\xDB\xE2\xEA\xEE\xF4\xFB"},
    {0x0303, "ANOano", "\xC3\xD1\xD5\xE3\xF1\xF5"},
    {0x0308, "AEIOUYaeiouy", "\xC4\xCB\xCF\xD6\xDC\x9F\xE4\xEB\xEF\xF6\xFC\xFF"},
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

std::string_view ersatz_fuer(char32_t c) {
    for (const Lauf& lauf : kLaeufe) {
        if (c >= lauf.von && c - lauf.von < lauf.durch.size() && lauf.durch[c - lauf.von] != '?') {
            return lauf.durch.substr(c - lauf.von, 1);
        }
    }
    for (const Ersatz& e : kErsatz) {
        if (c >= e.von && c <= e.bis) {
            return e.durch;
        }
    }
    return c >= 0x0300 && c <= 0x036F ? "" : "?";
}

} // namespace

std::string_view aus_ansi(std::string_view bytes, std::string& puffer) {
    std::size_t i = ascii_lauf(bytes, 0);
    if (i == bytes.size()) {
        return bytes;
    }
    puffer.assign(bytes.substr(0, i));
    while (i < bytes.size()) {
        const auto c = static_cast<unsigned char>(bytes[i++]);
        utf8_anhaengen(puffer, c >= 0x80 && c < 0xA0 ? kHoch[c - 0x80U] : c);
        const std::size_t lauf = ascii_lauf(bytes, i);
        puffer.append(bytes.substr(i, lauf));
        i += lauf;
    }
    return puffer;
}

std::string aus_ansi(std::string_view bytes) {
    std::string puffer;
    return std::string(aus_ansi(bytes, puffer));
}

std::size_t ansi_anhaengen(std::string& ziel, std::string_view text) {
    const std::size_t anfang = ziel.size();
    std::size_t ersetzt = 0;
    std::size_t i = ascii_lauf(text, 0);
    ziel.append(text.substr(0, i));
    while (i < text.size()) {
        const auto [c, laenge] = utf8_zeichen(text, i);
        i += laenge;
        const int byte = byte_fuer(c);
        if (byte >= 0) {
            ziel += static_cast<char>(byte);
        } else if (ziel.size() == anfang || !verbinden(ziel, c)) {
            ziel += ersatz_fuer(c);
            ++ersetzt;
        }
        const std::size_t lauf = ascii_lauf(text, i);
        ziel.append(text.substr(i, lauf));
        i += lauf;
    }
    return ersetzt;
}

Ansi nach_ansi(std::string_view text) {
    Ansi ansi;
    ansi.ersetzt = ansi_anhaengen(ansi.bytes, text);
    return ansi;
}

} // namespace quittika
