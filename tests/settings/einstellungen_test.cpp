#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "tests/einstellungsstand.hpp"
#include "tests/stoerung.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace quittika {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string datei_aus(const std::vector<std::string>& zeilen, const char* trenner = "\r\n") {
    std::string text;
    for (const std::string& zeile : zeilen) {
        text += zeile + trenner;
    }
    return nach_ansi(text).bytes;
}

struct Zeilenfall {
    std::size_t nummer;
    const char* text;
    const char* wert; ///< that the line then has
    bool weiter;      ///< the lines behind it are read
};

TEST(Einstellungen, EinWertDerNichtPasstBeendetDasLesenAnSeinerZeile) {
    for (const Zeilenfall& fall : {Zeilenfall{2, "rot", "12632256", false},
                                   {2, "99999999999", "12632256", false},
                                   {4, "3", "0", false},
                                   {4, "", "0", false},
                                   {5, "True", "-1", true},
                                   {5, "vielleicht", "0", false},
                                   {27, "", "19", true},
                                   {37, "256", "0", false},
                                   {60, "0", "9", true},
                                   {60, "10", "9", true},
                                   {60, "40000", "2", false},
                                   {72, "13", "-4", false},
                                   {74, "0", "10", true},
                                   {74, "21", "10", true},
                                   {78, "0", "1", false},
                                   {100, "Gesamtpreis[alt]", "Gesamtpreis[neu]", true},
                                   {100, "Preis[alt]", "Preis[alt]", true},
                                   {101, "Gesamtpreis[alt] [netto]", "Gesamtpreis[alt] [netto]", true},
                                   {106, "99", "11", true},
                                   {106, "groß", "11", false}}) {
        SCOPED_TRACE(std::to_string(fall.nummer) + " " + fall.text);
        Einstellungsstand p;
        std::vector<std::string> zeilen = p.texte();
        zeilen[66] = "neu";
        zeilen[109] = "20";
        zeilen[fall.nummer] = fall.text;
        p.ordner.schreiben("prog_n.cfg", datei_aus(zeilen));
        p.einstellungsleser.EINSTELLUNGEN_LADEN();
        p.logo.LayoutZeigen();
        EXPECT_EQ(p.texte()[fall.nummer], fall.wert);
        EXPECT_EQ(p.texte()[109], fall.weiter ? "20" : "10");
        EXPECT_EQ(p.einstellungen.Label_GROESSE_ZUSATZ_2.Caption(), p.texte()[109]) << "what follows is done";
    }
}

TEST(Einstellungen, OhneMarkeFolgtDemLesenNichts) {
    for (const std::size_t nummer : {0, 1}) {
        Einstellungsstand p;
        std::vector<std::string> zeilen = p.texte();
        zeilen[nummer] = "";
        zeilen[27] = "16";
        zeilen[67] = "a.qk8";
        p.ordner.schreiben("prog_n.cfg", datei_aus(zeilen));
        const Rechnungszustand::Sperre still(p.zustand);
        p.einstellungsleser.EINSTELLUNGEN_LADEN();
        EXPECT_EQ(p.werte.MWST_SATZ1, "16");
        EXPECT_EQ(p.einstellungen.Text_MwSt.Text(), "19");
        EXPECT_EQ(p.einstellungen.Label_GROESSE_RECHNUNG.Caption(), "...");
        EXPECT_FALSE(p.form1.m_R1.Visible());
    }
}

TEST(Einstellungen, DieAlteDateiWirdEinmalUebernommen) {
    std::vector<std::string> felder = Einstellungsstand().texte();
    for (const auto& [nummer, wert] : std::vector<std::pair<std::size_t, const char*>>{
             {10, "Alt GmbH"}, {36, "255"}, {37, "9"}, {40, "65280"}, {41, "8"}, {45, "7"}, {66, "CHF"}}) {
        felder[nummer] = wert;
    }
    const std::string alt = datei_aus(felder, "#§#");
    Einstellungsstand p;
    p.ordner.schreiben("prog.cfg", alt + "\r\nrest");
    p.ordner.schreiben("prog_n.cfg", "");
    const Rechnungszustand::Sperre still(p.zustand);
    p.einstellungsleser.EINSTELLUNGEN_LADEN();
    EXPECT_EQ(p.werte.FARBE_LINIEN, 255);
    EXPECT_EQ(p.einstellungen.Linien.R.Value(), 0) << "only the slogan's sliders come back";
    EXPECT_EQ(p.einstellungen.Werbespruch.R.Value(), 8);
    EXPECT_EQ(p.form1.Label_preis.Caption(), "Einzelpreis[CHF]");
    EXPECT_EQ(p.ordner.lesen("prog.cfg"), alt + "\r\nrest");
    const std::vector<std::string> neu = zeilen_lesen(p.ordner.pfad("prog_n.cfg"));
    EXPECT_EQ(neu.size(), 1001U);
    EXPECT_EQ(neu[10], "Alt GmbH");
    EXPECT_EQ(neu[45], "0");
    EXPECT_EQ(neu[1000], "#*§*#");

    p.ordner.schreiben("prog.cfg", datei_aus({"1", "ZWEITERSTART", "5"}, "#§#"));
    p.einstellungsleser.EINSTELLUNGEN_LADEN();
    EXPECT_EQ(p.einstellungen.Text_firma_1.Text(), "Alt GmbH") << "prog_n.cfg wins";

    Einstellungsstand ohne_marke;
    ohne_marke.ordner.schreiben("prog.cfg", datei_aus({"1", "ERSTERSTART", "5", "6"}, "#§#"));
    ohne_marke.einstellungsleser.EINSTELLUNGEN_LADEN();
    EXPECT_EQ(ohne_marke.texte(), Einstellungsstand().texte());
}

TEST(Einstellungen, EinFehlerKostetWederDateiNochRechnung) {
    Einstellungsstand p;
    p.einstellungsschreiber.EINSTELLUNGEN_SPEICHERN();
    const std::string vorher = p.ordner.lesen("prog_n.cfg");
    p.einstellungen.Text_firma_1.Text = "Neu";
    for (const char* aufruf : {"write", "fsync", "rename"}) {
        const Stoerung stoerung(aufruf, 1, ENOSPC, true);
        p.einstellungsschreiber.EINSTELLUNGEN_SPEICHERN();
        EXPECT_EQ(p.ordner.lesen("prog_n.cfg"), vorher);
        EXPECT_THAT(p.dialoge.take_boxes(),
                    ElementsAre(HasSubstr("Fehler beim EINSTELLUNGEN_SPEICHERN. Fehlernr.: 61")));
        EXPECT_THAT(p.form1.StatusBar1[3].Caption(), HasSubstr("FEHLER BEIM EINSTELLUNGEN SPEICHERN"));
    }
    p.einstellungsschreiber.SPEICHERN_GESPERRT = true;
    p.einstellungsschreiber.EINSTELLUNGEN_SPEICHERN();
    EXPECT_EQ(p.ordner.lesen("prog_n.cfg"), vorher);
    EXPECT_THAT(p.dialoge.take_boxes(), IsEmpty());
}

TEST(Einstellungen, WasVonHandGeaendertWurdeBleibtDaneben) {
    Einstellungsstand p;
    std::vector<std::string> zeilen = p.texte();
    zeilen[30] = "rot"; // the rest is not read
    const std::string von_hand = datei_aus(zeilen);
    p.ordner.schreiben("prog_n.cfg", von_hand);
    p.einstellungsleser.EINSTELLUNGEN_LADEN();
    p.einstellungsschreiber.EINSTELLUNGEN_SPEICHERN();
    EXPECT_EQ(p.ordner.lesen("Sicherung von prog_n.cfg"), von_hand);
    EXPECT_THAT(p.form1.StatusBar1[3].Caption(), HasSubstr("der alte Inhalt liegt in"));
    p.einstellungsschreiber.EINSTELLUNGEN_SPEICHERN();
    EXPECT_EQ(p.ordner.lesen("Sicherung von prog_n.cfg"), von_hand) << "its own file is not put aside";
    p.ordner.schreiben("prog_n.cfg", "dazwischen");
    p.einstellungsschreiber.EINSTELLUNGEN_SPEICHERN();
    EXPECT_EQ(p.ordner.lesen("Sicherung von prog_n.cfg"), "dazwischen");
}

} // namespace
} // namespace quittika
