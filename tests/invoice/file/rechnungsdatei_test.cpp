#include "invoice/file/dateibefehle.hpp"

#include "platform/textdatei.hpp"
#include "tests/ohne_vorrechte.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace quittika {
namespace {

TEST(Rechnungsdatei, AlteUndUngewoehnlicheDateien) {
    Pruefstand p;
    const auto laden = [&p](const std::vector<std::string>& zeilen) {
        std::string bytes;
        for (const std::string& zeile : zeilen) {
            bytes += zeile + "\r\n";
        }
        p.leser.InhaltUebernehmen(bytes);
        return p.leser.DateiDatenAnzeigen();
    };
    std::vector<std::string> kurz(79);
    kurz[0] = "qk8";
    kurz[1] = "ALT";
    kurz[36] = "Wahr";
    kurz[62] = "x";
    kurz[73] = "#**#";
    kurz[74] = "5,50";
    kurz[78] = "#**#";
    EXPECT_TRUE(laden(kurz));
    EXPECT_EQ(p.form1.Text_rechnung.Text(), "ALT");
    EXPECT_TRUE(p.form1.Option_mwst_plus.Value()) << "the locale's word for true";
    EXPECT_EQ(p.form1.Check_000.Value(), 0);
    EXPECT_EQ(p.form1.Text_Rabatt.Text(), "0");
    EXPECT_EQ(p.form1.Text_summeRabatt.Text(), "5,5") << "trailing zeros go";
    EXPECT_EQ(p.form1.Text_Versandk.Text(), "Versandkosten:");
    EXPECT_EQ(p.form1.Text_PreisVersankostenEingabe.Text(), "0,00");
    EXPECT_EQ(p.form1.Label_Pos.Caption(), "") << "an empty line is not the mark for unset";

    EXPECT_TRUE(laden({"qk8", "#qk8LIST#;1;-;1;Griff; rot;2,00;2,00", "TITEL", "#qk8LIST#;kurz"}));
    EXPECT_EQ(p.form1.Text_rechnung.Text(), "TITEL") << "position lines do not count";
    EXPECT_EQ(p.form1.List_Leistung.items(), (std::vector<std::string>{"Griff", "ERROR"}));
    EXPECT_EQ(p.form1.List_Preis.List(0), " rot");
    EXPECT_EQ(p.form1.List_Gesamtp.List(0), "2,00");

    EXPECT_TRUE(laden({"qk8"})) << "the format of the former file does not linger";
    EXPECT_FALSE(laden({}));
}

TEST(Rechnungsdatei, PositionszeilenTeilenSichAmStrichpunkt) {
    const struct {
        const char* zeile;
        const char* letzter;
        bool heil;
    } faelle[] = {
        {"#qk8LIST#;1;-;2;Griff;5,00;10,00", "10,00", true},
        {"#qk8LIST#; ;K; ;Text; ;", "", true},
        {"#qk8LIST#;1;-;2;Griff;5,00;", "", false},
        {"#qk8LIST#;1;K;2;Griff;5,00", "ERROR", false},
        {"#qk8LIST#; ;T; ;a;b; ;c", " ", false},
        {"#qk8LIST#", "ERROR", false},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(POSITION_TEILEN(f.zeile).werte.back(), f.letzter) << f.zeile;
        EXPECT_EQ(POSITION_HEIL(POSITION_TEILEN(f.zeile)), f.heil) << f.zeile;
    }
}

TEST(Rechnungsdatei, EineZeileVonZehnMegabyteKostetNichts) {
    Pruefstand p;
    p.ordner.schreiben("x.qk8", "qk8\r\n" + std::string(10U << 20U, 'x') + "\r\n#qk8LIST#;1;-;1;" +
                                    std::string(1U << 20U, 'y') + ";1,00;1,00\r\n");
    EXPECT_TRUE(p.oeffnen("x.qk8"));
    EXPECT_EQ(p.form1.List_DARSTELLUNG.ListCount(), 1);
    p.form1.Text_Datum.Text = "1.2.2008"; // the file has none
    EXPECT_TRUE(p.speichern("y.qk8"));
}

TEST(Rechnungsdatei, ImGesperrtenOrdnerWirdAmOrtGespeichert) {
    Pruefstand p;
    p.einstellungsschreiber.SPEICHERN_GESPERRT = true;
    std::filesystem::create_directory(p.ordner.pfad("gesperrt"));
    ASSERT_TRUE(p.speichern("gesperrt/a.qk8"));
    const std::string alt = p.ordner.lesen("gesperrt/a.qk8");
    p.form1.Text_Kunde_1.Text = "Neu";
    {
        const OhneVorrechte niemand(p.ordner.ordner(), p.ordner.pfad("gesperrt/a.qk8"));
        chmod(p.ordner.pfad("gesperrt").c_str(), 0555);
        for (int i = 0; i < 2; ++i) { // the second time a copy is there already
            ASSERT_TRUE(p.speichern("gesperrt/a.qk8"));
            const std::string beiseite = p.ordner.pfad("Sicherung von a.qk8");
            EXPECT_EQ(
                p.form1.StatusBar1[3].Caption(),
                "Der Ordner nimmt keine neue Datei an: am alten Platz gespeichert, der alte Inhalt liegt in "
                ">>" +
                    beiseite + "<<.");
            EXPECT_EQ(p.ordner.lesen("Sicherung von a.qk8") == alt, i == 0);
        }
        EXPECT_FALSE(p.speichern("gesperrt/b.qk8"));
        EXPECT_EQ(p.form1.StatusBar1[3].Caption(),
                  "Der Ordner ist schreibgeschützt: bitte in einem anderen speichern.");
        chmod(p.ordner.pfad("gesperrt/a.qk8").c_str(), 0444);
        EXPECT_FALSE(p.speichern("gesperrt/a.qk8"));
        EXPECT_EQ(p.form1.StatusBar1[3].Caption(),
                  "Die Datei ist schreibgeschützt: bitte unter einem anderen Namen speichern.");
        chmod(p.ordner.pfad("gesperrt").c_str(), 0755);
    }
    EXPECT_NE(p.ordner.lesen("gesperrt/a.qk8").find("\r\nNeu\r\n"), std::string::npos);
}

} // namespace
} // namespace quittika
