#include "print/nachsichtiges_geraet.hpp"
#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace quittika {
namespace {

/// The standard design with other lines behind it, on paper.
struct Eigenprobe : Druckprobe {
    std::string befund; ///< what is printed over something else or over the edge

    Eigenprobe() {
        einstellungen.Option9_Layout.Value = true;
        form1.Text_Kunde_1.Text = "Kunde";
        form1.Text_KundennrK.Text = "Nr. 8";
        form1.Text_Bemerkung1[0].Text = "Anrede";
        form1.Text_Bemerkung4[0].Text = "Schluss";
        form1.Text_Bemerkung1[1].Text = "Bemerkung";
    }
    Papier gezeichnet(const std::string& zeilen) {
        ordner.schreiben("design.dsg", DESIGN_SCHREIBEN(DESIGN_STANDARD(verzeichnis)).bytes + zeilen);
        Papier papier;
        Papiergeraet papiergeraet(papier);
        NachsichtigesGeraet geraet(papiergeraet, Paper{});
        PrintSurface flaeche(geraet, schrift);
        druck.vorbereiten({}, false).DRUCKEN(flaeche, {-4, -6}); // the first time it is read all the same
        befund = geraet.ueberdruck().hinweis("");
        return papier;
    }
};

TEST(EigenesLayout, WasSichUeberdecktRuecktNachUnten) {
    const struct {
        const char* design;
        int zeilen;
        const char* text;
        double x;
        double y; ///< mm on the sheet
    } faelle[] = {
        {"", 1, "Nr. 8", 150, 85},
        {"Y_KDNR:74;\nX_KDNR:12", 1, "Nr. 8", 12, 74 + 3.69 + 1 - 0.7}, // below the customer
        {"Y_KDNR:74;\nX_KDNR:22", 1, "Nr. 8", 22, 74},                  // beside him
        {"X_RN:200", 1, "RECHNUNG 7", 206 - 20, 93},                    // over the edge
        {"Y_BEMERKUNG_1:145", 1, "Leistung", 40, 145 + 12 + 3.35 + 4},
        {"", 10, "Bemerkung", 64, 242},
        // 148 mm, rules and heading 16, 17 rows, sum and total with their rules 11
        {"Y_BEMERKUNG:160", 17, "Bemerkung", 64, 148 + 16 + 68 + 11},
        {"Y_BEMERKUNG:110", 17, "Bemerkung", 64, 110},
        {"Y_BANKZEILE:243", 17, "Bemerkung", 64, 243 + 2.68 + 1 - 0.64},
        {"Y_ADRESSEFIRMA:200", 12, "MUSTERFIRMA", 11, 221 + 1 - 0.64},
        {"X_BANKZEILE:60", 1, "KTO-NR", 206 - 30, 273}, // left of its column, beside the others
        {"X_BANKZEILE:100", 1, "KTO-NR", 100, 273 + 4}, // no room beside them
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.design);
        Eigenprobe p;
        p.zeilen(f.zeilen);
        const Papier papier = p.gezeichnet(f.design);
        const drawn::Text* text = papier.finden(f.text);
        ASSERT_NE(text, nullptr);
        EXPECT_NEAR(text->left, f.x - 4, 0.01);
        EXPECT_NEAR(text->top, f.y - 6, 0.02);
        EXPECT_EQ(p.befund, "");
    }
}

TEST(EigenesLayout, JedesTabellendesignSiehtAndersAusUndSagtDasselbe) {
    const struct {
        int stil;
        bool fett;
        Color schrift; ///< of the headings while rules are dark; black while they are light
        int senkrecht;
        bool flaechen;
    } faelle[] = {{0, false, 0, 0, false},      {1, false, 0, 6, false}, {2, true, 0, 0, true},
                  {3, true, 0xFFFFFF, 0, true}, {4, true, 0, 0, false},  {7, false, 0, 0, false}};
    std::vector<double> erste;
    for (const auto& f : faelle) {
        for (const bool dunkel : {true, false}) {
            SCOPED_TRACE(f.stil);
            Eigenprobe p;
            p.zeilen(5);
            p.werte.FARBE_LINIEN = dunkel ? color::rgb(0, 60, 120) : color::rgb(255, 230, 120);
            const Papier papier = p.gezeichnet("LIST_OPTION:" + std::to_string(f.stil));
            std::vector<double> stellen;
            for (const drawn::Text& t : papier.alle<drawn::Text>()) {
                stellen.insert(stellen.end(), {t.left, t.top});
            }
            erste = erste.empty() ? stellen : erste;
            EXPECT_EQ(stellen, erste) << "all take the same room";
            EXPECT_EQ(papier.finden("Leistung")->font.bold, f.fett);
            EXPECT_EQ(papier.finden("Leistung")->color, dunkel ? f.schrift : 0);
            EXPECT_EQ(papier.finden("Posten")->color, 0);
            const auto senkrecht = [](const drawn::Line& l) { return l.x1 == l.x2; };
            const auto linien = papier.alle<drawn::Line>();
            EXPECT_EQ(std::count_if(linien.begin(), linien.end(), senkrecht), f.senkrecht);
            EXPECT_EQ(linien.size() > 60, f.flaechen);
            const auto blass = [](const drawn::Line& l) { return (l.color >> 8 & 0xFF) > 235; };
            EXPECT_EQ(std::count_if(linien.begin(), linien.end(), blass), 0) << "seen in grey";
        }
    }
}

TEST(EigenesLayout, VolleSeitenPassenAufDasBlatt) {
    const struct {
        int absender;
        bool bemerkungen;
        int zeilen; ///< that fill the pages
    } faelle[] = {{0, false, 17 + 41 + 41}, {0, true, 13 + 38 + 38}, {1, false, 17 + 28 + 28}};
    for (const auto& f : faelle) {
        Eigenprobe p;
        p.einstellungen.Check_MitLogoadresseFFSeite.Value = f.absender;
        p.einstellungen.Option_RN_BM_alleSeite.Value = f.bemerkungen;
        p.zeilen(f.zeilen);
        const Papier papier = p.gezeichnet("");
        EXPECT_EQ(papier.seiten(), 3);
        EXPECT_EQ(p.befund, "");
        EXPECT_LT(papier.finden("Rechnungsbetrag", 3)->top + 4, 268 - 6) << "above the page number";
    }
}

} // namespace
} // namespace quittika
