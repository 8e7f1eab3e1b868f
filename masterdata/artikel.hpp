#pragma once

#include "platform/verzeichnis.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// What the main window knows of the articles.
struct Artikelzustand {
    explicit Artikelzustand(const Programmverzeichnis& verzeichnis)
        : ArtikelVerzeichnis(verzeichnis.ordner()), ArtikelPfad(verzeichnis.pfad(ArtikelDateiname)) {}

    /// Forgets what an earlier reading or an earlier window left: separator and choice.
    void leeren() {
        ArtikelTrenner.clear();
        ArtikelAuswahl.clear();
        ArtikelAuswahlAbgebrochen = false;
    }

    std::string ArtikelVerzeichnis; ///< folder of the article file
    std::string ArtikelDateiname = "\\Artikelliste.txt";
    std::string ArtikelPfad;
    std::string ArtikelTrenner; ///< separator of the line handled last
    std::string ArtikelAuswahl; ///< line chosen in the window
    bool ArtikelAuswahlAbgebrochen = false;
};

namespace artikelzeile {
inline constexpr const char* kTrenner = "$§$"; ///< behind every field of a line that the program writes
inline constexpr const char* kEnde = "EOF";    ///< `Zeile` of the record behind the last article
inline constexpr const char* kGeloescht = "this_is_an_invalid_line"; ///< `Zeile` of a deleted article
} // namespace artikelzeile

/// One article. The texts belong to the table.
struct Artikel {
    std::string_view Zeile; ///< as it stands in the file
    std::string Nummer;     ///< the index, "0000"
    std::string_view Leistung;
    std::string_view Preis;
    std::string_view Barcode;
    std::string_view Trenner; ///< last three characters of the line, the whole of a shorter one
};

/// The table `ARTIKEL`: the article list as it was read last, at most 12000 articles, counted from 1.
class Artikeltabelle {
public:
    static constexpr int kHoechstens = 12000;

    explicit Artikeltabelle(Artikelzustand& zustand);
    Artikeltabelle(const Artikeltabelle&) = delete;
    Artikeltabelle& operator=(const Artikeltabelle&) = delete;

    /// Reads the list anew; what stood here before and what was chosen of it is forgotten. A file that cannot
    /// be read is an empty list (`Lesefehler`). A line "EOF" ends the list, lines behind the 12000th are not
    /// seen. A field that a line does not have is "ERROR", those of a line below three characters are empty.
    /// Returns "FEHLER" at the end of the file, else the last line.
    std::string Artikelliste_einlesen(const std::string& pfad);
    /// Number of the error that the last reading met, 0 for none.
    int Lesefehler() const { return lesefehler_; }

    /// The first article with this number, compared exactly; 0 when there is none, and for an empty one.
    int nBarcode_suchen(std::string_view barcode) const;

    int Anzahl() const { return anzahl_; }
    /// Record `index`: 0 is nobody's, 1 to `Anzahl()` are the articles; behind them is "EOF" where there is
    /// room.
    Artikel& operator[](int index) { return saetze_.at(static_cast<std::size_t>(index)); }
    const Artikel& operator[](int index) const { return saetze_.at(static_cast<std::size_t>(index)); }

private:
    void leeren();
    void text_lesen(const std::string& pfad);
    void ende_eintragen();

    Artikelzustand& zustand_;
    std::string text_; ///< the whole file, which the records look into
    std::vector<Artikel> saetze_;
    int anzahl_ = 0;
    int lesefehler_ = 0;
};

/// The record of one line, without a number.
Artikel ARTIKEL_AUS_ZEILE(std::string_view zeile);

} // namespace quittika
