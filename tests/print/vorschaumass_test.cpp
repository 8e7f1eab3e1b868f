#include "print/vorschaumass.hpp"

#include "print/ausgabedatei.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

// 880 by 740 pixels of 15 twips.
constexpr Vorschauraum kRaum{13200, 11100};

TEST(Vorschaumass, VergroesserungenFuellenDenRaumUndBleibenInGrenzen) {
    struct Fall {
        const char* name;
        Paper blatt;
        Vorschauraum raum;
        double breite;
        double ganz;
    };
    const Fall faelle[] = {
        {"A4", {}, kRaum, 12900 / 11905.51, 10800 / 16837.8},
        {"Umschlag", {220, 110}, kRaum, 12900 / 12472.44, 12900 / 12472.44},
        {"winzig", {}, {200, 200}, 0.1, 0.1},
        {"riesig", {}, {90000, 90000}, 3, 3},
    };
    for (const Fall& f : faelle) {
        EXPECT_NEAR(AUF_SEITENBREITE(f.blatt, f.raum), f.breite, 1e-4) << f.name;
        EXPECT_NEAR(AUF_GANZE_SEITE(f.blatt, f.raum), f.ganz, 1e-4) << f.name;
        const Bildmass mass = scrollerJustierung(f.blatt, f.raum, AUF_SEITENBREITE(f.blatt, f.raum));
        EXPECT_TRUE(f.raum.breite < 300 || mass.waagrecht.min == mass.waagrecht.max) << f.name;
    }
    const double stufen[][3] = {
        {1, 1.1, 0.9}, {1.0835, 1.1, 1}, {0.6414, 0.67, 0.5}, {3, 3, 2.5}, {0.1, 0.25, 0.1}};
    for (const auto& [von, hinauf, hinab] : stufen) {
        EXPECT_EQ(NAECHSTE_STUFE(von, 1), hinauf);
        EXPECT_EQ(NAECHSTE_STUFE(von, -1), hinab);
    }
}

TEST(Ausgabedatei, DieEndungFaelltWeg) {
    EXPECT_EQ(OHNE_ENDUNG("/a.bmp/b", ".bmp"), "/a.bmp/b");
    EXPECT_EQ(OHNE_ENDUNG("ß", ".bmp"), "ß");
}

} // namespace
} // namespace quittika
