#include "analyzer/spalten.hpp"

#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr int kLinks = 0;
constexpr int kRechts = 2;

struct Spalte {
    std::size_t quelle;
    int art;
    std::size_t breite;
    std::size_t abstand = 0; ///< blanks behind it
};

constexpr std::array<Spalte, 11> kSpalten{{{rohdatum::kDatum, kLinks, 12},
                                           {rohdatum::kNummer, kRechts, 21, 1},
                                           {rohdatum::kKundennummer, kLinks, 23, 1},
                                           {rohdatum::kKundenname, kLinks, 17},
                                           {rohdatum::kVersendet, kLinks, 7},
                                           {rohdatum::kAbgemahnt, kLinks, 5},
                                           {rohdatum::kMahnstufe, kLinks, 3},
                                           {rohdatum::kBezahlt, kLinks, 5},
                                           {rohdatum::kNetto, kRechts, 11},
                                           {rohdatum::kMwSt, kRechts, 11},
                                           {rohdatum::kBrutto, kRechts, 11}}};

constexpr std::string_view kGekuerzt = "..";

bool ist_ascii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

std::string AUF_BREITE(std::string_view text, std::size_t breite) {
    if (zeichenzahl(text) <= breite) {
        return std::string(text);
    }
    return links(text, breite - std::min(breite, kGekuerzt.size())) + std::string(kGekuerzt);
}

/// The same as `SPALTE_FORMAT` behind what stands in `zeile`.
void SPALTE_ANHAENGEN(std::string& zeile, const Spalte& spalte, std::string_view text) {
    if (text.size() > spalte.breite || !ist_ascii(text)) {
        zeile += SPALTE_FORMAT(spalte.art, text, spalte.breite);
        return;
    }
    const std::size_t rest = spalte.breite - text.size(); // most texts need no more than blanks
    zeile.append(spalte.art == kRechts ? rest : 0, ' ');
    zeile += text;
    zeile.append(spalte.art == kRechts ? 0 : rest, ' ');
}

std::string MITTIG(std::string text, std::size_t breite) {
    text += leerzeichen(zeichenzahl(text) % 2);
    const std::size_t rand = (breite - std::min(breite, zeichenzahl(text))) / 2;
    return leerzeichen(rand) + text + leerzeichen(rand);
}

} // namespace

const std::array<const char*, 2> kTabellenkopf{
    "Datum         Rechnungsnr.        Kundennr.               Kundenname      ver-    abge-  be-      "
    "Ges.betrag    MwSt  Ges.betrag",
    "                                                                          sendet  mahnt  zahlt      "
    "(Netto)             (Brutto) "};

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

std::string TABELLENZEILE(const Rohdaten& werte) {
    constexpr std::size_t kBreite = 135; // bytes: 128 characters, a few of them umlauts
    const std::string nummer = werte[rohdatum::kNummer] + werte[rohdatum::kNummerzusatz];
    std::string zeile;
    zeile.reserve(kBreite);
    for (const Spalte& spalte : kSpalten) {
        const std::string& text = werte.at(spalte.quelle);
        SPALTE_ANHAENGEN(zeile, spalte, spalte.quelle == rohdatum::kNummer ? nummer : text);
        zeile.append(spalte.abstand, ' ');
    }
    return zeile;
}

} // namespace quittika
