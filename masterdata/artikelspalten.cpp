#include "masterdata/artikelspalten.hpp"

#include "invoice/compressor.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"

namespace quittika {

std::string fillup(std::string_view text, int width, std::string_view fillstring) {
    std::string fuellung;
    for (int i = static_cast<int>(zeichenzahl(text)); i <= width; ++i) {
        fuellung += fillstring;
    }
    return fuellung;
}

std::string COMPRESSOR_artikel(int art, std::string_view text) {
    constexpr int kIndex = 1;
    constexpr int kNummer = 5;
    constexpr int kBreiteNummer = 33;
    if (art == kIndex) {
        const auto index = double_versuch(text);
        return index ? format_zahl(*index, "0000") : leerzeichen(3);
    }
    if (art == kNummer) {
        return fillup(text, kBreiteNummer - 1, " ").append(text);
    }
    return COMPRESSOR(art, text);
}

std::string ARTIKELREIHE(const Artikel& artikel) {
    return COMPRESSOR_artikel(1, artikel.Nummer + ".") + COMPRESSOR_artikel(3, artikel.Leistung) +
           COMPRESSOR_artikel(4, artikel.Preis) + COMPRESSOR_artikel(5, artikel.Barcode);
}

} // namespace quittika
