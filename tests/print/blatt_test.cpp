#include "print/blatt.hpp"

#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

using Textroutine = void (*)(Blatt&, std::string_view, double, double, bool, bool);

TEST(Drucktext, StehtLinksMittigOderRechtsUndLaesstDieMarke) {
    struct Fall {
        const char* name;
        Textroutine routine;
        double x;
        double y;
        bool absolut;
        bool behalten;
        double links; ///< of the text, 8 mm wide
        double oben;
        double danach_x;
        double danach_y;
    };
    constexpr double k = kUnveraendert;
    // The cursor stands at 70, 90; the adjustment is -4 to the right and 3 down.
    const Fall faelle[] = {
        {"links", DRUCKTEXT_LINKS, 20, 40, false, false, 16, 43, 70, 90},
        {"links absolut", DRUCKTEXT_LINKS, 20, 40, true, false, 20, 40, 70, 90},
        {"mittig", DRUCKTEXT_MITTE, 100, 40, false, false, 92, 43, 70, 90},
        {"rechts", DRUCKTEXT_RECHTS, 100, 40, false, false, 88, 43, 70, 90},
        {"rechts absolut", DRUCKTEXT_RECHTS, 100, 40, true, false, 92, 40, 70, 90},
        {"Höhe bleibt", DRUCKTEXT_RECHTS, 100, k, false, false, 88, 90, 70, 90},
        {"Stelle bleibt", DRUCKTEXT_LINKS, k, 40, false, false, 70, 43, 70, 90},
        {"rechts von der Marke aus", DRUCKTEXT_RECHTS, k, k, false, false, 62, 90, 70, 90},
        {"Marke geht mit", DRUCKTEXT_RECHTS, 100, 40, false, true, 88, 43, 96, 43},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.name);
        const FesteSchrift schrift;
        Papier papier;
        Papiergeraet geraet(papier);
        PrintSurface flaeche(geraet, schrift);
        flaeche.CurrentX = 70;
        flaeche.CurrentY = 90;
        Blatt blatt{flaeche, {-4, 3}};
        f.routine(blatt, "Größ", f.x, f.y, f.absolut, f.behalten);
        ASSERT_EQ(papier.texte.size(), 1U);
        EXPECT_DOUBLE_EQ(papier.texte[0].links, f.links);
        EXPECT_DOUBLE_EQ(papier.texte[0].oben, f.oben);
        EXPECT_DOUBLE_EQ(flaeche.CurrentX, f.danach_x);
        EXPECT_DOUBLE_EQ(flaeche.CurrentY, f.danach_y);
    }
}

} // namespace
} // namespace quittika
