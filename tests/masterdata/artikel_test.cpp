#include "masterdata/artikel.hpp"

#include "tests/artikelmodell.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <random>

namespace quittika {
namespace {

struct Artikelstand {
    Probenordner ordner;
    Programmverzeichnis verzeichnis{ordner.ordner()};
    Artikelzustand zustand{verzeichnis};
    Artikeltabelle ARTIKEL{zustand};

    std::string lesen(const std::string& bytes) {
        ordner.schreiben("Artikelliste.txt", bytes);
        return ARTIKEL.Artikelliste_einlesen(zustand.ArtikelPfad);
    }
};

TEST(Artikeltabelle, ZufaelligeDateienGegenEinModell) {
    constexpr const char* kStuecke[] = {"a",  "$\xA7$", "$\xA7$", "#*#", "12.5", "\x81\xFF", "\r",
                                        "\n", "\r\n",   "\r\n",   " ",   "$",    "EO",       "..."};
    std::mt19937 zufall(1);
    Artikelstand s;
    for (int lauf = 0; lauf < 400; ++lauf) {
        const int zeilen = lauf == 0 ? 11999 : lauf == 1 ? 12000 : lauf == 2 ? 12001 : 0;
        std::string bytes;
        for (int i = 0; i < zeilen; ++i) {
            bytes += "Artikel$\xA7$1.00$\xA7$" + std::to_string(i) + "$\xA7$\r\n";
        }
        for (auto i = zeilen > 0 ? 0 : zufall() % 60; i > 0; --i) {
            bytes += kStuecke[zufall() % std::size(kStuecke)];
        }
        const std::string antwort = s.lesen(bytes);
        ASSERT_EQ(Artikelbefund(s.ARTIKEL, bytes), "") << testing::PrintToString(bytes.substr(0, 300));
        ASSERT_EQ(antwort, zeilen >= 12000 ? "Artikel$§$1.00$§$11999$§$" : "FEHLER");
    }
}

TEST(Artikeltabelle, SuchtGenauUndVergisstWasVorherWar) {
    Artikelstand s;
    s.lesen(
        "A$\xA7$1.00$\xA7$x-\xFC$\xA7$\r\nB$\xA7$2.00$\xA7$X-\xFC$\xA7$\r\nC$\xA7$3.00$\xA7$x-\xFC$\xA7$\r\n"
        "D$\xA7$4.00$\xA7$$\xA7$\r\nxy\r\nE#*#5#*#e#*#\r\n");
    EXPECT_EQ(s.ARTIKEL.nBarcode_suchen("x-ü"), 1);
    EXPECT_EQ(s.ARTIKEL.nBarcode_suchen("X-ü"), 2);
    EXPECT_EQ(s.ARTIKEL.nBarcode_suchen("X-Ü"), 0);
    EXPECT_EQ(s.ARTIKEL.nBarcode_suchen(""), 0);
    EXPECT_EQ(s.ARTIKEL.nBarcode_suchen("e"), 6);
    EXPECT_EQ(s.ARTIKEL[6].Nummer, "0006");
    EXPECT_EQ(s.zustand.ArtikelTrenner, "#*#");
    s.zustand.ArtikelAuswahl = s.ARTIKEL[1].Zeile;
    s.zustand.ArtikelAuswahlAbgebrochen = true;
    std::filesystem::remove(s.ordner.pfad("Artikelliste.txt"));
    EXPECT_EQ(s.ARTIKEL.Artikelliste_einlesen(s.zustand.ArtikelPfad), "FEHLER");
    EXPECT_EQ(s.ARTIKEL.Lesefehler(), fehler::kDateiFehlt);
    EXPECT_EQ(s.ARTIKEL.Anzahl(), 0);
    EXPECT_EQ(s.ARTIKEL[1].Zeile, "EOF");
    EXPECT_EQ(s.ARTIKEL.nBarcode_suchen("e"), 0);
    EXPECT_EQ(s.zustand.ArtikelTrenner + s.zustand.ArtikelAuswahl, "");
    EXPECT_FALSE(s.zustand.ArtikelAuswahlAbgebrochen);
}

} // namespace
} // namespace quittika
