#include "tests/print/druckprobe.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Druck, JederBlockHatSeineGroesseUndFarbe) {
    const struct {
        const char* text;
        double groesse; ///< in the built-in designs, 0 where it is not printed
        double eigene;  ///< in the user's own
        bool fett;
        Color farbe;
    } faelle[] = {{"MUSTERFIRMA", 11, 9, true, 6},
                  {"Faxnr", 11, 9, false, 6},
                  {"05.03.2008", 11, 11, false, 0},
                  {"LIEFERDATUM: 1.3.", 11, 12, false, 0},
                  {"12345 Ort", 11, 11, false, 0},
                  {"Kundennr: 8", 11, 11, true, 5},
                  {"Ihr Werbespruch", 14, 14, true, 4},
                  {"RECHNUNG 7", 18, 18, true, 0},
                  {"Bemerkung", 13, 13, false, 3},
                  {"Anrede", 0, 15, false, 3},
                  {"Seite", 9, 9, false, 0},
                  {"INSTITUT", 8, 8, false, 2},
                  {"Leistung", 9, 9, false, 0},
                  {"Posten", 9, 9, false, 0}};
    for (const bool eigenes : {false, true}) {
        Druckprobe p;
        p.einstellungen.Option9_Layout.Value = eigenes;
        PROGRAMMEINSTELLUNG& w = p.werte;
        w.FARBE_LINIEN = 1;
        w.FARBE_BANKDATEN = 2;
        w.FARBE_BEMERKUNGEN = 3;
        w.FARBE_WERBESPRUCH = 4;
        w.FARBE_KUNDENNR = 5;
        w.FARBE_FIRMENDATEN = 6;
        w.GROESSE_ZUSATZ_2 = 9;
        w.GROESSE_ZUSATZ_1 = 12;
        w.GROESSE_BEMERKUNGEN = 13;
        w.GROESSE_WERBUNG = 14;
        w.GROESSE_ANSCHREIBEN = 15;
        w.GROESSE_RECHNUNG = 18;
        p.form1.Text_Kunde_3.Text = "12345 Ort";
        p.form1.Text_KundennrK.Text = "Kundennr: 8";
        p.form1.Check_LIEFERDATUM.Value = 1;
        p.form1.Text_LIEFERDATUM.Text = "LIEFERDATUM: 1.3.";
        p.form1.Text_Bemerkung1[0].Text = "Anrede";
        p.form1.Text_Bemerkung1[1].Text = "Bemerkung";
        p.zeile("1", "Posten", "10");
        const Papier papier = p.drucken({-4, 3});
        for (const auto& f : faelle) {
            SCOPED_TRACE(f.text);
            const drawn::Text* t = papier.finden(f.text);
            const double groesse = eigenes ? f.eigene : f.groesse;
            ASSERT_EQ(t != nullptr, groesse > 0);
            EXPECT_TRUE(t == nullptr ||
                        (t->font.size == groesse && t->font.bold == f.fett && t->color == f.farbe));
        }
        for (const drawn::Text& t : papier.alle<drawn::Text>()) {
            EXPECT_TRUE(t.text != vorgabe::kKunde1 && t.text != vorgabe::kKunde2 &&
                        t.text != vorgabe::kKunde4)
                << "a placeholder leaves its line empty: " << t.text;
        }
        const auto linien = papier.alle<drawn::Line>();
        EXPECT_DOUBLE_EQ(linien.at(0).x1, 0) << "fold marks belong to the sheet's edge";
        EXPECT_DOUBLE_EQ(linien[0].y1, 102);
        EXPECT_DOUBLE_EQ(linien[1].y1, 201);
        EXPECT_EQ(linien.at(0).color, color::rgb(120, 120, 120));
        EXPECT_EQ(linien.at(2).color, 1);
    }
}

TEST(Druck, OhnePositionsnummernRuecktDieTabelleNachLinks) {
    Druckprobe p;
    p.einstellungen.Check_Positionendruck.Value = 0;
    p.zeile("2", "Stuhl", "12,50");
    const Papier papier = p.drucken();
    EXPECT_DOUBLE_EQ(papier.finden("Stuhl")->left, 33);
    EXPECT_DOUBLE_EQ(rechts(papier.finden("12,50")), 141);
    EXPECT_DOUBLE_EQ(rechts(papier.finden("25,00")), 178);
    EXPECT_DOUBLE_EQ(rechts(papier.finden("Menge")), 29);
    EXPECT_DOUBLE_EQ(rechts(papier.finden("Einzelpreis")), 144) << "3 mm right of the values";
    EXPECT_DOUBLE_EQ(rechts(papier.finden("Gesamtpreis")), 181);
    EXPECT_EQ(papier.finden("Pos."), nullptr);
    EXPECT_EQ(papier.finden("001"), nullptr);
}

TEST(Druck, DasLieferdatumSchiebtDieTabelle) {
    Druckprobe p;
    p.einstellungen.Check_MitLogoadresseFFSeite.Value = 0;
    p.zeilen(20);
    p.form1.Check_LIEFERDATUM.Value = 1;
    p.form1.Text_LIEFERDATUM.Text = "LIEFERDATUM: 1.3.";
    const Papier papier = p.drucken({0, -6});
    EXPECT_DOUBLE_EQ(papier.finden("LIEFERDATUM", 2)->top, 24 + 4);
    EXPECT_DOUBLE_EQ(papier.finden("Leistung", 2)->top, 24 + 8 + 2 + 2) << "the table leaves room for it";
}

TEST(Druck, SummenblockMitEnthaltenerMwst) {
    Druckprobe p;
    p.zeile("1", "Posten", "119");
    p.form1.Check_mwst.Value = 1;
    p.form1.Option_inkl_MwSt.Value = true;
    p.form1.Check_Versandkosten.Value = 1;
    p.form1.Text_PreisVersankostenEingabe.Text = "11,90";
    p.summen.jetztberechnen_List();
    std::vector<std::string> zeilen;
    for (const drawn::Text& t : p.drucken().alle<drawn::Text>()) {
        if (rechts(&t) == 184 && t.text.find("   ") != std::string::npos) {
            zeilen.push_back(t.text);
        }
    }
    EXPECT_EQ(zeilen, (std::vector<std::string>{
                          p.form1.Label_summe.Caption() + "   119,00", "Enthaltene MwSt. 19,00 %:    19,00",
                          "Versandkosten:    11,90", p.form1.Label_gesamtbetrag.Caption() + "    130,90"}));
}

TEST(Druck, WasBerechnetWirdStehtAuchAufDemPapier) {
    Druckprobe p;
    p.zeilen(18);
    const auto menge = [&p](int zeile, const char* text) {
        p.form1.List_Menge.RemoveItem(zeile);
        p.form1.List_Menge.AddItem(text, zeile);
    };
    menge(1, "4 Std");
    menge(2, "0");
    p.form1.Check_tele_nichtdrucken.Value = 1;
    p.form1.Text_Kunde_4.Text = "0815/4711";
    Papier papier = p.drucken();
    EXPECT_NE(papier.finden("4 Std"), nullptr);
    EXPECT_NE(papier.finden("002"), nullptr);
    EXPECT_EQ(papier.finden("003"), nullptr) << "without a quantity nothing is printed";
    EXPECT_EQ(papier.finden("0815/4711"), nullptr);
    for (int zeile : {0, 3}) {
        p.form1.List_Gesamtp.RemoveItem(zeile);
        p.form1.List_Gesamtp.AddItem("1e308", zeile);
    }
    papier = p.drucken();
    EXPECT_EQ(papier.ended, true) << "a sum beyond all bounds does not cost the document";
    EXPECT_NE(papier.finden("Seite 2/2", 2), nullptr);
}

TEST(Druck, BemerkungenWeichenDenVersandkosten) {
    const struct {
        const char* name;
        bool versand;
        bool mwst_extra;
        bool mwst_enthalten;
        int leerzeilen;
    } faelle[] = {
        {"ohne Versand", false, true, true, 4},
        {"eine Zeile Versand", true, false, false, 3},
        {"mit getrennter MwSt.", true, true, false, 2},
        {"mit enthaltener MwSt.", true, false, true, 2},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Druckprobe p;
        p.form1.Text_Bemerkung1[1].Text = "Bemerkung";
        p.werte.GROESSE_BEMERKUNGEN = 13;
        p.form1.Check_Versandkosten.Value = f.versand ? 1 : 0;
        p.form1.Check_VersandMwStEXTRA.Value = f.mwst_extra ? 1 : 0;
        p.form1.Check_VersandINKL_MwSt.Value = f.mwst_enthalten ? 1 : 0;
        const Papier papier = p.drucken();
        // The totals end 2 mm below their closing rule; a line is 4 mm high.
        EXPECT_DOUBLE_EQ(papier.finden("Bemerkung")->top,
                         papier.alle<drawn::Line>().back().y1 + 2 + 4 * f.leerzeilen);
        EXPECT_DOUBLE_EQ(papier.finden("Bemerkung")->font.size, 13);
        EXPECT_DOUBLE_EQ(papier.finden("Seite")->font.size, 9);
    }
}

TEST(Druck, EinLieferscheinZeigtWasVerlangtIst) {
    const struct {
        const char* name;
        OptionButton Form1::*art;
        Lieferscheinangaben verlangt;
    } faelle[] = {
        {"Rechnung", &Form1::Option_RECHNUNG, {false, false, false, false}},
        {"nichts", &Form1::Option_LIEFERSCHEIN, {false, false, false, false}},
        {"Werbespruch", &Form1::Option_LIEFERSCHEIN_KOPIE, {true, false, false, false}},
        {"Bemerkungen", &Form1::Option_LIEFERSCHEIN_KOPIE, {false, true, false, false}},
        {"Anschreiben", &Form1::Option_LIEFERSCHEIN, {false, false, true, false}},
        {"Preise", &Form1::Option_LIEFERSCHEIN, {false, false, false, true}},
    };
    for (const auto& f : faelle) {
        for (const bool eigenes : {false, true}) {
            SCOPED_TRACE(f.name + std::string(eigenes ? " im eigenen Layout" : ""));
            Druckprobe p;
            p.einstellungen.Option9_Layout.Value = eigenes;
            p.zeilen(18);
            p.form1.Text_Bemerkung1[0].Text = "Anrede";
            p.form1.Text_Bemerkung1[1].Text = "Bemerkung";
            (p.form1.*f.art).Value = true;
            const Papier papier = p.drucken({0, 0}, {f.verlangt, 185});
            const bool rechnung = f.art == &Form1::Option_RECHNUNG;
            const bool preise = rechnung || (f.verlangt.preise && !eigenes);
            EXPECT_NE(papier.finden("Posten"), nullptr);
            for (const char* preis : {"10,00", "Einzelpreis", "Gesamtpreis", "Zwischensumme"}) {
                EXPECT_EQ(papier.finden(preis) != nullptr, preise) << preis;
            }
            EXPECT_EQ(papier.finden("Übertrag", 2) != nullptr, preise);
            EXPECT_EQ(papier.finden("Rechnungsbetrag", 2) != nullptr, preise);
            EXPECT_EQ(papier.finden("Bemerkung", 2) != nullptr, rechnung || f.verlangt.bemerkungen);
            EXPECT_EQ(papier.finden("Ihr Werbespruch") != nullptr, rechnung || f.verlangt.werbespruch);
            EXPECT_EQ(papier.finden("Anrede") != nullptr, eigenes && (rechnung || f.verlangt.anschreiben));
            if (preise) {
                EXPECT_DOUBLE_EQ(rechts(papier.finden("Rechnungsbetrag", 2)), 185);
            }
        }
    }
}

TEST(Druck, DreiNachkommastellenGeltenAuchFuerDenUebertrag) {
    Druckprobe p;
    p.form1.Check_000.Value = 1;
    for (int i = 0; i < 18; ++i) {
        p.zeile("1", "Posten", "0,125");
    }
    const Papier papier = p.drucken();
    EXPECT_EQ(papier.finden("Zwischensumme")->text, "Zwischensumme:    2,125");
    EXPECT_EQ(papier.finden("Übertrag", 2)->text, "Übertrag:   2,125");
}

TEST(Druck, LeereSeiteUndUebertragVonNull) {
    Druckprobe p;
    Papier papier = p.drucken();
    EXPECT_EQ(papier.seiten(), 1);
    for (const char* text : {"RECHNUNG 7", "Leistung", "Rechnungsbetrag:    0,00", "Seite 1/1", "INSTITUT"}) {
        EXPECT_NE(papier.finden(text), nullptr) << text;
    }
    EXPECT_DOUBLE_EQ(papier.alle<drawn::Line>().back().x2, 200) << "the closing rule is longer";
    for (int i = 0; i < 18; ++i) {
        p.zeile("1", "Gratis", "0");
    }
    EXPECT_EQ(p.drucken().finden("Übertrag", 2)->text, "Übertrag:   0,00");
}

} // namespace
} // namespace quittika
