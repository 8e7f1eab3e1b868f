#include "platform/textdatei.hpp"
#include "tests/artikelmodell.hpp"
#include "tests/fuzz/verlangen.hpp"
#include "tests/pruefstand.hpp"

#include <cstdint>

namespace quittika {
namespace {

void artikel_pruefen(const std::string& bytes) {
    static const Probenordner ordner;
    static Artikelzustand zustand{Programmverzeichnis(ordner.ordner())};
    static Artikeltabelle ARTIKEL{zustand};
    ordner.schreiben("Artikelliste.txt", bytes);
    ARTIKEL.Artikelliste_einlesen(zustand.ArtikelPfad);
    verlangen(Artikelbefund(ARTIKEL, bytes).empty());
    const std::string_view barcode = ARTIKEL.Anzahl() > 0 ? ARTIKEL[ARTIKEL.Anzahl()].Barcode : "";
    const int gefunden = ARTIKEL.nBarcode_suchen(barcode);
    verlangen(barcode.empty() ? gefunden == 0 : gefunden > 0 && ARTIKEL[gefunden].Barcode == barcode);
}

/// Each line as one of the customer list.
void kunden_pruefen(const std::string& bytes) {
    constexpr int kFelder = 6;
    zeilen_durchgehen(bytes, [](std::string_view zeile) {
        for (int i = 0; i < kFelder; ++i) {
            verlangen(FELD_AUS_ZEILE(zeile, "...", i) == Modellfeld(std::string(zeile), "...", i));
        }
        return true;
    });
}

} // namespace
} // namespace quittika

/// Whatever bytes the lists of articles and customers hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zeiger, std::size_t anzahl) {
    const std::string bytes(reinterpret_cast<const char*>(zeiger), anzahl);
    quittika::artikel_pruefen(bytes);
    quittika::kunden_pruefen(bytes);
    return 0;
}
