#include "platform/textdatei.hpp"

#include "platform/datei.hpp"
#include "platform/verzeichnis.hpp"
#include "tests/ohne_vorrechte.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace quittika {
namespace {

int lesefehler(const std::string& pfad) {
    try {
        zeilen_lesen(pfad);
    } catch (const Laufzeitfehler& f) {
        return f.nummer();
    }
    return 0;
}

int schreibfehler(const std::string& pfad) {
    try {
        zeilen_ersetzen(pfad, {"neu"});
    } catch (const Laufzeitfehler& f) {
        return f.nummer();
    }
    return 0;
}

TEST(Textdatei, JedesZeilenendeWirdGelesen) {
    const Probenordner o;
    o.schreiben("a.txt", "eins\r\nzwei\nd\rei\n\r\n" + std::string("vier\0f\xFCnf", 9));
    const auto zeilen = zeilen_lesen(o.pfad("a.txt"));
    ASSERT_EQ(zeilen.size(), 5U);
    EXPECT_EQ(zeilen[2], "d\rei");
    EXPECT_EQ(zeilen[3], "");
    EXPECT_EQ(zeilen[4], std::string("vier\0fünf", 10));
    EXPECT_EQ(zeilen_lesen(o.pfad("a.txt"), 2).size(), 2U);
    int gezaehlt = 0;
    zeilen_durchgehen(bytes_lesen(o.pfad("a.txt")), [&](std::string_view) { return ++gezaehlt < 3; });
    EXPECT_EQ(gezaehlt, 3);
    zeilen_ersetzen(o.pfad("b.txt"), zeilen);
    EXPECT_EQ(zeilen_lesen(o.pfad("b.txt")), zeilen);
}

TEST(Textdatei, FehlerHabenIhreNummer) {
    const Probenordner o;
    std::filesystem::create_directory(o.pfad("ordner"));
    EXPECT_EQ(lesefehler(o.pfad("fehlt")), fehler::kDateiFehlt);
    EXPECT_EQ(lesefehler(o.pfad("kein/ordner")), fehler::kPfadFehlt);
    EXPECT_EQ(lesefehler(o.pfad("ordner")), fehler::kPfadZugriff);
    ASSERT_EQ(mkfifo(o.pfad("rohr").c_str(), 0600), 0);
    EXPECT_EQ(lesefehler(o.pfad("rohr")), fehler::kPfadZugriff) << "a pipe must not hold the program";
    EXPECT_EQ(lesefehler("/dev/zero"), fehler::kPfadZugriff);
    EXPECT_EQ(schreibfehler(o.pfad("ordner")), fehler::kPfadZugriff);
    EXPECT_EQ(schreibfehler(o.pfad("kein/ordner")), fehler::kPfadFehlt);
    EXPECT_EQ(schreibfehler("/dev/full"), fehler::kDatentraegerVoll);
    EXPECT_EQ(ZEILE_ANHAENGEN("/dev/full", "x").fehlernummer, fehler::kDatentraegerVoll);
}

TEST(Textdatei, GesperrterOrdnerLaesstDasAlteStehen) {
    const Probenordner o;
    o.schreiben("a.txt", "alt\r\n");
    {
        const OhneVorrechte niemand(o.ordner());
        chmod(o.ordner().c_str(), 0500);
        EXPECT_EQ(schreibfehler(o.pfad("a.txt")), fehler::kZugriffVerweigert);
        EXPECT_EQ(schreibfehler(o.pfad("b.txt")), fehler::kZugriffVerweigert);
        chmod(o.ordner().c_str(), 0700);
    }
    EXPECT_EQ(o.lesen("a.txt"), "alt\r\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(o.ordner()), {}), 1)
        << "nothing is left over";
}

TEST(Textdatei, ErsetzenBehaeltRechteUndFolgtVerweisen) {
    const Probenordner o;
    o.schreiben("echt.txt", "alt");
    chmod(o.pfad("echt.txt").c_str(), 0640);
    std::filesystem::create_symlink(o.pfad("echt.txt"), o.pfad("verweis.txt"));
    EXPECT_EQ(zeilen_ersetzen(o.pfad("verweis.txt"), {"neu"}), 0U);
    EXPECT_TRUE(std::filesystem::is_symlink(o.pfad("verweis.txt")));
    EXPECT_EQ(o.lesen("echt.txt"), "neu\r\n");
    struct stat auskunft {};
    ASSERT_EQ(stat(o.pfad("echt.txt").c_str(), &auskunft), 0);
    EXPECT_EQ(auskunft.st_mode & 0777U, 0640U);
}

TEST(Textdatei, ErsetzenTrifftKeineAndereDatei) {
    const Probenordner o;
    o.schreiben("a.txt", "alt");
    o.schreiben("opfer", "fremd");
    std::filesystem::create_symlink(o.pfad("opfer"),
                                    o.pfad(".quittika-" + std::to_string(getpid()) + "-1.neu"));
    zeilen_ersetzen(o.pfad("a.txt"), {"neu"});
    EXPECT_EQ(o.lesen("opfer"), "fremd");
    EXPECT_EQ(o.lesen("a.txt"), "neu\r\n");
    EXPECT_FALSE(std::filesystem::is_symlink(o.pfad("a.txt")));
}

TEST(Textdatei, ErsteZeileIstDieFrageNachDerDatei) {
    const Probenordner o;
    o.schreiben("leer", "");
    o.schreiben("zeile", "\r\nzwei");
    EXPECT_EQ(DATEI_ERSTE_ZEILE(o.pfad("fehlt")), "FEHLER");
    EXPECT_EQ(DATEI_ERSTE_ZEILE(o.ordner()), "FEHLER");
    EXPECT_EQ(DATEI_ERSTE_ZEILE(o.pfad("leer")), "FEHLER");
    EXPECT_EQ(DATEI_ERSTE_ZEILE(o.pfad("zeile")), "");
    DATEI_SCHREIBEN(Programmverzeichnis(o.ordner()).pfad("\\RN.txt"), "17");
    EXPECT_EQ(o.lesen("RN.txt"), "17\r\n");
    EXPECT_EQ(DATEI_ERSTE_ZEILE(o.ordner() + "\\RN.txt"), "17");
}

TEST(Textdatei, AnhaengenBeginntAufEinerNeuenZeile) {
    const Probenordner o;
    EXPECT_TRUE(ZEILE_ANHAENGEN(o.pfad("k.txt"), "Müller"));
    EXPECT_TRUE(ZEILE_ANHAENGEN(o.pfad("k.txt"), "Meier"));
    EXPECT_EQ(o.lesen("k.txt"), "M\xFCller\r\nMeier\r\n");
    o.schreiben("k.txt", "ohne Ende");
    EXPECT_TRUE(ZEILE_ANHAENGEN(o.pfad("k.txt"), "Meier"));
    EXPECT_EQ(o.lesen("k.txt"), "ohne Ende\r\nMeier\r\n");
    EXPECT_FALSE(ZEILE_ANHAENGEN(o.ordner(), "x"));
}

TEST(Textdatei, FelderEinerZeile) {
    EXPECT_EQ(FELD_AUS_ZEILE("a...b......", "...", 0), "a");
    EXPECT_EQ(FELD_AUS_ZEILE("a...b......", "...", 2), "");
    EXPECT_EQ(FELD_AUS_ZEILE("a...b......", "...", 3), "");
    EXPECT_EQ(FELD_AUS_ZEILE("a...b......", "...", 4), "ERROR");
    EXPECT_EQ(FELD_AUS_ZEILE("", "...", 0), "ERROR");
    EXPECT_EQ(FELD_AUS_ZEILE("abc", ";", 0), "abc");
    EXPECT_EQ(FELD_AUS_ZEILE("abc", ";", -1), "ERROR");
    EXPECT_EQ(FELD_AUS_ZEILE("abc", "", 0), "ERROR");
}

} // namespace
} // namespace quittika
