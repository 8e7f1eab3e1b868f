#include "analyzer/ansicht.hpp"

#include "analyzer/cent.hpp"
#include "analyzer/diagramm.hpp"
#include "analyzer/unbezahlte_csv.hpp"
#include "platform/laufzeitfehler.hpp"
#include "tests/analyzerprobe.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace quittika {
namespace {

using Zeilen = std::vector<int>;

struct Analyzerprobe : ::testing::Test {
    Analyzerprobe() { PROBE_EINTRAGEN(form, kProbenrechnungen); }
    Zeilen zeigen(const Ansichtswunsch& wunsch) {
        const Rechnungstabelle daten(form.List_rohdata);
        return ANSICHT(daten, SUCHTEXTE(daten), wunsch);
    }
    Form_Analyzer form;
};

TEST_F(Analyzerprobe, SortiertNachDerArtDerSpalte) {
    constexpr int kDatum = 0;
    constexpr int kNummer = 1;
    constexpr int kKunde = 3;
    constexpr int kNetto = 8;
    constexpr int kBezahlt = 7;
    EXPECT_EQ(zeigen({}), (Zeilen{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(zeigen({kDatum, false, "", false, {}}), (Zeilen{4, 0, 3, 5, 1, 2}));
    EXPECT_EQ(zeigen({kDatum, true, "", false, {}}), (Zeilen{1, 5, 3, 0, 4, 2})) << "no date stays last";
    EXPECT_EQ(zeigen({kNummer, false, "", false, {}}), (Zeilen{4, 5, 1, 0, 2, 3})) << "2 8 9 10 11 100";
    EXPECT_EQ(zeigen({kKunde, false, "", false, {}}), (Zeilen{1, 0, 2, 5, 4, 3})) << "Ä as Ae, ü as ue";
    EXPECT_EQ(zeigen({kNetto, false, "", false, {}}), (Zeilen{3, 2, 0, 5, 1, 4})) << "-20 10 100 200 1000";
    EXPECT_EQ(zeigen({kBezahlt, true, "", false, {}}), (Zeilen{1, 2, 3, 4, 0, 5})) << "ties in file order";
}

TEST_F(Analyzerprobe, SuchtInJedemFeldUndVerbindetDieFilter) {
    EXPECT_EQ(zeigen({-1, false, "mueller", false, {}}), (Zeilen{0, 2}));
    EXPECT_EQ(zeigen({-1, false, " MÜLLER  rn-11 ", false, {}}), (Zeilen{2})) << "each word, whatever field";
    EXPECT_EQ(zeigen({-1, false, "ruft", false, {}}), (Zeilen{1}));
    EXPECT_EQ(zeigen({-1, false, "11.2008", false, {}}), (Zeilen{0, 3, 5}));
    EXPECT_EQ(zeigen({-1, false, "", true, {}}), (Zeilen{1, 2, 3, 4}));
    EXPECT_EQ(zeigen({8, true, "rn", true, Zeilen{0, 2, 3}}), (Zeilen{2, 3}));
    EXPECT_EQ(zeigen({-1, false, "gibt es nicht", false, {}}), Zeilen{});
}

TEST_F(Analyzerprobe, DieListeZeigtEineAndereFolgeDerselbenEintraege) {
    ListBox& liste = form.List_ANSICHT;
    const std::vector<std::string> vorher = liste.items();
    liste.ListIndex = 2;
    liste.show_rows({5, 2, 0});
    EXPECT_EQ(liste.items(), vorher);
    EXPECT_EQ(liste.ListIndex(), 2);
    EXPECT_EQ(liste.shown_count(), 3);
    EXPECT_EQ(liste.item_in(0), 5);
    EXPECT_EQ(liste.item_in(3), -1);
    EXPECT_EQ(liste.row_of(0), 2);
    EXPECT_EQ(liste.row_of(1), -1);
    EXPECT_THROW(liste.show_rows({1, 1}), Laufzeitfehler);
    EXPECT_THROW(liste.show_rows({6}), Laufzeitfehler);
    EXPECT_EQ(liste.item_in(0), 5) << "what is refused changes nothing";
    liste.AddItem("neu");
    EXPECT_EQ(liste.row_of(6), 6) << "new items end the other order";
}

std::string als_text(const std::vector<Saeule>& saeulen) {
    std::string text;
    for (const Saeule& s : saeulen) {
        text += s.name + " " + cents_text(CENT(s.bezahlt.summe)) + "/" + cents_text(CENT(s.unbezahlt.summe)) +
                ";";
    }
    return text;
}

TEST_F(Analyzerprobe, GruppiertNachMonatenUndMahnstufen) {
    const Monatsbild bild = NACH_MONATEN(Rechnungstabelle(form.List_rohdata));
    EXPECT_EQ(als_text(bild.saeulen), "11.2008 357,00/35,70;12.2008 0,00/0,00;01.2009 0,00/1.190,00;"
                                      "ohne Datum 0,00/11,90;");
    EXPECT_EQ(bild.ohne_datum, 1);
    EXPECT_EQ(bild.saeulen.front().bezahlt.rechnungen, (Zeilen{0, 5}));
    EXPECT_EQ(bild.saeulen.front().unbezahlt.rechnungen, (Zeilen{3, 4}));
    EXPECT_EQ(als_text(NACH_MAHNSTUFEN(Rechnungstabelle(form.List_rohdata))),
              "nicht gemahnt 0,00/71,40;erinnert 0,00/-23,80;1. Mahnung 0,00/1.190,00;");
}

TEST_F(Analyzerprobe, WeitEntfernteMonateLassenKeineTausendSaeulenEntstehen) {
    Form_Analyzer zwei;
    Probenrechnung frueh = kProbenrechnungen[0];
    frueh[rohdatum::kDatum] = "01.01.1009";
    PROBE_EINTRAGEN(zwei, {kProbenrechnungen[0], frueh});
    EXPECT_EQ(als_text(NACH_MONATEN(Rechnungstabelle(zwei.List_rohdata)).saeulen),
              "01.1009 119,00/0,00;11.2008 119,00/0,00;");
    EXPECT_TRUE(NACH_MONATEN(Rechnungstabelle(Form_Analyzer().List_rohdata)).saeulen.empty());
}

TEST(Cent, RundetEinmalUndBleibtInDenGrenzen) {
    const std::vector<std::pair<const char*, std::optional<std::int64_t>>> faelle{
        {"119,00", 11900}, {"1.190,5", 119050},
        {"0.005", 1},      {"-0,005", -1},
        {"keine", {}},     {"99999999999999999999", std::numeric_limits<std::int64_t>::max()}};
    for (const auto& [text, cent] : faelle) {
        EXPECT_EQ(CENT(std::string_view(text)), cent) << text;
    }
    EXPECT_EQ(cents_text(-5), "-0,05");
    EXPECT_EQ(cents_text(123456789), "1.234.567,89");
}

TEST_F(Analyzerprobe, CsvFuerDenSteuerberater) {
    const Rechnungstabelle daten(form.List_rohdata);
    const auto& dateien = form.List_dateien.items();
    const Csvinhalt ansi = UNBEZAHLTE_CSV(daten, dateien, Zeichensatz::Windows1252);
    EXPECT_EQ(ansi.bytes, "Datum;Rechnungsnummer;Kundennummer;Kundenname;versendet;abgemahnt;Mahnstufe;Netto;"
                          "MwSt;Brutto;Notiz;Datei\r\n"
                          "2.1.2009;RN-9;K12;\xC4hre GmbH;JA;JA;1;1000,00;190,00;1190,00;ruft an;R9.qk8\r\n"
                          "irgendwann;RN-11;K7;Mueller & Sohn;NEIN;NEIN;0;10,00;1,90;11,90;;R11.qk8\r\n"
                          "28.11.2008;RN-100;;Zander;JA;JA;0;-20,00;-3,80;-23,80;;R100.qk8\r\n"
                          "01.11.08;RN-2;K3;\"Otto; \"\"Rolf\"\"\";JA;NEIN;0;keine;;59,50;"
                          "Preis in \x80 ?;R2.qk8\r\n");
    EXPECT_EQ(ansi.ersetzt, 1U);
    EXPECT_EQ(ansi.rechnungen, 4);
    const Csvinhalt utf8 = UNBEZAHLTE_CSV(daten, dateien, Zeichensatz::Utf8);
    EXPECT_EQ(utf8.bytes.substr(0, 8), "\xEF\xBB\xBF"
                                       "Datum");
    EXPECT_NE(utf8.bytes.find("\xE2\x82\xAC \xE2\x9C\x93;R2.qk8\r\n"), std::string::npos);
    EXPECT_EQ(utf8.ersetzt, 0U);
}

} // namespace
} // namespace quittika
