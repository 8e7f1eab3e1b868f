#include "invoice/file/dateibefehle.hpp"

#include "platform/textdatei.hpp"
#include "tests/ohne_vorrechte.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <random>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quittika {
namespace {

std::string ohne_zeitzeile(const std::string& datei) {
    const std::size_t anfang = datei.find("Gespeichert am: ");
    return anfang == std::string::npos ? datei
                                       : datei.substr(0, anfang) + datei.substr(datei.find("\r\n", anfang));
}

/// Fills every field of the invoice with something of its own.
void fuellen(Pruefstand& p, unsigned saat) {
    std::mt19937 zufall(saat);
    Form1& f = p.form1;
    const auto jeder = [&] { return zufall() % 2 == 0; };
    for (const Dateifeld& feld : DATEIFELDER(f)) {
        if (auto* text = dynamic_cast<TextBox*>(feld.steuerelement)) {
            if (!text->Locked()) {
                text->Text = "Text " + std::to_string(zufall() % 1000) + " äöüß€";
            }
        } else if (auto* haken = dynamic_cast<CheckBox*>(feld.steuerelement)) {
            haken->Value = jeder() ? 1 : 0;
        } else if (auto* option = dynamic_cast<OptionButton*>(feld.steuerelement);
                   option != nullptr && jeder()) {
            option->Value = true;
        } else if (dynamic_cast<Label*>(feld.steuerelement) != nullptr) {
            feld.steuerelement->Caption = "Spalte " + std::to_string(feld.zeile);
        }
    }
    f.Text_Datum.Text = "05.03.2008";
    f.Text_MwSt.Text = "16";
    f.Text_Rabatt.Text = "2,5";
    f.Text_PreisVersankostenEingabe.Text = "4,10";
    f.Check_K.Value = 0;
    for (unsigned i = zufall() % 20; i > 0; --i) {
        f.Check_K.Value = jeder() ? 1 : 0;
        p.zeile(std::to_string(1 + zufall() % 9), "Leistung " + std::to_string(i),
                "1,9" + std::to_string(zufall() % 10));
        if (zufall() % 5 == 0) {
            p.positionen.Command_Trennzeile_Click();
        }
    }
    f.Combo1_mahnung.ListIndex = static_cast<int>(zufall() % 4);
    p.rechnung.NotizSetzen("eins#$§$#zwei");
}

TEST(Rechnungsdatei, GespeichertGeoeffnetGespeichertIstDieselbe) {
    for (unsigned saat = 1; saat <= 40; ++saat) {
        SCOPED_TRACE(saat);
        Pruefstand p;
        fuellen(p, saat);
        ASSERT_TRUE(p.speichern("a.qk8"));
        Pruefstand q;
        ASSERT_TRUE(q.befehle.oeffneRN(p.ordner.pfad("a.qk8")));
        // The grid is written and never read back: it has to be put there by hand.
        for (const Dateifeld& feld : DATEIFELDER(p.form1)) {
            if (feld.lesart == Lesart::Nie) {
                Control& ziel = *q.form1.find(feld.steuerelement->name());
                if (auto* text = dynamic_cast<TextBox*>(&ziel)) {
                    text->Text = dynamic_cast<TextBox&>(*feld.steuerelement).Text();
                } else {
                    dynamic_cast<CheckBox&>(ziel).Value =
                        dynamic_cast<CheckBox&>(*feld.steuerelement).Value();
                }
            }
        }
        ASSERT_TRUE(q.speichern("b.qk8"));
        EXPECT_EQ(ohne_zeitzeile(q.ordner.lesen("b.qk8")), ohne_zeitzeile(p.ordner.lesen("a.qk8")));
        if (HasFailure()) {
            break;
        }
    }
}

TEST(Rechnungsdatei, JedeZeileStehtAnIhrerStelle) {
    Pruefstand p;
    Form1& f = p.form1;
    f.Text_Kunde_1.Text = "Müller";
    f.Raster[0].Text_menge[0].Text = "m1";
    f.Raster[8].Text_preis[0].Text = "p9";
    f.Raster[8].Text_gesamtp[0].Text = "g9";
    f.Raster[0].Check_K[1].Value = 1;
    f.Raster[8].Text_gesamtp[3].Text = "letztes Rasterfeld";
    f.Text_Bemerkung2[0].Text = "Anschreiben 2";
    f.Text_Bemerkung4[1].Text = "Bemerkung 4";
    f.Check_abgemahnt.Value = 1;
    f.Combo1_mahnung.ListIndex = 2;
    f.Text_RNnr.Text = "0042";
    p.zeile("2", "Stuhl", "5");
    ASSERT_TRUE(p.speichern("a.qk8"));
    const std::vector<std::string> zeilen = zeilen_lesen(p.ordner.pfad("a.qk8"));
    ASSERT_EQ(zeilen.size(), 1003U);
    const std::pair<std::size_t, const char*> erwartet[] = {
        {0, "qk8"},
        {1, "RECHNUNG"},
        {2, "05.03.2008"},
        {3, "Müller"},
        {8, "m1"},
        {34, "p9"},
        {35, "0"},
        {36, "False"},
        {38, "19,00"},
        {40, "Anschreiben 2"},
        {51, "g9"},
        {52, "10,00"},
        {54, "10,00"},
        {58, "1"},
        {59, "2"},
        {60, "19"},
        {61, "Arial"},
        {74, "-0,00"},
        {76, "Versandkosten:"},
        {80, "0042"},
        {81, "1"},
        {82, "0"},
        {215, "letztes Rasterfeld"},
        {218, "Es liegen keine Notizen vor..."},
        {219, "0,00"},
        {224, "Bemerkung 4"},
        {225, "Pos."},
        {229, "Gesamtpreis[EUR]"},
        {230, " "},
        {231, "0"},
        {232, "#**#"},
        {1000, "#**#"},
        {1001, "Gespeichert am: 05.03.2008 10:20:30"},
        {1002, "#qk8LIST#;1;-;2;Stuhl;5,00;10,00"},
    };
    for (const auto& [nummer, text] : erwartet) {
        EXPECT_EQ(zeilen[nummer], text) << "line " << nummer;
    }
}

TEST(Rechnungsdatei, AlteUndUngewoehnlicheDateien) {
    Pruefstand p;
    const auto laden = [&p](const std::vector<std::string>& zeilen) {
        p.dialoge.boxen.clear();
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

    EXPECT_FALSE(laden({"qk7", "Titel", "#qk8LIST#;1;-;1;Rest;2,00;2,00"}));
    ASSERT_EQ(p.dialoge.boxen.size(), 1U);
    EXPECT_EQ(p.dialoge.boxen[0].title, "Fehler...Datei ist keine >>*.qk8<< - Datei...");
    EXPECT_EQ(p.form1.Text_rechnung.Text(), "RECHNUNG") << "no scalar values";
    EXPECT_EQ(p.form1.List_Leistung.ListCount(), 1) << "but the positions";

    EXPECT_TRUE(laden({"qk8"})) << "the format of the former file does not linger";
    EXPECT_FALSE(laden({}));
}

TEST(Rechnungsdatei, LesenEndetNachHoechstzahl) {
    Pruefstand p;
    std::string datei = "qk8\r\nTITEL\r\n";
    for (int i = 2; i < 40000; ++i) {
        datei += i == 32000   ? "#qk8LIST#;1;-;1;drin;1,00;1,00\n"
                 : i == 32001 ? "#qk8LIST#;2;-;1;draußen;1,00;1,00\n"
                              : "x\n";
    }
    p.ordner.schreiben("lang.qk8", datei);
    EXPECT_TRUE(p.oeffnen("lang.qk8"));
    EXPECT_EQ(p.form1.List_Leistung.items(), std::vector<std::string>{"drin"});
}

TEST(Rechnungsdatei, SchlechteDateienKostenNichts) {
    std::mt19937 zufall(7);
    std::string rauschen(100000, '\0');
    for (char& c : rauschen) {
        c = static_cast<char>(zufall());
    }
    std::string nullen = "qk8\r\n" + std::string(3000, '\0') + "\r\n#qk8LIST#;\0;-;1;a;1;1";
    const std::pair<const char*, std::string> dateien[] = {
        {"rauschen", rauschen},
        {"rauschen mit kennung", "qk8\n" + rauschen},
        {"nullen", nullen},
        {"leer", ""},
        {"eine Zeile von 10 MB", "qk8\r\n" + std::string(10U << 20U, 'x') + "\r\n#qk8LIST#;1;-;1;" +
                                     std::string(1U << 20U, 'y') + ";1,00;1,00\r\n"},
    };
    for (const auto& [name, bytes] : dateien) {
        SCOPED_TRACE(name);
        Pruefstand p;
        p.ordner.schreiben("x.qk8", bytes);
        EXPECT_TRUE(p.oeffnen("x.qk8"));
        EXPECT_EQ(p.form1.List_DARSTELLUNG.ListCount(), p.form1.List_K.ListCount());
        p.form1.Text_Datum.Text = "1.2.2008"; // the file's own need not be a date
        EXPECT_TRUE(p.speichern("y.qk8"));
    }
}

TEST(Rechnungsdatei, WasNichtZuOeffnenIstLaesstDieRechnungStehen) {
    Pruefstand p;
    p.form1.Text_Kunde_1.Text = "Bleibt";
    p.zeile("1", "Posten", "3");
    std::filesystem::create_directory(p.ordner.pfad("ordner.qk8"));
    for (const char* name : {"fehlt.qk8", "ordner.qk8", "kein/ordner.qk8"}) {
        SCOPED_TRACE(name);
        p.dialoge.boxen.clear();
        EXPECT_FALSE(p.befehle.oeffneRN(p.ordner.pfad(name)));
        ASSERT_EQ(p.dialoge.boxen.size(), 1U);
        EXPECT_EQ(p.dialoge.boxen[0].text, "Fehler beim öffnen dieser Datei.");
        EXPECT_EQ(p.form1.StatusBar1[2].Caption(), "FEHLER BEIM ÖFFNEN VON DATEI: " + p.ordner.pfad(name));
        EXPECT_EQ(p.form1.Text_Kunde_1.Text(), "Bleibt");
        EXPECT_EQ(p.form1.List_K.ListCount(), 1);
    }
}

TEST(Rechnungsdatei, VerschwundeneDateiDerListeLaesstDieRechnungStehen) {
    Pruefstand p;
    ASSERT_TRUE(p.speichern("weg.qk8"));
    std::filesystem::remove(p.ordner.pfad("weg.qk8"));
    p.form1.Text_Kunde_1.Text = "Bleibt";
    p.befehle.m_R_Click(1);
    ASSERT_EQ(p.dialoge.boxen.size(), 1U);
    EXPECT_EQ(p.dialoge.boxen[0].text, "Fehler beim öffnen dieser Datei.");
    EXPECT_EQ(p.form1.StatusBar1[2].Caption(), "FEHLER BEIM ÖFFNEN VON DATEI: " + p.ordner.pfad("weg.qk8"));
    EXPECT_EQ(p.form1.Text_Kunde_1.Text(), "Bleibt");
}

TEST(Rechnungsdatei, AbgeschnitteneDateiWirdNichtUeberschrieben) {
    Pruefstand p;
    std::string datei = "qk8\r\n";
    for (int i = 0; i < 32001; ++i) {
        datei += "#qk8LIST#;1;-;1;s;1,00;1,00\r\n";
    }
    p.ordner.schreiben("lang.qk8", datei);
    EXPECT_TRUE(p.oeffnen("lang.qk8"));
    EXPECT_EQ(p.form1.List_K.ListCount(), 32000);
    EXPECT_EQ(p.zustand.AktuellerPfad(), "");
    EXPECT_EQ(
        p.form1.StatusBar1[3].Caption(),
        "Achtung, Datei beschädigt: zu viele Zeilen (es fehlen Positionen), kürzer als üblich. Bitte vor "
        "dem Speichern prüfen.");
}

TEST(Rechnungsdatei, FelderDieWiePositionenAussehenBleibenFelder) {
    Pruefstand p;
    p.form1.Text_Kunde_1.Text = "#qk8LIST#;1";
    p.form1.Text_Kunde_2.Text = "zwei\r\nZeilen\r";
    ASSERT_TRUE(p.speichern("a.qk8"));
    ASSERT_TRUE(p.oeffnen("a.qk8"));
    EXPECT_EQ(p.form1.Text_Kunde_1.Text(), " #qk8LIST#;1");
    EXPECT_EQ(p.form1.Text_Kunde_2.Text(), "zwei Zeilen ");
    EXPECT_EQ(p.form1.List_K.ListCount(), 0);
}

TEST(Rechnungsdatei, EineAlteDateiErbtNichtsVonDerVorigen) {
    Pruefstand p;
    p.form1.Check_mwst.Value = 1;
    p.form1.Check_RABATT.Value = 1;
    p.form1.Check_VersandMwStEXTRA.Value = 1;
    p.form1.Text_MwSt.Text = "50";
    p.form1.Check_Versandkosten.Value = 1;
    p.form1.Text_PreisVersankostenEingabe.Text = "70";
    p.summen.jetztberechnen_List();
    p.ordner.schreiben("alt.qk8", "qk8\r\nALT\r\n");
    EXPECT_TRUE(p.oeffnen("alt.qk8"));
    for (const CheckBox* haekchen :
         {&p.form1.Check_mwst, &p.form1.Check_RABATT, &p.form1.Check_VersandMwStEXTRA}) {
        EXPECT_EQ(haekchen->Value(), 0) << haekchen->name();
    }
    EXPECT_EQ(p.form1.Text_MwSt.Text(), "19,00");
    EXPECT_EQ(p.form1.Text_gesamtbetrag.Text(), "0,00");
}

/// A limit on the size of files, standing in for a full disk.
class VolleScheibe {
public:
    explicit VolleScheibe(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &vorher_);
        const rlimit eng{bytes, vorher_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &eng);
    }
    ~VolleScheibe() { setrlimit(RLIMIT_FSIZE, &vorher_); }

private:
    rlimit vorher_{};
};

TEST(Rechnungsdatei, MisslungenesSpeichernKostetNichts) {
    Pruefstand p;
    p.einstellungen.Check_RN_automatisch.Value = 1;
    p.nummern.RNStartLesen();
    ASSERT_TRUE(p.speichern("a.qk8"));
    EXPECT_EQ(p.ordner.lesen("RN.txt"), "2\r\n");
    const std::string alt = p.ordner.lesen("a.qk8");
    p.zustand.aendern();
    {
        const VolleScheibe voll(2000);
        EXPECT_FALSE(p.speichern("a.qk8"));
    }
    EXPECT_EQ(p.ordner.lesen("a.qk8"), alt);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(p.ordner.ordner()), {}), 2)
        << "nothing is left over";
    EXPECT_EQ(p.form1.StatusBar1[2].Caption(), "FEHLER BEIM SPEICHERN");
    ASSERT_EQ(p.dialoge.boxen.size(), 1U);
    EXPECT_EQ(p.dialoge.boxen[0].text, "Fehler beim speichern");
    EXPECT_TRUE(p.zustand.geaendert());
    EXPECT_EQ(p.ordner.lesen("RN.txt"), "2\r\n") << "no number is used up";
    EXPECT_FALSE(p.speichern("kein/ordner.qk8"));
    EXPECT_EQ(p.zustand.AktuellerPfad(), p.ordner.pfad("a.qk8"));
}

TEST(Rechnungsdatei, ImGesperrtenOrdnerWirdAmOrtGespeichert) {
    Pruefstand p;
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

TEST(Rechnungsdatei, WasDerZeichensatzNichtKenntWirdGesagt) {
    Pruefstand p;
    p.form1.Text_Kunde_1.Text = "Łukasz Nováček 漢";
    p.form1.Text_Kunde_2.Text = "Straße 5 €";
    ASSERT_TRUE(p.speichern("a.qk8"));
    const std::vector<std::string> zeilen = zeilen_lesen(p.ordner.pfad("a.qk8"));
    EXPECT_EQ(zeilen[3], "Lukasz Novácek ?");
    EXPECT_EQ(zeilen[4], "Straße 5 €");
    EXPECT_EQ(p.form1.StatusBar1[3].Caption(),
              "Achtung: 3 Zeichen kennt die Datei nicht, sie wurden ersetzt.");
    p.form1.Text_Kunde_1.Text = "Lukasz";
    ASSERT_TRUE(p.speichern("a.qk8"));
    EXPECT_EQ(p.form1.StatusBar1[3].Caption(), "");
}

} // namespace
} // namespace quittika
