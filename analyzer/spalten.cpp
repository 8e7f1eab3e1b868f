#include "analyzer/spalten.hpp"

#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>

namespace quittika {

namespace {

struct Spalte {
    std::size_t quelle;
    int art;
    std::size_t breite;
    std::size_t abstand = 0; ///< blanks behind it
};

constexpr std::array<Spalte, 11> kSpalten{{{rohdatum::kDatum, 0, 12},
                                           {rohdatum::kNummer, 2, 21, 1},
                                           {rohdatum::kKundennummer, 0, 23, 1},
                                           {rohdatum::kKundenname, 0, 17},
                                           {rohdatum::kVersendet, 0, 7},
                                           {rohdatum::kAbgemahnt, 0, 5},
                                           {rohdatum::kMahnstufe, 0, 3},
                                           {rohdatum::kBezahlt, 0, 5},
                                           {rohdatum::kNetto, 2, 11},
                                           {rohdatum::kMwSt, 2, 11},
                                           {rohdatum::kBrutto, 2, 11}}};

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
    std::string zeile;
    for (const Spalte& spalte : kSpalten) {
        const std::string& text = werte.at(spalte.quelle);
        zeile += spalte.quelle == rohdatum::kNummer
                     ? SPALTE_FORMAT(spalte.art, text + werte[rohdatum::kNummerzusatz], spalte.breite)
                     : SPALTE_FORMAT(spalte.art, text, spalte.breite);
        zeile.append(spalte.abstand, ' ');
    }
    return zeile;
}

} // namespace quittika
