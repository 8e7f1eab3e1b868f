#include "masterdata/artikel.hpp"

#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

constexpr int kTrennerlaenge = 3; ///< characters

/// The index, "0000".
std::string NUMMER(int index) {
    std::string ziffern = std::to_string(index);
    return ziffern.size() < 4 ? ziffern.insert(0, 4 - ziffern.size(), '0') : ziffern;
}

/// The last three characters of a line; nothing where it has fewer.
std::string_view letzte_drei(std::string_view zeile) {
    int zeichen = 0;
    for (std::size_t i = zeile.size(); i > 0; --i) {
        const bool folgebyte = (static_cast<unsigned char>(zeile[i - 1]) & 0xC0U) == 0x80U;
        zeichen += folgebyte ? 0 : 1;
        if (zeichen == kTrennerlaenge) {
            return zeile.substr(i - 1);
        }
    }
    return {};
}

} // namespace

Artikel ARTIKEL_AUS_ZEILE(std::string_view zeile) {
    const std::string_view trenner = letzte_drei(zeile);
    if (trenner.empty()) {
        return {zeile, {}, {}, {}, {}, zeile};
    }
    return {zeile,
            {},
            FELD_AUS_ZEILE(zeile, trenner, 0),
            FELD_AUS_ZEILE(zeile, trenner, 1),
            FELD_AUS_ZEILE(zeile, trenner, 2),
            trenner};
}

Artikeltabelle::Artikeltabelle(Artikelzustand& zustand) : zustand_(zustand) {
    leeren();
}

void Artikeltabelle::leeren() {
    zustand_.leeren();
    anzahl_ = 0;
    saetze_.assign(1, {});
    ende_eintragen();
}

std::string Artikeltabelle::Artikelliste_einlesen(const std::string& pfad) {
    leeren();
    text_lesen(pfad);
    saetze_.pop_back();
    zeilen_teilen(text_, [this](std::string_view zeile) {
        if (anzahl_ == kHoechstens || zeile == artikelzeile::kEnde) {
            return false;
        }
        saetze_.push_back(ARTIKEL_AUS_ZEILE(zeile));
        saetze_.back().Nummer = NUMMER(++anzahl_);
        return true;
    });
    zustand_.ArtikelTrenner = saetze_.back().Trenner;
    if (anzahl_ == kHoechstens) {
        return std::string(saetze_.back().Zeile);
    }
    ende_eintragen();
    return "FEHLER";
}

void Artikeltabelle::ende_eintragen() {
    saetze_.push_back({artikelzeile::kEnde, NUMMER(anzahl_ + 1), {}, {}, {}, {}});
}

void Artikeltabelle::text_lesen(const std::string& pfad) {
    std::string bytes;
    lesefehler_ = 0;
    try {
        bytes = bytes_lesen(pfad);
    } catch (const Laufzeitfehler& f) {
        lesefehler_ = f.nummer();
    }
    text_.clear();
    if (aus_ansi(bytes, text_).data() == bytes.data()) {
        text_ = std::move(bytes);
    }
}

int Artikeltabelle::nBarcode_suchen(std::string_view barcode) const {
    if (barcode.empty()) {
        return 0;
    }
    const auto gefunden = std::find_if(saetze_.begin(), saetze_.end(),
                                       [barcode](const Artikel& a) { return a.Barcode == barcode; });
    return gefunden == saetze_.end() ? 0 : static_cast<int>(gefunden - saetze_.begin());
}

} // namespace quittika
