#include "print/ueberdruck.hpp"
#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace quittika {
namespace {

/// The standard design with other values, on paper.
struct Eigenprobe : Druckprobe {
    Eigenprobe() {
        einstellungen.Option9_Layout.Value = true;
        designdatei.DESIGN_STANDARD();
        form1.Text_Kunde_1.Text = "Kunde";
        form1.Text_KundennrK.Text = "Nr. 8";
        form1.Text_Bemerkung1[0].Text = "Anrede";
        form1.Text_Bemerkung4[0].Text = "Schluss";
        form1.Text_Bemerkung1[1].Text = "Bemerkung";
    }
    Papier gezeichnet() {
        designdatei.DESIGN_SPEICHERN();
        return drucken({-4, -6});
    }
    /// What is printed over something else or over the edge.
    static std::string befund(const Papier& papier) {
        Ueberdruck ueberdruck{Paper{}};
        int seite = 1;
        for (const GezeichneterText& t : papier.texte) {
            for (; seite < t.seite; ++seite) {
                ueberdruck.neue_seite();
            }
            ueberdruck.text(t.links, t.oben, t.rechts - t.links, {"Arial", t.groesse, t.fett}, t.text);
        }
        return ueberdruck.hinweis("");
    }
};

TEST(EigenesLayout, WasSichUeberdecktRuecktNachUnten) {
    using Werte = std::vector<std::pair<double Design::*, double>>;
    struct Fall {
        const char* name;
        Werte werte;
        int zeilen;
        const char* text;
        double x;
        double y; ///< mm on the sheet
    };
    const Fall faelle[] = {
        {"frei", {}, 1, "Nr. 8", 150, 85},
        {"unter dem Kunden",
         {{&Design::Y_KDNR, 74}, {&Design::X_KDNR, 12}},
         1,
         "Nr. 8",
         12,
         74 + 3.69 + 1 - 0.7},
        {"daneben", {{&Design::Y_KDNR, 74}, {&Design::X_KDNR, 22}}, 1, "Nr. 8", 22, 74},
        {"neben dem Blatt", {{&Design::X_RN, 200}}, 1, "RECHNUNG 7", 206 - 20, 93},
        {"Tabelle unter dem Anschreiben",
         {{&Design::Y_BEMERKUNG_1, 145}},
         1,
         "Leistung",
         40,
         145 + 12 + 3.35 + 4},
        {"Bemerkung an ihrem Platz", {}, 10, "Bemerkung", 64, 242},
        // 148 mm, rules and heading 16, 17 rows, sum and total with their rules 11
        {"Bemerkung unter den Summen",
         {{&Design::Y_BEMERKUNG, 160}},
         17,
         "Bemerkung",
         64,
         148 + 16 + 68 + 11},
        {"Bemerkung über der Tabelle", {{&Design::Y_BEMERKUNG, 110}}, 17, "Bemerkung", 64, 110},
        {"Bemerkung unter der Bankzeile",
         {{&Design::Y_BANKZEILE, 243}},
         17,
         "Bemerkung",
         64,
         243 + 2.68 + 1 - 0.64},
        {"Absender unter der Tabelle",
         {{&Design::Y_ADRESSEFIRMA, 200}},
         12,
         "MUSTERFIRMA",
         11,
         221.0 + 1 - 0.64},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.name);
        Eigenprobe p;
        p.zeilen(f.zeilen);
        for (const auto& [feld, wert] : f.werte) {
            p.designdatei.design.*feld = wert;
        }
        const Papier papier = p.gezeichnet();
        const GezeichneterText* text = papier.finden(f.text);
        ASSERT_NE(text, nullptr);
        EXPECT_NEAR(text->links, f.x - 4, 0.01);
        EXPECT_NEAR(text->oben, f.y - 6, 0.02);
        EXPECT_EQ(Eigenprobe::befund(papier), "");
    }
}

TEST(EigenesLayout, JedesTabellendesignSiehtAndersAusUndSagtDasselbe) {
    struct Fall {
        int stil;
        bool fett;
        Color schrift; ///< of the headings while rules are dark; black while they are light
        int senkrecht;
        bool flaechen;
    };
    constexpr Color kWeiss = color::rgb(255, 255, 255);
    const Fall faelle[] = {{0, false, 0, 0, false},    {1, false, 0, 6, false}, {2, true, 0, 0, true},
                           {3, true, kWeiss, 0, true}, {4, true, 0, 0, false},  {7, false, 0, 0, false}};
    std::vector<double> erste;
    for (const Fall& f : faelle) {
        for (const bool dunkel : {true, false}) {
            SCOPED_TRACE(f.stil);
            Eigenprobe p;
            p.zeilen(5);
            p.designdatei.design.LIST_OPTION = f.stil;
            p.werte.FARBE_LINIEN = dunkel ? color::rgb(0, 60, 120) : color::rgb(255, 230, 120);
            const Papier papier = p.gezeichnet();
            std::vector<double> stellen;
            for (const GezeichneterText& t : papier.texte) {
                stellen.insert(stellen.end(), {t.links, t.oben});
            }
            erste = erste.empty() ? stellen : erste;
            EXPECT_EQ(stellen, erste) << "all take the same room";
            EXPECT_EQ(papier.finden("Leistung")->fett, f.fett);
            EXPECT_EQ(papier.finden("Leistung")->farbe, dunkel ? f.schrift : 0);
            EXPECT_EQ(papier.finden("Posten")->farbe, 0);
            const auto senkrecht = [](const GezeichneteLinie& l) { return l.x1 == l.x2; };
            EXPECT_EQ(std::count_if(papier.linien.begin(), papier.linien.end(), senkrecht), f.senkrecht);
            EXPECT_EQ(papier.linien.size() > 60, f.flaechen);
        }
    }
}

TEST(EigenesLayout, VolleSeitenPassenAufDasBlatt) {
    struct Fall {
        bool absender;
        bool bemerkungen;
        int zeilen; ///< that fill the pages
    };
    for (const Fall& f :
         {Fall{false, false, 17 + 41 + 41}, {false, true, 13 + 38 + 38}, {true, false, 17 + 28 + 28}}) {
        Eigenprobe p;
        p.einstellungen.Check_MitLogoadresseFFSeite.Value = f.absender ? 1 : 0;
        (f.bemerkungen ? p.einstellungen.Option_RN_BM_alleSeite
                       : p.einstellungen.Option_RN_BM_nurletzte_Seite)
            .Value = true;
        p.zeilen(f.zeilen);
        const Papier papier = p.gezeichnet();
        EXPECT_EQ(papier.seite, 3);
        EXPECT_EQ(Eigenprobe::befund(papier), "");
        EXPECT_LT(papier.finden("Rechnungsbetrag", 3)->oben + 4, 268 - 6) << "above the page number";
    }
}

} // namespace
} // namespace quittika
