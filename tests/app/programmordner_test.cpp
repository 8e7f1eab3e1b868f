#include "app/programmordner.hpp"

#include "platform/datei.hpp"
#include "tests/ohne_vorrechte.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace quittika {
namespace {

namespace fs = std::filesystem;

TEST(Programmordner, IstDerOrdnerDesProgrammsWennManDortSchreibenDarf) {
    const Probenordner o;
    EXPECT_EQ(PROGRAMMORDNER(o.pfad("quittika"), o.pfad("daten")).ordner, fs::path(o.ordner()));
    EXPECT_FALSE(fs::exists(o.pfad("daten")));
}

TEST(Programmordner, SonstEinEigenerDerBeimAnlegenGefuelltWird) {
    const Probenordner o;
    fs::create_directory(o.pfad("programm"));
    std::vector<fs::path> namen = MITGELIEFERTE_BILDER();
    namen.insert(namen.end(), MITGELIEFERTE_BEISPIELE().begin(), MITGELIEFERTE_BEISPIELE().end());
    for (const fs::path& name : namen) {
        fs::create_directories(fs::path(o.pfad("programm" / name)).parent_path());
        o.schreiben("programm" / name, "geliefert");
        chmod(o.pfad("programm" / name).c_str(), 0444);
    }
    for (const char* eigene : {"Kundenliste.txt", "Rechnung von gestern.qk8", "foto.jpg"}) {
        o.schreiben(fs::path("programm") / eigene, "eigen");
    }
    const OhneVorrechte niemand(o.ordner());
    const auto anlegen = [&o] { return PROGRAMMORDNER(o.pfad("programm/quittika"), o.pfad("neu/daten")); };
    EXPECT_EQ(anlegen().ordner, fs::path(o.pfad("neu/daten")));
    std::size_t kopiert = 0;
    for (const auto& eintrag : fs::recursive_directory_iterator(o.pfad("neu/daten"))) {
        kopiert += eintrag.is_regular_file() ? 1 : 0;
    }
    EXPECT_EQ(kopiert, namen.size()) << "nobody's own files";
    EXPECT_EQ(o.lesen("neu/daten/Beispielrechnung.qk8"), "geliefert");
    EXPECT_NO_THROW(datei_ersetzen(o.pfad("neu/daten/Beispielrechnung.qk8"), "eigen"));
    fs::remove(o.pfad("neu/daten/Beispielrechnung.qk8"));
    fs::remove(o.pfad("neu/daten/stroh.png"));
    o.schreiben("neu/daten/ihrlogo.bmp", "eigen");
    EXPECT_EQ(anlegen().meldung, "");
    EXPECT_FALSE(fs::exists(o.pfad("neu/daten/Beispielrechnung.qk8"))) << "only once";
    EXPECT_EQ(o.lesen("neu/daten/stroh.png"), "geliefert") << "a folder of an earlier version lacks it";
    EXPECT_EQ(o.lesen("neu/daten/ihrlogo.bmp"), "eigen");
    const Programmverzeichnis daten(o.pfad("neu/daten"));
    EXPECT_TRUE(fs::exists(systempfad(daten.pfad("\\DESIGN_A4\\A4-1+1.jpg"))));
}

TEST(Programmordner, InstalliertLiegtEsBeimBenutzerAuchWennManDortSchreibenDarf) {
    const Probenordner o;
    for (const fs::path& name : MITGELIEFERTE_BILDER()) {
        fs::create_directories(fs::path(o.pfad("share/quittika" / name)).parent_path());
        o.schreiben("share/quittika" / name, "geliefert");
    }
    fs::create_directory(o.pfad("bin"));
    EXPECT_EQ(PROGRAMMORDNER(o.pfad("bin/quittika"), o.pfad("daten")).ordner, fs::path(o.pfad("daten")));
    EXPECT_EQ(o.lesen("daten/DESIGN_A4/A4-1+1.jpg"), "geliefert");
    EXPECT_TRUE(fs::is_empty(o.pfad("bin")));
}

TEST(Programmordner, DasHandbuchIstImmerDasDieserVersion) {
    const Probenordner o;
    const std::string name = "share/quittika/startbenutzerhandbuch.htm";
    fs::create_directories(o.pfad("share/quittika"));
    const auto ausliefern = [&](const std::string& inhalt, int jahre) {
        o.schreiben(name, inhalt);
        fs::last_write_time(o.pfad(name), fs::file_time_type::clock::now() - std::chrono::years(jahre));
        PROGRAMMORDNER(o.pfad("bin/quittika"), o.pfad("daten"));
        return o.lesen("daten/startbenutzerhandbuch.htm");
    };
    EXPECT_EQ(ausliefern("neu", 1), "neu");
    EXPECT_EQ(ausliefern("noch neuer, aber früher gebaut", 2), "noch neuer, aber früher gebaut");
}

TEST(Programmordner, WasNichtGehtWirdGesagt) {
    const Probenordner o;
    o.schreiben("datei", "");
    const fs::path fest = "/proc/self/quittika"; // nobody may write there
    EXPECT_NE(PROGRAMMORDNER(fest, o.pfad("datei/daten")).meldung.find("lässt sich nicht anlegen"),
              std::string::npos);
    EXPECT_NE(PROGRAMMORDNER(fest, o.pfad("daten")).meldung.find("start1.png"), std::string::npos);
}

} // namespace
} // namespace quittika
