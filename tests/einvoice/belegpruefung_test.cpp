#include "einvoice/cii.hpp"
#include "einvoice/e_rechnungsausgabe.hpp"
#include "einvoice/kennungen.hpp"
#include "platform/text.hpp"
#include "tests/einvoice/musterrechnung.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace quittika {
namespace {

using ::testing::HasSubstr;

/// What an invoice is made of, for tests to spoil.
struct Probe {
    Belegquelle quelle;
    Verkaeufer verkaeufer = MUSTERVERKAEUFER();
    Kaeufer kaeufer = MUSTERKAEUFER();
    Bezug bezug;

    E_Rechnung rechnung(E_Format format) const {
        return E_RECHNUNG(quelle, verkaeufer, kaeufer, bezug, format);
    }
    /// Controls that fatal findings name, each followed by a blank.
    std::string fatale_felder(E_Format format) const {
        std::string felder;
        for (const Mangel& mangel : rechnung(format).maengel) {
            felder += mangel.schwere == Schwere::Fatal ? mangel.feld + " " : "";
        }
        return felder;
    }
};

Probe probe() {
    Musterrechnung m;
    m.zeile("2", "Stuhl", "50,00");
    return {m.quelle(), MUSTERVERKAEUFER(), MUSTERKAEUFER(), {}};
}

TEST(Belegpruefung, JedesFehlendePflichtfeldWirdGenannt) {
    EXPECT_EQ(probe().fatale_felder(E_Format::ZUGFeRD), "");
    EXPECT_EQ(probe().fatale_felder(E_Format::XRechnung), "");
    const struct {
        const char* feld;
        bool nur_xrechnung;
        std::function<void(Probe&)> wegnehmen;
    } faelle[] = {
        {"Text_RNnr ", false, [](Probe& p) { p.quelle.Nummer = " "; }},
        {"Text_Datum ", false, [](Probe& p) { p.quelle.Datum = ""; }},
        {"Text_Waehrung ", false, [](Probe& p) { p.quelle.Waehrung = "Taler"; }},
        {"List_DARSTELLUNG ", false,
         [](Probe& p) {
             p.quelle.zeilen.clear();
             p.quelle.Gesamtbetrag = "0,00";
         }},
        {"List_DARSTELLUNG ", false, [](Probe& p) { p.quelle.zeilen[0].Leistung = "\x01 "; }},
        {"Option_RECHNUNG ", false, [](Probe& p) { p.quelle.lieferschein = true; }},
        {"Text_Verkaeufer_Name ", false, [](Probe& p) { p.verkaeufer.Name = "\t"; }},
        {"Text_Verkaeufer_Land ", false, [](Probe& p) { p.verkaeufer.Land = ""; }},
        {"Text_Verkaeufer_USt_IdNr ", false,
         [](Probe& p) { p.verkaeufer.USt_IdNr = p.verkaeufer.Steuernummer = ""; }},
        {"Text_Zahlungstage ", false, [](Probe& p) { p.verkaeufer.Zahlungstage = ""; }},
        {"Text_Kaeufer_Name ", false, [](Probe& p) { p.kaeufer.Name = ""; }},
        {"Text_Kaeufer_Land ", false, [](Probe& p) { p.kaeufer.Land = ""; }},
        {"Text_Verkaeufer_PLZ ", true, [](Probe& p) { p.verkaeufer.PLZ = ""; }},
        {"Text_Verkaeufer_Ort ", true, [](Probe& p) { p.verkaeufer.Ort = ""; }},
        {"Text_Verkaeufer_Kontakt ", true, [](Probe& p) { p.verkaeufer.Kontakt = ""; }},
        {"Text_Verkaeufer_Telefon ", true, [](Probe& p) { p.verkaeufer.Telefon = ""; }},
        {"Text_Verkaeufer_E_Mail ", true, [](Probe& p) { p.verkaeufer.E_Mail = ""; }},
        {"Text_Verkaeufer_IBAN ", true, [](Probe& p) { p.verkaeufer.IBAN = ""; }},
        {"Text_Kaeufer_PLZ ", true, [](Probe& p) { p.kaeufer.PLZ = ""; }},
        {"Text_Kaeufer_Ort ", true, [](Probe& p) { p.kaeufer.Ort = ""; }},
        {"Text_Kaeufer_E_Mail ", true, [](Probe& p) { p.kaeufer.E_Mail = ""; }},
        {"Text_Kaeufer_Leitweg_ID ", true, [](Probe& p) { p.kaeufer.Leitweg_ID = ""; }},
        // wrong ones
        {"Text_Datum ", false, [](Probe& p) { p.quelle.Datum = "31.2.2026"; }},
        {"Text_Verkaeufer_USt_IdNr ", false, [](Probe& p) { p.verkaeufer.USt_IdNr = "DE136695975"; }},
        {"Text_Kaeufer_USt_IdNr ", false, [](Probe& p) { p.kaeufer.USt_IdNr = "AT12345678"; }},
        {"Text_Kaeufer_USt_IdNr ", false, [](Probe& p) { p.kaeufer.USt_IdNr = "???"; }},
        {"Text_Verkaeufer_IBAN ", false, [](Probe& p) { p.verkaeufer.IBAN = "DE02120300000000202052"; }},
        {"Text_Verkaeufer_BIC ", false, [](Probe& p) { p.verkaeufer.BIC = "BYLADEM10"; }},
        {"Text_Kaeufer_Leitweg_ID ", false,
         [](Probe& p) { p.kaeufer.Leitweg_ID = "04011000-1234512345-07"; }},
        {"Text_Kaeufer_E_Mail ", false, [](Probe& p) { p.kaeufer.E_Mail = "rechnung@bonn"; }},
        {"Text_Verkaeufer_Land ", false, [](Probe& p) { p.verkaeufer.Land = "XX"; }},
        {"Text_Verkaeufer_Telefon ", false, [](Probe& p) { p.verkaeufer.Telefon = "siehe Brief"; }},
        {"Text_Zahlungstage ", false, [](Probe& p) { p.verkaeufer.Zahlungstage = "bald"; }},
        {"Text_Skonto_Tage ", false, [](Probe& p) { p.verkaeufer.Skonto_Prozent = "2"; }},
        {"Text_Skonto_Prozent ", false, [](Probe& p) { p.verkaeufer.Skonto_Tage = "10"; }},
        // documents that take others back, and invoices without VAT
        {"Combo_Belegart ", false, [](Probe& p) { p.quelle.Titel = "Stornorechnung"; }},
        {"Text_Bezug_Nummer ", false,
         [](Probe& p) {
             p.bezug = {Belegart::Korrektur, "", "1.1.2026"};
         }},
        {"Text_Bezug_Datum ", false,
         [](Probe& p) {
             p.bezug = {Belegart::Gutschrift, "16", "neulich"};
         }},
        {"Combo_Befreiungsgrund ", false,
         [](Probe& p) {
             p.quelle.mwst = Mwst_Modus::Ohne;
             p.quelle.Gesamtbetrag = "100,00";
             p.verkaeufer.Befreiungsgrund = "";
         }},
        {"Text_Befreiungstext ", false,
         [](Probe& p) {
             p.quelle.mwst = Mwst_Modus::Ohne;
             p.quelle.Gesamtbetrag = "100,00";
             p.verkaeufer.Befreiungsgrund = "Anderer";
         }},
        {"Text_Kaeufer_USt_IdNr Text_LIEFERDATUM ", false,
         [](Probe& p) {
             p.quelle.mwst = Mwst_Modus::Ohne;
             p.quelle.Gesamtbetrag = "100,00";
             p.verkaeufer.Befreiungsgrund = "Innergemeinschaftlich";
             p.quelle.Lieferdatum = p.kaeufer.USt_IdNr = "";
         }},
        // amounts
        {"Text_gesamtbetrag ", false, [](Probe& p) { p.quelle.Gesamtbetrag = "119,03"; }},
        {"List_DARSTELLUNG ", false, [](Probe& p) { p.quelle.zeilen[0].Menge = "zwei"; }},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.feld);
        Probe p = probe();
        f.wegnehmen(p);
        EXPECT_EQ(p.fatale_felder(E_Format::XRechnung), f.feld);
        EXPECT_EQ(p.fatale_felder(E_Format::ZUGFeRD), f.nur_xrechnung ? "" : f.feld);
    }
}

TEST(Belegpruefung, BetraegeAusDerRechnungWerdenNetto) {
    const struct {
        const char* name;
        Mwst_Modus modus;
        const char* rabatt; ///< per cent, empty for none
        const char* versand;
        const char* gesamt;
        Belegsummen summen; ///< in cents
        std::int64_t preis; ///< of the first row, in 1/1,000,000
    } faelle[] = {
        // 3 x 33,33 = 99,99; 10 % = 10,00; VAT 19 % of 89,99 = 17,10
        {"plus",
         Mwst_Modus::Plus,
         "10",
         "",
         "107,09",
         {9999, 1000, 0, 8999, 1710, 10709, 0, 10709},
         33'330'000},
        // 33,33 / 1,19 = 28,008403; x 3 = 84,03; VAT 15,97 leaves 1 cent less than 99,99 + 0,01
        {"inklusive",
         Mwst_Modus::Inklusive,
         "",
         "",
         "99,99",
         {8403, 0, 0, 8403, 1597, 10000, -1, 9999},
         28'008'403},
        // the same without VAT
        {"minus", Mwst_Modus::Minus, "", "", "84,03", {8403, 0, 0, 8403, 0, 8403, 0, 8403}, 28'008'403},
        {"ohne",
         Mwst_Modus::Ohne,
         "",
         "5,95",
         "105,94",
         {9999, 0, 595, 10594, 0, 10594, 0, 10594},
         33'330'000},
        // shipping 5,95 at 19 % is 5,00 and 0,95; 99,99 + 5,00 = 104,99; VAT 19,95
        {"Versand",
         Mwst_Modus::Plus,
         "",
         "5,95",
         "124,94",
         {9999, 0, 500, 10499, 1995, 12494, 0, 12494},
         33'330'000},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Musterrechnung m;
        m.modus(f.modus);
        m.zeile("3", "Stuhl", "33,33");
        m.form1.Check_RABATT.Value = *f.rabatt != '\0' ? 1 : 0;
        m.form1.Text_Rabatt.Text = *f.rabatt != '\0' ? f.rabatt : "0";
        m.form1.Check_Versandkosten.Value = *f.versand != '\0' ? 1 : 0;
        m.form1.Text_PreisVersankostenEingabe.Text = *f.versand != '\0' ? f.versand : "0";
        const Belegquelle quelle = m.quelle();
        EXPECT_EQ(quelle.Gesamtbetrag, f.gesamt);
        const Aufstellung a = RECHNUNGSBELEG(quelle, MUSTERVERKAEUFER(), MUSTERKAEUFER());
        const Belegsummen& s = a.beleg.summen;
        EXPECT_EQ(s.zeilen, f.summen.zeilen) << s.zeilen.wert;
        EXPECT_EQ(s.nachlaesse, f.summen.nachlaesse) << s.nachlaesse.wert;
        EXPECT_EQ(s.zuschlaege, f.summen.zuschlaege) << s.zuschlaege.wert;
        EXPECT_EQ(s.netto, f.summen.netto) << s.netto.wert;
        EXPECT_EQ(s.steuer, f.summen.steuer) << s.steuer.wert;
        EXPECT_EQ(s.rundung, f.summen.rundung) << s.rundung.wert;
        EXPECT_EQ(s.zahlbetrag, f.summen.zahlbetrag);
        EXPECT_EQ(a.beleg.zeilen.at(0).einzelpreis.wert, f.preis);
        const bool hinweis = std::any_of(a.maengel.begin(), a.maengel.end(), [](const Mangel& mangel) {
            return mangel.feld == "Check_VersandMwStEXTRA" && mangel.schwere == Schwere::Hinweis;
        });
        EXPECT_EQ(hinweis, std::string(f.name) == "Versand") << "tax that enters the total must be shown";
    }
}

TEST(Belegpruefung, KommentareWerdenBemerkungenUndUmbruecheVerschwinden) {
    Musterrechnung m;
    m.kommentar("Wir danken für den Auftrag");
    m.zeile("-1,5", "Rücknahme", "-2,00");
    m.kommentar("eins");
    m.positionen.Command_Trennzeile_Click();
    m.kommentar("zwei");
    m.form1.Text_Bemerkung1[1].Text = "Es gelten unsere Bedingungen.";
    const Rechnungsbeleg b = RECHNUNGSBELEG(m.quelle(), MUSTERVERKAEUFER(), MUSTERKAEUFER()).beleg;
    EXPECT_EQ(b.hinweise,
              (std::vector<std::string>{"Es gelten unsere Bedingungen.", "Wir danken für den Auftrag"}));
    ASSERT_EQ(b.zeilen.size(), 1U);
    EXPECT_EQ(b.zeilen[0].hinweise, (std::vector<std::string>{"eins", "zwei"}));
    EXPECT_EQ(datentext(b.zeilen[0].menge), "1.5") << "a price is never negative";
    EXPECT_EQ(datentext(b.zeilen[0].einzelpreis), "2");
    EXPECT_EQ(datentext(b.zeilen[0].betrag), "3.00");
}

TEST(Cii, DasSchemaNimmtNichtsWasDasProgrammNichtSchreibt) {
    const Probe p = probe();
    const std::string xml = CII_XML(p.rechnung(E_Format::XRechnung).beleg, E_Format::XRechnung);
    EXPECT_EQ(CII_SCHEMAFEHLER(xml), "");
    const struct {
        const char* von;
        const char* durch;
    } faelle[] = {
        {"<ram:TypeCode>380<", "<ram:TypeCode>999<"},
        {"<ram:GrandTotalAmount>119.00<", "<ram:GrandTotalAmount>119.001<"},
        {"20261123", "2026-11-23"},
        {"<ram:Name>Stuhl</ram:Name>", "<ram:Name> </ram:Name>"},
        {"unitCode=\"C62\"", ""},
        {"<ram:CountryID>DE</ram:CountryID>", ""},
        {"<ram:CategoryCode>S<", "<ram:CategoryCode>X<"},
        {"</rsm:CrossIndustryInvoice>", ""},
    };
    for (const auto& f : faelle) {
        ASSERT_THAT(xml, HasSubstr(f.von));
        EXPECT_NE(CII_SCHEMAFEHLER(ersetzen(xml, f.von, f.durch)), "") << f.von;
    }
    EXPECT_THROW(CII_XML(Rechnungsbeleg{}, E_Format::ZUGFeRD), Laufzeitfehler);
}

TEST(Cii, InnergemeinschaftlicherVersandNenntDasZiel) {
    Rechnungsbeleg beleg = probe().rechnung(E_Format::ZUGFeRD).beleg;
    EXPECT_EQ(CII_XML(beleg, E_Format::ZUGFeRD).find("ShipToTradeParty"), std::string::npos);
    beleg.steuern.push_back(
        {{"K", {}}, {500}, {}, "steuerfrei", "VATEX-EU-IC"}); // behind that of the positions
    EXPECT_THAT(CII_XML(beleg, E_Format::ZUGFeRD), HasSubstr("<ram:ShipToTradeParty>"));
}

TEST(Kennungen, FormUndPruefziffern) {
    const struct {
        std::string (*fehler)(std::string_view);
        const char* text;
        bool gut;
    } faelle[] = {
        {UST_ID_FEHLER, "", true},
        {UST_ID_FEHLER, "de 136 695 976", true},
        {UST_ID_FEHLER, "DE136695967", false}, // two digits changed places
        {UST_ID_FEHLER, "DE13669597", false},
        {UST_ID_FEHLER, "ATU12345678", true},
        {UST_ID_FEHLER, "NL123456789B01", true},
        {UST_ID_FEHLER, "CHE-123.456.789 MWST", true},
        {UST_ID_FEHLER, "123456789", false},
        {UST_ID_FEHLER, "-", false},
        {LEITWEG_FEHLER, "992-90009-96", true},
        {LEITWEG_FEHLER, "04011000-12350-85", true},
        {LEITWEG_FEHLER, "04011000-12305-85", false},
        {LEITWEG_FEHLER, "04011000", false},
        {E_MAIL_FEHLER, "a.b@c.de", true},
        {E_MAIL_FEHLER, "a@b@c.de", false},
        {E_MAIL_FEHLER, "a b@c.de", false},
        {E_MAIL_FEHLER, "@c.de", false},
        {E_MAIL_FEHLER, "a@c.", false},
        {BIC_FEHLER, "MARK DE F1 100", true},
        {BIC_FEHLER, "MARKDEF11", false},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(f.fehler(f.text).empty(), f.gut) << f.text;
    }
}

TEST(Hindernis, SagtAufDeutschWoEsNichtPasst) {
    const std::string text = E_RECHNUNGSHINDERNIS(Laufzeitfehler(
        fehler::kUngueltigerAufruf, "line 40: Type does not match\nline 7: Error\nline 40: x\n"));
    EXPECT_NE(text.find("(Zeile 7, 40 des XML)"), std::string::npos) << text;
    EXPECT_EQ(text.find("Error"), std::string::npos) << text;
    EXPECT_EQ(
        E_RECHNUNGSHINDERNIS(Laufzeitfehler(fehler::kDatentraegerVoll)).find("Der Datenträger ist voll"), 0U);
}

} // namespace
} // namespace quittika
