#include "invoice/compressor.hpp"

#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <array>

namespace quittika {

namespace {

constexpr std::size_t kBreiteLeistung = 76;
constexpr std::array<std::size_t, 6> kBreite{0, 3, 9, kBreiteLeistung, 6, 10};

void zentriert_anfuegen(std::string& zeile, std::string_view text) {
    const std::size_t laenge = zeichenzahl(text);
    const std::size_t gerade = laenge + laenge % 2;
    const std::size_t rand = gerade < kBreiteLeistung ? (kBreiteLeistung - gerade) / 2 : 0;
    zeile.append(rand, ' ').append(text).append(rand + laenge % 2, ' ');
}

void rechts_anfuegen(std::string& zeile, std::string_view text, std::size_t breite) {
    const std::size_t laenge = zeichenzahl(text);
    zeile.append(laenge < breite ? breite - laenge : 0, ' ').append(text);
}

} // namespace

void COMPRESSOR_ANFUEGEN(std::string& zeile, int art, std::string_view text) {
    switch (art) {
    case 1:
        if (const auto nummer = double_versuch(text)) {
            zeile += format_zahl(*nummer, "000");
        } else {
            zeile.append(kBreite[1], ' ');
        }
        break;
    case 2:
    case 4:
    case 5:
        rechts_anfuegen(zeile, text, kBreite.at(static_cast<std::size_t>(art)));
        break;
    case 3:
        zentriert_anfuegen(zeile, text);
        break;
    default:
        break;
    }
}

std::string COMPRESSOR(int art, std::string_view text) {
    std::string spalte;
    COMPRESSOR_ANFUEGEN(spalte, art, text);
    return spalte;
}

} // namespace quittika
