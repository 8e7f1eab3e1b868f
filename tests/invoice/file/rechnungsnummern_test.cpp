#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

/// A program that numbers by itself, beside another one that shares its RN.txt.
struct Nummernstand : Pruefstand {
    explicit Nummernstand(const std::string& zaehler) {
        einstellungen.Check_RN_automatisch.Value = 1;
        anderes_programm(zaehler);
        nummern.RNStartLesen();
    }
    void anderes_programm(const std::string& zaehler) const { ordner.schreiben("RN.txt", zaehler); }
    std::string nummer() const { return form1.Text_RNnr.Text(); }
    std::string zaehler() const { return ordner.lesen("RN.txt"); }
    std::string hinweis() const { return form1.StatusBar1[3].Caption(); }
};

TEST(Rechnungsnummern, ZweiProgrammeVergebenKeineNummerZweimal) {
    Nummernstand p("5");
    p.anderes_programm("6");
    ASSERT_TRUE(p.speichern("a.qk8"));
    EXPECT_EQ(p.nummer(), "6");
    EXPECT_EQ(p.zaehler(), "7\r\n");
    EXPECT_EQ(p.hinweis(), "Die Nummer 5 ist inzwischen vergeben: diese Rechnung bekommt die 6.");
    p.anderes_programm("20");
    p.befehle.m_neu_Click();
    EXPECT_EQ(p.nummer(), "20");
    p.anderes_programm("30");
    p.zustand.aendern();
    p.dialoge.queue(Answer::Yes);
    p.dialoge.queue(choice::File{p.ordner.pfad("c.qk8")});
    p.befehle.m_neu_Click();
    EXPECT_NE(p.dialoge.take_boxes().back().find("|Die Nummer 20 ist inzwischen vergeben: diese Rechnung "
                                                 "bekommt die 30.\\r\\nBitte die gespeicherte"),
              std::string::npos)
        << "panel 3 speaks of the new invoice already";
    ASSERT_TRUE(p.oeffnen("a.qk8"));
    p.anderes_programm("6");
    ASSERT_TRUE(p.speichern("b.qk8"));
    EXPECT_EQ(p.nummer(), "6") << "an invoice on disk keeps its number";
    EXPECT_EQ(p.zaehler(), "32\r\n") << "the higher of the two";
}

TEST(Rechnungsnummern, UnlesbarerZaehlerWirdGesagt) {
    for (const char* zaehler : {"", "neun", "2147483648", "99999999999"}) {
        SCOPED_TRACE(zaehler);
        const std::string text = "Der Zähler in RN.txt ist nicht lesbar, die nächste Nummer ist ";
        Nummernstand p(zaehler);
        EXPECT_EQ(p.nummer(), "1");
        EXPECT_EQ(p.hinweis().find(text + "1:"), 0U) << p.hinweis();
        ASSERT_TRUE(p.speichern("a.qk8"));
        EXPECT_EQ(p.zaehler(), "2\r\n");
        EXPECT_EQ(p.hinweis().find(text + "2:"), 0U) << p.hinweis();
    }
    Pruefstand ohne;
    ohne.nummern.RNStartLesen();
    EXPECT_EQ(ohne.form1.StatusBar1[3].Caption(), "");
}

TEST(Rechnungsnummern, AmEndeDesZaehlersWirdNichtsVerschwiegen) {
    Nummernstand p("2147483647");
    EXPECT_EQ(p.hinweis(), "");
    ASSERT_TRUE(p.speichern("a.qk8"));
    EXPECT_EQ(p.hinweis().find("Der Zähler ist am Ende"), 0U);
}

} // namespace
} // namespace quittika
