#include "platform/datei.hpp"
#include "platform/textdatei.hpp"
#include "platform/verzeichnis.hpp"
#include "tests/ohne_vorrechte.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace quittika {
namespace {

template <class Tun> int nummer_aus(Tun tun) {
    try {
        tun();
    } catch (const Laufzeitfehler& f) {
        return f.nummer();
    }
    return 0;
}

TEST(TextdateiAusfall, SchreibgeschuetzteDatei) {
    const Probenordner o;
    o.schreiben("preise.txt", "alt\r\n");
    {
        const OhneVorrechte niemand(o.ordner(), o.pfad("preise.txt"));
        chmod(o.pfad("preise.txt").c_str(), 0400);
        EXPECT_EQ(nummer_aus([&] { zeilen_ersetzen(o.pfad("preise.txt"), {"neu"}); }),
                  fehler::kZugriffVerweigert);
        EXPECT_EQ(ZEILE_ANHAENGEN(o.pfad("preise.txt"), "neu").fehlernummer, fehler::kZugriffVerweigert);
    }
    EXPECT_EQ(o.lesen("preise.txt"), "alt\r\n");
}

TEST(TextdateiAusfall, NameMitNulTrifftKeineAndereDatei) {
    const Probenordner o;
    o.schreiben("a", "alt\r\n");
    const std::string mit_nul = o.pfad("a") + std::string(1, '\0') + "b";
    EXPECT_EQ(nummer_aus([&] { zeilen_lesen(mit_nul); }), fehler::kDateiname);
    EXPECT_EQ(nummer_aus([&] { zeilen_ersetzen(mit_nul, {"neu"}); }), fehler::kDateiname);
    EXPECT_EQ(ZEILE_ANHAENGEN(mit_nul, "neu").fehlernummer, fehler::kDateiname);
    EXPECT_EQ(o.lesen("a"), "alt\r\n");
}

TEST(TextdateiAusfall, VerweisInsLeereUndImKreis) {
    const Probenordner o;
    std::filesystem::create_directory(o.pfad("daten"));
    std::filesystem::create_symlink("daten/echt.txt", o.pfad("verweis.txt"));
    std::filesystem::create_symlink("kreis.txt", o.pfad("kreis.txt"));
    zeilen_ersetzen(o.pfad("verweis.txt"), {"neu"});
    EXPECT_TRUE(std::filesystem::is_symlink(o.pfad("verweis.txt")));
    EXPECT_EQ(o.lesen("daten/echt.txt"), "neu\r\n");
    EXPECT_EQ(nummer_aus([&] { zeilen_ersetzen(o.pfad("kreis.txt"), {"neu"}); }), fehler::kPfadZugriff);
    EXPECT_TRUE(std::filesystem::is_symlink(o.pfad("kreis.txt")));
}

TEST(TextdateiAusfall, SehrLangeZeileBleibtGanz) {
    constexpr std::size_t kLaenge = 10'000'000;
    const Probenordner o;
    const std::string lang(kLaenge, '\xE4');
    o.schreiben("lang.txt", lang + "\r\nEnde");
    const auto zeilen = zeilen_lesen(o.pfad("lang.txt"));
    ASSERT_EQ(zeilen.size(), 2U);
    EXPECT_EQ(zeilen[0].size(), 2 * kLaenge);
    EXPECT_EQ(zeilen[1], "Ende");
    EXPECT_EQ(zeilen_ersetzen(o.pfad("zurueck.txt"), zeilen), 0U);
    EXPECT_TRUE(o.lesen("zurueck.txt") == lang + "\r\nEnde\r\n");
}

TEST(TextdateiAusfall, VerlusteWerdenGezaehlt) {
    const Probenordner o;
    EXPECT_EQ(zeilen_ersetzen(o.pfad("a.txt"), {"Łódź", "Köln", "漢"}), 3U);
    EXPECT_EQ(o.lesen("a.txt"), "L\xF3"
                                "dz\r\nK\xF6ln\r\n?\r\n");
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
