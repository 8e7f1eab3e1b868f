#include "app/programmordner.hpp"

#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace quittika {
namespace {

namespace fs = std::filesystem;

TEST(Programmordner, IstDerOrdnerDesProgrammsWennManDortSchreibenDarf) {
    const Probenordner o;
    EXPECT_EQ(PROGRAMMORDNER(o.pfad("quittika"), o.pfad("daten")), fs::path(o.ordner()));
    EXPECT_FALSE(fs::exists(o.pfad("daten")));
}

TEST(Programmordner, SonstDerEigeneOrdnerMitDenMitgeliefertenDateien) {
    const fs::path fest = "/proc/self"; // nobody may write there
    const Probenordner o;
    const fs::path ordner = PROGRAMMORDNER(fest / "quittika", o.pfad("neu/daten"));
    EXPECT_EQ(ordner, fs::path(o.pfad("neu/daten")));
    EXPECT_TRUE(fs::is_directory(ordner));
}

TEST(Programmordner, KopiertWasFehltUndUeberschreibtNichts) {
    const Probenordner o;
    fs::create_directories(o.pfad("daten"));
    o.schreiben("quittika", "Programm");
    o.schreiben("ihrlogo.bmp", "geliefert");
    o.schreiben("Beispielrechnung.qk8", "geliefert");
    o.schreiben("daten/ihrlogo.bmp", "eigenes");
    MITGELIEFERTES_KOPIEREN(o.ordner(), o.pfad("daten"));
    EXPECT_EQ(o.lesen("daten/ihrlogo.bmp"), "eigenes");
    EXPECT_EQ(o.lesen("daten/Beispielrechnung.qk8"), "geliefert");
    EXPECT_FALSE(fs::exists(o.pfad("daten/quittika")));
}

} // namespace
} // namespace quittika
