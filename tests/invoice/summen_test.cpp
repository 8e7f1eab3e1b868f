#include "invoice/compressor.hpp"
#include "invoice/summen.hpp"
#include "invoice/zahleneingabe.hpp"

#include "platform/text.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Mengen, WerdenNachIhrerArtGelesenUndGeschrieben) {
    const struct {
        const char* name;
        bool dezimal;
        const char* getippt;
        const char* danach;
        std::size_t meldungen;
    } faelle[] = {
        {"ganze Zahl", false, "3", "3", 0},
        {"halb zur geraden", false, "2,5", "2", 0},
        {"halb zur geraden aufwärts", false, "3.5", "4", 0},
        {"größte ganze", false, "32767", "32767", 0},
        {"zu groß", false, "32768", "32768", 1},
        {"eine Stelle", true, "1,5", "1,5", 0},
        {"zwei Stellen mit Punkt", true, "1.25", "1,25", 0},
        {"vier Stellen", true, "0,1234", "0,1234", 0},
        {"fünf Stellen nehmen zwei", true, "0,12345", "0,12", 0},
        {"ohne Komma", true, "7", "7,00", 0},
        {"keine Zahl", false, "zwei", "zwei", 1},
        {"leer", true, "", "", 1},
        {"Leerzeichen einer Kommentarzeile", false, " ", " ", 0},
        {"Punkt und Komma", true, "1.234,5", "1234,5", 0},
        {"Punkte am falschen Ort", true, "1.2.3,4", "1,2,3,4", 1},
        {"unendlich", true, "inf", "inf", 1},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Pruefstand p;
        p.form1.Check_mengenartDECIMAL.Value = f.dezimal ? 1 : 0;
        p.form1.Text_Menge.Text = f.getippt;
        p.summen.jetztberechnen_List();
        EXPECT_EQ(p.form1.Text_Menge.Text(), f.danach);
        EXPECT_EQ(p.dialoge.take_boxes(),
                  std::vector<std::string>(f.meldungen,
                                           "box|Achtung Fehler!|ok|none|Ihre Eingabe ist nicht gültig!|ok"));
    }
}

TEST(Zahleneingabe, PunkteVorDemKommaSindTausender) {
    const struct {
        const char* getippt;
        double wert;
        bool wie_tausender;
    } faelle[] = {
        {"1.999,99", 1999.99, false}, {"5,-", 5, false},       {"1.200,-- ", 1200, false},
        {"-5,–", -5, false},          {"5-", -5, false},       {" -1.234,5 ", -1234.5, false},
        {"1.234,5-", -1234.5, false}, {"1.000,", 1000, false}, {"1.200", 1.2, true},
        {"-120.000", -120, true},     {"0.500", 0.5, false},   {"1200.000", 1200, false},
        {"1.25", 1.25, false},        {"12", 12, false},       {",5", 0.5, false},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.getippt);
        const auto zahl = ZAHL_LESEN(f.getippt);
        ASSERT_TRUE(zahl);
        EXPECT_EQ(zahl->wert, f.wert);
        EXPECT_EQ(zahl->wie_tausender, f.wie_tausender);
    }
    EXPECT_EQ(ZAHL_LESEN("12.345.678,90")->wert, 12345678.9);
    for (const char* keine : {"1.2.3,4", "1234.567,8", "12.34,5", ".123,4", "1..234,5", "1.23a,5", "1,234.56",
                              "1.234.567", "1,2,3", "", "."}) {
        EXPECT_FALSE(ZAHL_LESEN(keine)) << keine;
    }
}

TEST(Summen, NurZahlenAusserhalbVonKommentarenZaehlen) {
    Pruefstand p;
    for (const auto& [art, betrag] :
         {std::pair{"-", "10,50"}, {"K", "99,00"}, {"T", " "}, {"-", "kaputt"}, {"X", "1,00"}}) {
        p.form1.List_K.AddItem(art);
        p.form1.List_pos.AddItem("?");
        p.form1.List_Gesamtp.AddItem(betrag);
    }
    p.form1.List_Gesamtp.ListIndex = 2;
    p.form1.List_pos.ListIndex = 3;
    p.summen.jetztberechnen_List();
    EXPECT_EQ(p.form1.Text_summe.Text(), "11,50");
    EXPECT_EQ(p.form1.List_pos.items(), (std::vector<std::string>{"1", " ", " ", "2", " "}));
    EXPECT_EQ(p.form1.List_Gesamtp.ListIndex(), 2) << "calculating keeps the selection";
    EXPECT_EQ(p.form1.List_pos.ListIndex(), 3);
}

TEST(Compressor, SpaltenHabenIhreBreite) {
    const struct {
        int art;
        const char* text;
        std::string erwartet;
    } faelle[] = {
        {1, "7", "007"},
        {1, "1234", "1234"},
        {1, " ", "   "},
        {2, "12", "       12"},
        {2, "1234567890", "1234567890"},
        {3, "ab", std::string(37, ' ') + "ab" + std::string(37, ' ')},
        {3, "für", std::string(36, ' ') + "für " + std::string(36, ' ')},
        {3, "", std::string(76, ' ')},
        {4, "1,00", "  1,00"},
        {5, "1,00", "      1,00"},
        {6, "1", ""},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(COMPRESSOR(f.art, f.text), f.erwartet) << f.art << " " << f.text;
    }
    EXPECT_EQ(zeichenzahl(COMPRESSOR(3, std::string(80, 'x'))), 80U) << "a longer text is not cut";
}

} // namespace
} // namespace quittika
