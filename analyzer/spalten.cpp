#include "analyzer/spalten.hpp"

#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr std::string_view kGekuerzt = "..";

std::string AUF_BREITE(std::string_view text, std::size_t breite) {
    if (zeichenzahl(text) <= breite) {
        return std::string(text);
    }
    return links(text, breite - std::min(breite, kGekuerzt.size())) + std::string(kGekuerzt);
}

std::string MITTIG(std::string text, std::size_t breite) {
    text += leerzeichen(zeichenzahl(text) % 2);
    const std::size_t rand = (breite - std::min(breite, zeichenzahl(text))) / 2;
    return leerzeichen(rand) + text + leerzeichen(rand);
}

} // namespace

std::string SPALTE_FORMAT(int art, std::string_view text, std::size_t breite) {
    const std::string passend = AUF_BREITE(text, breite);
    switch (art) {
    case 0:
    case 5:
        return linksbuendig(passend, breite);
    case 1: {
        const auto zahl = double_versuch(passend);
        return zahl ? format_zahl(*zahl, "000") : leerzeichen(breite);
    }
    case 2:
    case 4:
        return rechtsbuendig(passend, breite);
    case 3:
        return MITTIG(passend, breite);
    default:
        return {};
    }
}

} // namespace quittika
