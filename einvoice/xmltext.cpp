#include "einvoice/xmltext.hpp"

#include "platform/text.hpp"
#include "platform/utf8.hpp"

namespace quittika {

namespace {

bool erlaubt(char32_t c) {
    constexpr char32_t kDel = 0x7F;
    constexpr char32_t kErstesDahinter = 0xA0;
    if (c == kKeinZeichen || (c & 0xFFFEU) == 0xFFFEU || (c >= 0xFDD0 && c <= 0xFDEF)) {
        return false;
    }
    return c == '\n' || (c >= ' ' && c < kDel) || c >= kErstesDahinter;
}

} // namespace

std::string XML_TEXT(std::string_view text) {
    std::string ergebnis;
    ergebnis.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const Utf8Zeichen zeichen = utf8_zeichen(text, i);
        if (zeichen.wert == '\t') {
            ergebnis += ' ';
        } else if (erlaubt(zeichen.wert)) {
            ergebnis += text.substr(i, zeichen.laenge);
        }
        i += zeichen.laenge;
    }
    return gekuerzt(ergebnis);
}

} // namespace quittika
