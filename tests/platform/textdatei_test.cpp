#include "platform/textdatei.hpp"

#include "platform/datei.hpp"
#include "platform/verzeichnis.hpp"
#include "tests/fehlernummer.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace quittika {
namespace {

int lesefehler(const std::string& pfad) {
    return fehlernummer([&] { zeilen_lesen(pfad); });
}
int schreibfehler(const std::string& pfad) {
    return fehlernummer([&] { zeilen_ersetzen(pfad, {"neu"}); });
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
    EXPECT_EQ(schreibfehler(o.pfad("rohr")), fehler::kDatentraegerFehlt);
    EXPECT_EQ(lesefehler("/dev/zero"), fehler::kPfadZugriff);
    EXPECT_EQ(schreibfehler(o.pfad("ordner")), fehler::kPfadZugriff);
    EXPECT_EQ(schreibfehler(o.pfad("kein/ordner")), fehler::kPfadFehlt);
    EXPECT_EQ(schreibfehler("/dev/full"), fehler::kDatentraegerVoll);
    EXPECT_EQ(ZEILE_ANHAENGEN("/dev/full", "x").fehlernummer, fehler::kDatentraegerVoll);
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

TEST(Textdatei, NameMitNulTrifftKeineAndereDatei) {
    const Probenordner o;
    o.schreiben("a", "alt\r\n");
    const std::string mit_nul = o.pfad("a") + std::string(1, '\0') + "b";
    EXPECT_EQ(lesefehler(mit_nul), fehler::kDateiname);
    EXPECT_EQ(schreibfehler(mit_nul), fehler::kDateiname);
    EXPECT_EQ(ZEILE_ANHAENGEN(mit_nul, "neu").fehlernummer, fehler::kDateiname);
    EXPECT_EQ(o.lesen("a"), "alt\r\n");
}

TEST(Textdatei, VerweisInsLeereUndImKreis) {
    const Probenordner o;
    std::filesystem::create_directory(o.pfad("daten"));
    std::filesystem::create_symlink("daten/echt.txt", o.pfad("verweis.txt"));
    std::filesystem::create_symlink("kreis.txt", o.pfad("kreis.txt"));
    zeilen_ersetzen(o.pfad("verweis.txt"), {"neu"});
    EXPECT_TRUE(std::filesystem::is_symlink(o.pfad("verweis.txt")));
    EXPECT_EQ(o.lesen("daten/echt.txt"), "neu\r\n");
    EXPECT_EQ(schreibfehler(o.pfad("kreis.txt")), fehler::kPfadZugriff);
    EXPECT_TRUE(std::filesystem::is_symlink(o.pfad("kreis.txt")));
}

TEST(Programmpfad, RueckstrichWirdNurErsetztWoErTrennt) {
    const Probenordner o;
    std::filesystem::create_directory(o.pfad("d\\e"));
    o.schreiben("d\\e/RN.txt", "17\r\n");
    o.schreiben("woertlich\\name", "ja\r\n");
    EXPECT_EQ(systempfad(o.ordner() + "\\neu\\RN.txt"), o.ordner() + "/neu/RN.txt");
    EXPECT_EQ(systempfad(o.pfad("d\\e") + "\\RN.txt"), o.pfad("d\\e/RN.txt"));
    EXPECT_EQ(systempfad(o.pfad("d\\e") + "\\neu.txt"), o.pfad("d\\e/neu.txt"));
    EXPECT_EQ(systempfad(o.pfad("d\\e/neu.txt")), o.pfad("d\\e/neu.txt"));
    EXPECT_EQ(systempfad(o.pfad("woertlich\\name")), o.pfad("woertlich\\name"));
    EXPECT_EQ(systempfad(o.pfad("woertlich\\name\\neu")), o.pfad("woertlich/name/neu")) << "no folder";
    EXPECT_TRUE(datei_vorhanden(Programmverzeichnis(o.pfad("d\\e")).pfad("\\RN.txt")));
    EXPECT_FALSE(datei_vorhanden(o.ordner() + "\\fehlt"));
}

} // namespace
} // namespace quittika
