#include "print/seitenumbruch.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Seitenumbruch, GroessenNachKopfBemerkungenUndLogo) {
    struct Fall {
        bool kopf;
        bool bemerkungen;
        bool logo;
        Seitengroesse groesse;
    };
    const Fall faelle[] = {
        {true, true, true, {12, 9}},    {true, true, false, {12, 9}},    {true, false, true, {16, 9}},
        {true, false, false, {16, 9}},  {false, true, true, {12, 27}},   {false, true, false, {12, 37}},
        {false, false, true, {16, 27}}, {false, false, false, {16, 40}},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(ZEILENPROSEITE(f.kopf, f.bemerkungen, f.logo), f.groesse)
            << f.kopf << f.bemerkungen << f.logo;
    }
}

TEST(Seitenumbruch, EinAbschnittHaeltEineZeileMehrAlsSeineGroesse) {
    struct Fall {
        int zeilen;
        Seitengroesse groesse;
        std::vector<Zeilenbereich> seiten;
    };
    const Fall faelle[] = {
        {0, {16, 27}, {{0, -1}}},
        {1, {16, 27}, {{0, 0}}},
        {17, {16, 27}, {{0, 16}}},
        {18, {16, 27}, {{0, 16}, {17, 17}}},
        {45, {16, 27}, {{0, 16}, {17, 44}}},
        {46, {16, 27}, {{0, 16}, {17, 44}, {45, 45}}},
        {58, {16, 40}, {{0, 16}, {17, 57}}},
        {28, {16, 9}, {{0, 16}, {17, 26}, {27, 27}}},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(Seitenumbruch(f.zeilen, f.groesse), f.seiten) << f.zeilen;
        EXPECT_EQ(ANZAHL_DRUCKSEITEN(f.zeilen, f.groesse), static_cast<int>(f.seiten.size())) << f.zeilen;
    }
}

} // namespace
} // namespace quittika
