#include "print/blockbilder.hpp"

#include "platform/zahlen.hpp"
#include "print/eigenes_layout.hpp"
#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <utility>

namespace quittika {
namespace {

/// An invoice with a text for every block, in the standard design. Characters are 2 mm wide, lines 4 mm high.
struct Bildprobe : Druckprobe {
    Design design = DESIGN_STANDARD(verzeichnis);
    Blockbilder bilder{form1, einstellungen, werte, schrift};

    Bildprobe() {
        design.IMG_LOGO.clear();
        design.IMG_WASSERZEICHEN.clear();
        einstellungen.Text_firma_6.Text = "Post: a@b";
        einstellungen.Text_Bankverb1.Text = "Bank";
        form1.Text_Kunde_1.Text = "Kunde";
        form1.Text_KundennrK.Text = "Nr. 8";
        form1.Text_LIEFERDATUM.Text = "1.3.08";
        form1.Check_LIEFERDATUM.Value = 1;
        form1.Text_Bemerkung1[0].Text = "Anrede";
        form1.Text_Bemerkung1[1].Text = "Bemerkung";
        einstellungen.Check_BANKLINIE.Value = 1;
        einstellungen.Check_Faltmarke_MITDRUCKEN.Value = 1;
    }
    Blocklage lage(Designblock block) { return bilder.LAGEN(design).at(static_cast<std::size_t>(block)); }
    DrawnPage gedruckt() {
        Papier papier;
        Papiergeraet geraet(papier);
        PrintSurface flaeche(geraet, schrift);
        Blatt blatt{flaeche, {-4, -6}};
        DRUCKE_EIGENESLAYOUT(form1, einstellungen, werte, design, {}).SEITE_DRUCKEN(blatt, 1);
        return papier.pages.front();
    }
};

/// A drawing moved by a place, as a line that can be compared.
std::string zeile(const Drawing& teil, double x, double y) {
    const auto mm = [](double wert) { return " " + format_zahl(wert, "0.00"); };
    if (const auto* t = std::get_if<drawn::Text>(&teil)) {
        return t->text + mm(t->left + x) + mm(t->top + y) + mm(t->font.size) +
               (t->font.bold ? " fett " : " ") + std::to_string(t->color);
    }
    const auto& l = std::get<drawn::Line>(teil);
    return "linie" + mm(l.x1 + x) + mm(l.y1 + y) + mm(l.x2 + x) + mm(l.y2 + y) + " " +
           std::to_string(l.color);
}

void anfuegen(std::vector<std::string>& zeilen, const DrawnPage& seite, double x, double y) {
    for (const Drawing& teil : seite.drawings) {
        zeilen.push_back(zeile(teil, x, y));
    }
}

TEST(Blockbilder, AnIhrenPlaetzenSindSieDieGedruckteSeite) {
    const std::function<void(Bildprobe&)> aenderungen[] = {
        [](Bildprobe&) {},
        [](Bildprobe& p) { p.design.LIST_OPTION = 1; },
        [](Bildprobe& p) { p.design.LIST_OPTION = 2; },
        [](Bildprobe& p) { p.design.LIST_OPTION = 3; },
        [](Bildprobe& p) { p.design.LIST_OPTION = 4; },
        [](Bildprobe& p) { p.design.Y_LISTE = 150.7; }, // its rules stand on whole millimetres
        [](Bildprobe& p) { p.design.X_BANKZEILE = 100; },
        [](Bildprobe& p) { p.einstellungen.Option_BankVerb_ZweiZeile.Value = true; },
        [](Bildprobe& p) { p.form1.Option_LIEFERSCHEIN.Value = true; },
        [](Bildprobe& p) {
            std::tie(p.design.X_DATUM, p.design.Y_DATUM) = std::pair{20.25, 65.5};
        },
        [](Bildprobe& p) { p.werte.FARBE_BEMERKUNGEN = 4711, p.werte.GROESSE_BEMERKUNGEN = 8; },
    };
    for (const auto& aendern : aenderungen) {
        SCOPED_TRACE(&aendern - aenderungen);
        Bildprobe p;
        p.zeilen(3);
        aendern(p);
        std::vector<std::string> seite;
        anfuegen(seite, p.gedruckt(), 0, 0);
        std::vector<std::string> bloecke;
        anfuegen(bloecke, *p.bilder.BLATTGRUND(p.design), 0, 0);
        for (std::size_t i = 0; i < kDesignbloecke; ++i) {
            const auto block = static_cast<Designblock>(i);
            const Blockbild bild = p.bilder.ZEICHNEN(block, p.design);
            EXPECT_FALSE(bild.platzhalter);
            const Blockstelle stelle = BLOCKSTELLE(block);
            anfuegen(bloecke, *bild.seite, p.design.*stelle.x, p.design.*stelle.y);
        }
        std::sort(seite.begin(), seite.end());
        std::sort(bloecke.begin(), bloecke.end());
        EXPECT_EQ(bloecke, seite);
    }
}

TEST(Blockbilder, SindSoGrossWieIhrTextUndSagenWennKeinerDaIst) {
    const struct {
        const char* name;
        Designblock block;
        std::function<void(Bildprobe&)> aendern;
        bool platzhalter;
        Paper groesse;
        const char* text; ///< stands on it
    } faelle[] = {
        {"Kunde",
         Designblock::Kunde,
         [](Bildprobe& p) { p.form1.Text_Kunde_3.Text = "12345 Ort"; },
         false,
         {18, 12},
         "Kunde"},
        {"ohne Kunde",
         Designblock::Kunde,
         [](Bildprobe& p) { p.form1.Text_Kunde_1.Text = vorgabe::kKunde1; },
         true,
         {30, 12},
         vorgabe::kKunde2},
        {"ohne Lieferdatum",
         Designblock::Lieferdatum,
         [](Bildprobe& p) { p.form1.Check_LIEFERDATUM.Value = 0; },
         true,
         {22, 4},
         "Lieferdatum"},
        {"ohne Bank",
         Designblock::Bankzeile,
         [](Bildprobe& p) {
             p.einstellungen.Option_BankVerb_ZweiZeile.Value = true;
             p.einstellungen.Text_Bankverb1.Text = " ";
         },
         true,
         {28, 4},
         "Bankverbindung"},
        {"ohne Zeilen", Designblock::Liste, [](Bildprobe&) {}, true, kListenbild,
         "Rechnungsbetrag:    140,00"},
        {"viele Zeilen", Designblock::Liste, [](Bildprobe& p) { p.zeilen(15); }, false, kListenbild,
         "Rechnungsbetrag:    150,00"},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Bildprobe p;
        f.aendern(p);
        const Blockbild bild = p.bilder.ZEICHNEN(f.block, p.design);
        EXPECT_EQ(bild.platzhalter, f.platzhalter);
        EXPECT_NEAR(bild.seite->paper.width, f.groesse.width, 0.01);
        EXPECT_NEAR(bild.seite->paper.height, f.groesse.height, 0.01);
        Papier papier;
        papier.pages = {*bild.seite};
        const drawn::Text* text = papier.finden(f.text);
        ASSERT_NE(text, nullptr);
        EXPECT_LE(text->top + kOriginTop + 4, f.groesse.height) << "in sight";
    }
}

TEST(Blockbilder, WasImWegIst) {
    const struct {
        const char* name;
        std::function<void(Bildprobe&)> aendern;
        std::vector<Designblock> im_weg;
    } faelle[] = {
        {"Standard", [](Bildprobe&) {}, {}},
        // the sender from 11 to 51 mm, the logo from 63 on
        {"unter dem Absender",
         [](Bildprobe& p) {
             std::tie(p.design.X_DATUM, p.design.Y_DATUM) = std::pair{30, 18};
         },
         {Designblock::Datum, Designblock::Absender}},
        {"neben dem Absender",
         [](Bildprobe& p) {
             std::tie(p.design.X_DATUM, p.design.Y_DATUM) = std::pair{52, 18};
             p.design.VISIBLE_LOGO = false;
         },
         {}},
        {"im Logo", [](Bildprobe& p) { p.design.Y_DATUM = 40; }, {Designblock::Datum}}, // down to 44 mm
        {"an seinem Rand", [](Bildprobe& p) { p.design.Y_DATUM = 41; }, {}},
        {"ohne Logo", [](Bildprobe& p) { p.design.Y_DATUM = 40, p.design.VISIBLE_LOGO = false; }, {}},
        {"über den Rand",
         [](Bildprobe& p) { p.design.X_DATUM = 187; },
         {Designblock::Datum}}, // 20 mm, ends at 206
        {"links hinaus", [](Bildprobe& p) { p.design.X_DATUM = -0.5; }, {Designblock::Datum}},
        {"ohne Text",
         [](Bildprobe& p) { p.design.Y_LIEFERDATUM = 85, p.form1.Check_LIEFERDATUM.Value = 0; },
         {}},
        {"mit Text",
         [](Bildprobe& p) { p.design.Y_LIEFERDATUM = 85; },
         {Designblock::Lieferdatum, Designblock::Kundennummer}},
        {"lange Tabelle",
         [](Bildprobe& p) { p.zeilen(17), p.design.Y_BEMERKUNG = 239; },
         {Designblock::Liste, Designblock::Bemerkungen}},
    };
    for (const auto& f : faelle) {
        Bildprobe p;
        f.aendern(p);
        std::vector<Designblock> im_weg;
        for (std::size_t i = 0; i < kDesignbloecke; ++i) {
            if (p.lage(static_cast<Designblock>(i)).im_weg) {
                im_weg.push_back(static_cast<Designblock>(i));
            }
        }
        EXPECT_EQ(im_weg, f.im_weg) << f.name;
    }
    Bildprobe p;
    p.zeilen(10); // rules and heading 16 mm, sum and total with their rules 11
    const Kasten tabelle = p.lage(Designblock::Liste).kasten;
    EXPECT_NEAR(tabelle.unten, 148 + 16 + 40 + 11 - 2, 0.01);
    EXPECT_EQ(tabelle.rechts, 200);
}

} // namespace
} // namespace quittika
