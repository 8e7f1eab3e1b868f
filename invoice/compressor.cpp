#include "invoice/compressor.hpp"

#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <array>

namespace quittika {

namespace {

constexpr std::size_t kBreiteLeistung = 76;
constexpr std::array<std::size_t, 6> kBreite{0, 3, 9, kBreiteLeistung, 6, 10};

std::string zentriert(std::string_view text) {
    const std::size_t laenge = zeichenzahl(text);
    const std::size_t gerade = laenge + laenge % 2;
    const std::size_t rand = gerade < kBreiteLeistung ? (kBreiteLeistung - gerade) / 2 : 0;
    std::string ergebnis;
    ergebnis.reserve(text.size() + 1 + 2 * rand);
    ergebnis.append(rand, ' ').append(text).append(rand + laenge % 2, ' ');
    return ergebnis;
}

std::string rechts_in(std::string_view text, std::size_t breite) {
    const std::size_t laenge = zeichenzahl(text);
    std::string ergebnis(laenge < breite ? breite - laenge : 0, ' ');
    return ergebnis.append(text);
}

} // namespace

std::string COMPRESSOR(int art, std::string_view text) {
    switch (art) {
    case 1: {
        const auto nummer = double_versuch(text);
        return nummer ? format_zahl(*nummer, "000") : std::string(kBreite[1], ' ');
    }
    case 2:
    case 4:
    case 5:
        return rechts_in(text, kBreite.at(static_cast<std::size_t>(art)));
    case 3:
        return zentriert(text);
    default:
        return {};
    }
}

} // namespace quittika
