#include "print/blatt.hpp"
#include "print/leistungsspalte.hpp"

#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

using Textroutine = void (*)(Blatt&, std::string_view, double, double, bool, bool);

TEST(Drucktext, StehtLinksMittigOderRechtsUndLaesstDieMarke) {
    constexpr double k = kUnveraendert;
    // The cursor stands at 70, 90; the adjustment is -4 to the right and 3 down.
    const struct {
        const char* name;
        Textroutine routine;
        double x;
        double y;
        bool absolut;
        bool behalten;
        double links; ///< of the text, 8 mm wide
        double oben;
    } faelle[] = {
        {"links", DRUCKTEXT_LINKS, 20, 40, false, false, 16, 43},
        {"mittig", DRUCKTEXT_MITTE, 100, 40, false, false, 92, 43},
        {"rechts absolut", DRUCKTEXT_RECHTS, 100, 40, true, false, 92, 40},
        {"rechts von der Marke aus", DRUCKTEXT_RECHTS, k, k, false, false, 62, 90},
        {"Marke geht mit", DRUCKTEXT_RECHTS, 100, 40, false, true, 88, 43},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        const FesteSchrift schrift;
        Papier papier;
        Papiergeraet geraet(papier);
        PrintSurface flaeche(geraet, schrift);
        flaeche.CurrentX = 70;
        flaeche.CurrentY = 90;
        Blatt blatt{flaeche, {-4, 3}};
        f.routine(blatt, "Größ", f.x, f.y, f.absolut, f.behalten);
        const drawn::Text* text = papier.finden("Größ");
        ASSERT_NE(text, nullptr);
        EXPECT_DOUBLE_EQ(text->left, f.links);
        EXPECT_DOUBLE_EQ(text->top, f.oben);
        EXPECT_DOUBLE_EQ(flaeche.CurrentX, f.behalten ? f.links + 8 : 70);
        EXPECT_DOUBLE_EQ(flaeche.CurrentY, f.behalten ? f.oben : 90);
    }
}

TEST(Leistungsspalte, SagtWieVieleZeichenAufDasPapierPassen) {
    const struct {
        const char* name;
        bool nummern;
        bool kommentar;
        const char* preis; ///< two millimetres a character, and two to keep off it
        std::size_t passt;
    } faelle[] = {
        {"mit Positionsnummern", true, false, "10,00", (147 - 10 - 2 - 40) / 2},
        {"ohne", false, false, "10,00", (141 - 10 - 2 - 33) / 2},
        {"breiter Preis", true, false, "12345,00", (147 - 16 - 2 - 40) / 2},
        {"Kommentar", true, true, "0,00", (184 - 40) / 2},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Druckprobe p;
        p.einstellungen.Check_Positionendruck.Value = f.nummern ? 1 : 0;
        const Leistungsspalte spalte(p.form1, p.einstellungen, p.werte, p.schrift);
        for (const std::size_t laenge : {f.passt, f.passt + 1}) {
            std::string text;
            for (std::size_t i = 0; i < laenge; ++i) {
                text += "ß";
            }
            p.form1.Check_K.Value = f.kommentar ? 1 : 0;
            p.zeile("1", text, f.preis);
        }
        EXPECT_EQ(spalte.HINWEIS(0), "");
        EXPECT_EQ(spalte.HINWEIS(1), "Die Beschreibung ist für den Druck zu lang: Von " +
                                         std::to_string(f.passt + 1) + " Zeichen passen " +
                                         std::to_string(f.passt) +
                                         " in die Spalte, der Rest in eine Kommentarzeile.");
    }
}

} // namespace
} // namespace quittika
