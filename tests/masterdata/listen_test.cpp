#include "masterdata/artikelspalten.hpp"
#include "masterdata/artikelverwaltung.hpp"
#include "masterdata/kundenverwaltung.hpp"
#include "platform/text.hpp"
#include "tests/pruefstand.hpp"
#include "tests/stoerung.hpp"

#include <gtest/gtest.h>

#include <random>
#include <utility>

#include <sys/wait.h>
#include <unistd.h>

namespace quittika {
namespace {

/// Both windows over the files of a folder of their own.
struct Listenstand {
    Pruefstand p;
    Artikelzustand zustand{p.verzeichnis};
    Artikeltabelle ARTIKEL{zustand};
    Form_Kundenverwaltung kundenform;
    Kundenverwaltung kunden{kundenform, p.form1, zustand, p.verzeichnis, p.dialoge};
    Form_Artikelverwaltung artikelform;
    Artikelverwaltung artikel{
        artikelform, Artikelverwaltung::Zweck::Beistellen, p.form1, zustand, ARTIKEL, p.verzeichnis,
        p.dialoge};

    std::string kunden_laden(const std::string& bytes) {
        p.ordner.schreiben("Kundenliste.txt", bytes);
        return kunden.Kundenliste_laden(p.verzeichnis.pfad("\\Kundenliste.txt"));
    }
};

using Zeilen = std::vector<std::string>;

/// The lines of a file as bytes, found one byte after the other.
Zeilen zeilen_von(const std::string& bytes) {
    Zeilen zeilen;
    std::string zeile;
    for (const char c : bytes) {
        if (c != '\n') {
            zeile += c;
            continue;
        }
        if (!zeile.empty() && zeile.back() == '\r') {
            zeile.pop_back();
        }
        zeilen.push_back(std::exchange(zeile, {}));
    }
    if (!zeile.empty()) {
        zeilen.push_back(zeile);
    }
    return zeilen;
}

std::string datei_aus(const Zeilen& zeilen, std::size_t ohne) {
    std::string bytes;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        bytes += i == ohne ? "" : zeilen[i] + "\r\n";
    }
    return bytes;
}

/// Some file: few kinds of bytes, so that separators and line ends of all kinds come about.
std::string zufallsdatei(std::mt19937& zufall, std::size_t zeilen, std::string_view trenner) {
    constexpr std::string_view kBytes("ab.$\xA7#*\x81\x9D\xFC\xDF\r \0", 15);
    const auto wahl = [&zufall](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(zufall);
    };
    std::string bytes;
    for (std::size_t i = 0; i < zeilen; ++i) {
        for (std::size_t teile = wahl(7); teile > 0; --teile) {
            for (std::size_t n = wahl(6); n > 0; --n) {
                bytes += kBytes[wahl(kBytes.size())];
            }
            bytes += trenner;
        }
        bytes += wahl(4) == 0 ? "\n" : "\r\n";
    }
    if (wahl(2) == 0 && !bytes.empty()) {
        bytes.pop_back();
    }
    return bytes;
}

TEST(Listen, KundenAusZufaelligenDateien) {
    std::mt19937 zufall(1);
    for (const std::size_t zeilen : {0, 1, 2, 9, 40, 6999, 7000, 7001, 7150}) {
        SCOPED_TRACE(zeilen);
        Listenstand s;
        const std::string bytes = zufallsdatei(zufall, zeilen, "...");
        Zeilen model = zeilen_von(bytes);
        model.resize(std::min<std::size_t>(model.size(), 7000));
        const std::string letzte = s.kunden_laden(bytes);
        EXPECT_EQ(letzte, model.size() == 7000 ? aus_ansi(model.back()) : "FEHLER");
        ASSERT_EQ(s.kundenform.List_Kundenverwaltung.ListCount(), model.size());

        const std::size_t weg = model.empty() ? 0 : zufall() % model.size();
        s.kundenform.List_Kundenverwaltung.ListIndex = model.empty() ? -1 : static_cast<int>(weg);
        s.kundenform.Command_delete.Click();
        EXPECT_EQ(s.p.ordner.lesen("Kundenliste.txt"), datei_aus(model, weg));
        EXPECT_EQ(s.p.ordner.lesen("BACKUP_Kundenliste.txt"), bytes);
        EXPECT_EQ(std::filesystem::exists(s.p.ordner.pfad("Kundenliste.txt")), model.size() > 1);
    }
}

TEST(Listen, FelderAusZufaelligenKundenzeilen) {
    std::mt19937 zufall(2);
    Pruefstand p;
    for (int i = 0; i < 500; ++i) {
        const Zeilen zeilen = zeilen_von(zufallsdatei(zufall, 1, "..."));
        const std::string zeile = zeilen.empty() ? "" : zeilen[0];
        TextBox* const felder[] = {&p.form1.Text_Kunde_1, &p.form1.Text_Kunde_2, &p.form1.Text_Kunde_3,
                                   &p.form1.Text_Kunde_4, &p.form1.Text_KundennrK};
        Zeilen erwartet;
        for (std::size_t ort = 0; erwartet.size() < 5 && !zeile.empty() && ort != std::string::npos;) {
            const std::size_t ende = zeile.find("...", ort);
            erwartet.push_back(zeile.substr(ort, ende == std::string::npos ? ende : ende - ort));
            ort = ende == std::string::npos ? ende : ende + 3;
        }
        erwartet.resize(5, "unverändert");
        for (TextBox* feld : felder) {
            feld->Text = "unverändert";
        }
        LISTOK_KD_List(p.form1, aus_ansi(zeile));
        for (std::size_t n = 0; n < 5; ++n) {
            const bool bleibt = erwartet[n] == "unverändert";
            EXPECT_EQ(felder[n]->Text(), bleibt ? erwartet[n] : aus_ansi(erwartet[n])) << zeile << " " << n;
        }
    }
}

TEST(Listen, ArtikelAusZufaelligenDateien) {
    std::mt19937 zufall(3);
    for (const std::size_t zeilen : {0, 1, 2, 30, 11999, 12000, 12001}) {
        SCOPED_TRACE(zeilen);
        Listenstand s;
        std::string bytes = zufallsdatei(zufall, zeilen, zeilen % 2 == 0 ? "$\xA7$" : "#*#");
        Zeilen model = zeilen_von(bytes);
        model.resize(std::min<std::size_t>(model.size(), 12000));
        s.p.ordner.schreiben("Artikelliste.txt", bytes);
        s.artikel.Artikelliste_fuellen();
        ListBox& liste = s.artikelform.List_Artikelnverwaltung;
        ASSERT_EQ(liste.ListCount(), model.size());
        const std::size_t weg = model.empty() ? 0 : zufall() % model.size();
        liste.ListIndex = model.empty() ? -1 : static_cast<int>(weg);
        s.artikelform.Command_delete.Click();
        EXPECT_EQ(s.p.ordner.lesen("Artikelliste.txt"), datei_aus(model, weg));
        EXPECT_EQ(s.p.ordner.lesen("BACKUP_Artikelliste.txt"), bytes);
        EXPECT_EQ(liste.ListIndex(), model.size() > 1 ? 0 : -1);
    }
}

TEST(Listen, GestoertesLoeschenLaesstDieAlteOderDieNeueListe) {
    const std::string alt = "eins...\r\nzwei\x81...\r\ndrei...\r\n";
    const std::string neu = "eins...\r\ndrei...\r\n";
    for (const char* aufruf : {"open", "read", "write", "fsync", "rename", "close"}) {
        for (int beim = 1; beim <= 6; ++beim) {
            for (const int art : {Stoerung::kTod, ENOSPC}) {
                SCOPED_TRACE(std::string(aufruf) + " " + std::to_string(beim));
                Listenstand s;
                s.kunden_laden(alt);
                s.p.ordner.schreiben("BACKUP_Kundenliste.txt", "davor");
                s.kundenform.List_Kundenverwaltung.ListIndex = 1;
                const Stoerung stoerung(aufruf, beim, art);
                const pid_t kind = fork();
                if (kind == 0) {
                    s.kundenform.Command_delete.Click();
                    const bool geloescht = s.kundenform.List_Kundenverwaltung.ListCount() == 2;
                    _exit(geloescht == (s.p.ordner.lesen("Kundenliste.txt") == neu) ? 0 : 1);
                }
                int ende = 0;
                waitpid(kind, &ende, 0);
                EXPECT_TRUE(art == Stoerung::kTod || ende == 0) << "the list shows what the file holds";
                const std::string liste = s.p.ordner.lesen("Kundenliste.txt");
                const std::string sicherung = s.p.ordner.lesen("BACKUP_Kundenliste.txt");
                EXPECT_TRUE(liste == alt || liste == neu) << liste;
                EXPECT_TRUE(sicherung == "davor" || sicherung == alt) << sicherung;
            }
        }
    }
}

TEST(Listen, SucheLiestUmlauteInJederSchreibweise) {
    const struct {
        const char* gesucht;
        std::vector<int> treffer; ///< one after the other, then again from the top
    } faelle[] = {{"muell", {0, 3}},  {"MÜLL", {0, 3}},    {"strasse", {1, 2}},
                  {"STRAßE", {1, 2}}, {"école", {4}},      {"ÉCOLE", {4}},
                  {"3 × 4", {5}},     {"ae", {6}},         {"...", {0, 1, 2, 3, 4, 5, 6}},
                  {"e\n", {}},        {"Nichts", {-1, -1}}};
    Listenstand s;
    ListBox& liste = s.kundenform.List_Kundenverwaltung;
    liste.assign(
        {"Müller...", "Große Straße...", "STRASSE...", "MUELLER...", "École...", "3 × 4 ÷ 2...", "Bär..."});
    TextBox& feld = s.kundenform.Text_suchen;
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.gesucht);
        feld.Text = fall.gesucht;
        for (std::size_t i = 0; i < 2 * fall.treffer.size(); ++i) {
            EXPECT_EQ(liste.ListIndex(), fall.treffer[i % fall.treffer.size()]);
            s.kundenform.Command_weitersuchen.Click();
        }
    }
    liste.RemoveItem(0);
    feld.Text = "müller";
    EXPECT_EQ(liste.ListIndex(), 2) << "the list has changed since";
}

TEST(Listen, SpaltenDerArtikel) {
    const struct {
        int art;
        const char* text;
        std::size_t breite;
        std::size_t davor;
    } faelle[] = {{1, "0007.", 4, 0}, {1, "x", 3, 3},    {2, "1,5", 9, 6},     {3, "abc", 76, 36},
                  {3, "ä", 76, 37},   {4, "1.50", 6, 2}, {4, "1234567", 7, 0}, {5, "ü", 33, 32},
                  {5, "", 33, 33},    {6, "x", 0, 0}};
    for (const auto& fall : faelle) {
        SCOPED_TRACE(std::to_string(fall.art) + fall.text);
        const std::string spalte = COMPRESSOR_artikel(fall.art, fall.text);
        EXPECT_EQ(zeichenzahl(spalte), fall.breite);
        EXPECT_EQ(std::min(spalte.find_first_not_of(' '), spalte.size()), fall.davor);
    }
    EXPECT_EQ(COMPRESSOR_artikel(5, std::string(40, 'x')), std::string(40, 'x'));
    EXPECT_EQ(fillup("ä", 3, "-="), "-=-=-=");
    EXPECT_EQ(fillup("abc", 3, "-"), "-");
    EXPECT_EQ(fillup("abcd", 3, "-"), "");
}

TEST(Listen, EinAnderswoNeuGelesenerArtikelWirdNichtVerwechselt) {
    Listenstand s;
    const std::string pfad =
        s.p.ordner.schreiben("Artikelliste.txt", "a$\xA7$1$\xA7$1$\xA7$\r\nb$\xA7$2$\xA7$2$\xA7$\r\n");
    s.artikel.Artikelliste_fuellen();
    s.artikelform.List_Artikelnverwaltung.ListIndex = 1;
    EXPECT_TRUE(s.artikel.Gezogen("b"));
    const std::string neu = "b$\xA7$2$\xA7$2$\xA7$\r\nc$\xA7$3$\xA7$3$\xA7$\r\n";
    s.p.ordner.schreiben("Artikelliste.txt", neu);
    s.ARTIKEL.Artikelliste_einlesen(pfad);
    EXPECT_FALSE(s.artikel.Gezogen("c"));
    s.artikelform.Command_delete.Click();
    EXPECT_EQ(s.p.ordner.lesen("Artikelliste.txt"), neu);
    EXPECT_EQ(s.artikelform.List_Artikelnverwaltung.ListCount(), 2);
}

TEST(Listen, SuchenVergleichtFelderDerEintraege) {
    Listenstand s;
    s.artikelform.List_Artikelnverwaltung.assign({"a$§$b$§$", "c$§$d$§$"});
    s.zustand.ArtikelTrenner = "$§$";
    EXPECT_TRUE(s.artikel.suchen("d", 1));
    EXPECT_EQ(s.artikelform.List_Artikelnverwaltung.ListIndex(), 1);
    EXPECT_FALSE(s.artikel.suchen("d", 0));
}

} // namespace
} // namespace quittika
