#include "platform/zahlen.hpp"

#include "tests/fehlernummer.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace quittika {
namespace {

std::string nullen(std::size_t anzahl) {
    return std::string(anzahl, '0');
}

TEST(Zahlen, TextWirdZahlOderNicht) {
    const struct {
        const char* text;
        double wert;
    } faelle[] = {
        {"0", 0},      {"1,5", 1.5},   {"1,5 ", 1.5},  {" \t-1,5", -1.5}, {"1.234,5", 1234.5}, {"1.2", 12},
        {"1e3", 1000}, {"1E+3", 1000}, {"2d-2", 0.02}, {",5", 0.5},       {"5,", 5},           {"+7", 7},
        {"- 7", -7},   {"7-", -7},     {"0,1", 0.1},   {"1e-400", 0.0},   {"1e308", 1e308},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(double_versuch(f.text), f.wert) << "»" << f.text << "«";
        EXPECT_TRUE(ist_numerisch(f.text));
    }
    for (const char* keine : {"", "-", ",", "12a", "1,2,3", "1,2.3", "1e", "e5", "--1", "-1-", "nan", "inf",
                              "0x10", "1e400", "1 2", ".5", "5€"}) {
        EXPECT_EQ(double_versuch(keine), std::nullopt) << keine;
        EXPECT_FALSE(ist_numerisch(keine)) << keine;
    }
    EXPECT_EQ(double_versuch(std::string_view("1\0", 2)), std::nullopt);
    constexpr Locale englisch{'.', ',', "True", "False"};
    EXPECT_EQ(double_versuch("1,234.5", englisch), 1234.5);
    EXPECT_EQ(fehlernummer([] { nach_double("x"); }), fehler::kFalscherTyp);
}

TEST(Zahlen, GroesseEntscheidetNichtDieSchreibweise) {
    const struct {
        const char* name;
        std::string text;
        int fehler;
        double wert;
    } faelle[] = {
        {"beyond, behind leading zeros", "00" + std::string(400, '9'), 6, 0},
        {"beyond in spite of a negative exponent", "1" + nullen(400) + "e-50", 6, 0},
        {"within by a negative exponent", "1" + nullen(400) + "e-300", 0, 1e100},
        {"below in spite of a positive exponent", "0," + nullen(400) + "1e+5", 0, 0},
        {"below, without an exponent", "0," + nullen(400) + "1", 0, 0},
        {"exponent that no integer holds", "1e99999999999999999999", 6, 0},
        {"the same below", "1e-99999999999999999999", 0, 0},
        {"nothing, however large the exponent", "0e999", 0, 0},
        {"longer than any number", nullen(600) + "1", 13, 0},
    };
    for (const auto& f : faelle) {
        int fehler = 0;
        double wert = 0;
        try {
            wert = nach_double(f.text);
        } catch (const Laufzeitfehler& e) {
            fehler = e.nummer();
        }
        EXPECT_EQ(fehler, f.fehler) << f.name;
        EXPECT_EQ(wert, f.wert) << f.name;
        EXPECT_EQ(ist_numerisch(f.text), f.fehler == 0) << f.name;
    }
}

TEST(Zahlen, GanzzahlenRundenZurGeraden) {
    const std::pair<double, int> gut[] = {{2.5, 2},         {3.5, 4},         {-2.5, -2},        {0.5, 0},
                                          {32767.4, 32767}, {32766.5, 32766}, {-32768.5, -32768}};
    for (const auto& [wert, erwartet] : gut) {
        EXPECT_EQ(nach_int16(wert), erwartet) << wert;
    }
    for (const double wert : {32767.5, 32768.0, -32769.0, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(fehlernummer([&] { nach_int16(wert); }), fehler::kUeberlauf) << wert;
    }
    EXPECT_EQ(nach_int32("2.147.483.647"), 2147483647);
    EXPECT_EQ(fehlernummer([] { nach_int32("2147483648"); }), fehler::kUeberlauf);
    EXPECT_EQ(fehlernummer([] { nach_int16("12a"); }), fehler::kFalscherTyp);
}

TEST(Zahlen, ZahlWirdTextMitFuenfzehnStellen) {
    const std::pair<double, const char*> faelle[] = {{0, "0"},
                                                     {-0.0, "0"},
                                                     {19, "19"},
                                                     {1.5, "1,5"},
                                                     {-1234.25, "-1234,25"},
                                                     {0.00001, "0,00001"},
                                                     {1e15, "1E+15"},
                                                     {-1.5e100, "-1,5E+100"},
                                                     {1e-20, "1E-20"}};
    for (const auto& [wert, text] : faelle) {
        EXPECT_EQ(zahl_text(wert), text);
    }
    EXPECT_EQ(zahl_text(0.1 + 0.2), "0,3");
    EXPECT_EQ(zahl_text(1.0 / 3), "0,333333333333333");
    EXPECT_EQ(zahl_text(1.0 / 3000), "3,33333333333333E-04");
    EXPECT_EQ(zahl_text(999999999999999), "999999999999999");
    EXPECT_EQ(zahl_text(123456789012345678.0), "1,23456789012346E+17");
    EXPECT_EQ(fehlernummer([] { zahl_text(std::numeric_limits<double>::infinity()); }), fehler::kUeberlauf);
    EXPECT_EQ(dezimal_bereinigt(0.1 + 0.2), 0.3);
    EXPECT_EQ(dezimal_bereinigt(1.7e308), 1.7e308);
    EXPECT_EQ(dezimal_bereinigt(5e-324), 5e-324);
    EXPECT_EQ(fehlernummer([] { dezimal_bereinigt(-std::numeric_limits<double>::max()); }),
              fehler::kUeberlauf);
}

TEST(Zahlen, FormateRundenDenDezimaltext) {
    const struct {
        double wert;
        const char* muster;
        const char* text;
    } faelle[] = {
        {1.005, "0.00", "1,01"},
        {2.675, "0.00", "2,68"},
        {0.30000000000000004, "0.00", "0,30"},
        {-0.005, "0.00", "-0,01"},
        {-0.004, "0.00", "0,00"},
        {0, "-0.00", "-0,00"},
        {5, "-0.00", "-5,00"},
        {-5, "-0.00", "--5,00"},
        {7, "000", "007"},
        {1234, "000", "1234"},
        {-7, "000", "-007"},
        {2.5, "0", "3"},
        {99.995, "0.00", "100,00"},
        {0.5, "0", "1"},
        {0.4, "0", "0"},
        {1e-300, "0.000", "0,000"},
        {12.3456, "0.0000", "12,3456"},
        {9.9995, "0.000", "10,000"},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(format_zahl(f.wert, f.muster), f.text) << f.wert << " " << f.muster;
    }
    EXPECT_EQ(format_zahl(1234567.891, "0.00"), "1234567,89");
    EXPECT_EQ(format_zahl(1e15, "0.00"), "1000000000000000,00");
    EXPECT_EQ(format_zahl(1.5, "0.00", Locale{'.', ',', "True", "False"}), "1.50");
    EXPECT_EQ(fehlernummer([] { format_zahl(std::numeric_limits<double>::quiet_NaN(), "0.00"); }),
              fehler::kUeberlauf);
}

TEST(Zahlen, WahrheitswerteInAllenSchreibweisen) {
    for (const char* wahr : {"True", "true", "Wahr", "WAHR", "-1", "1", " True "}) {
        EXPECT_EQ(wahrheitswert(wahr), true) << wahr;
    }
    for (const char* falsch : {"False", "falsch", "0"}) {
        EXPECT_EQ(wahrheitswert(falsch), false) << falsch;
    }
    EXPECT_EQ(wahrheitswert("vielleicht"), std::nullopt);
    EXPECT_EQ(wahrheitswert(""), std::nullopt);
}

} // namespace
} // namespace quittika
