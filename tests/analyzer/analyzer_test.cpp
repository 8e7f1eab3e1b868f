#include "analyzer/analyzer.hpp"
#include "analyzer/betragssumme.hpp"
#include "analyzer/rechnungsauszug.hpp"
#include "analyzer/verzeichniswahl.hpp"
#include "analyzer/zusammenfassung.hpp"
#include "platform/laufwerke.hpp"
#include "platform/pictures.hpp"
#include "platform/script/script_clock.hpp"
#include "platform/script/script_desktop.hpp"
#include "platform/script/script_dialogs.hpp"
#include "platform/script/script_printing.hpp"
#include "platform/script/script_progress.hpp"
#include "platform/script/script_shell.hpp"
#include "platform/text.hpp"
#include "tests/fehlernummer.hpp"
#include "tests/feste_schrift.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <map>
#include <random>
#include <utility>

namespace quittika {
namespace {

TEST(Tabellenspalte, SchneidetUndFuellt) {
    const struct {
        int art;
        const char* text;
        std::size_t breite;
        const char* ergebnis;
    } faelle[] = {{0, "Köhler", 8, "Köhler  "},
                  {5, "ab", 3, "ab "},
                  {2, "1,50", 6, "  1,50"},
                  {4, "abcdefg", 5, "abc.."},
                  {0, "Größer", 5, "Grö.."},
                  {0, "Größer", 6, "Größer"},
                  {1, "7", 5, "007"},
                  {1, "12,5", 4, "013"},
                  {1, "x", 3, "   "},
                  {3, "abc", 8, "  abc   "},
                  {3, "ab", 5, " ab "},
                  {3, "abcd", 4, "abcd"},
                  {6, "abc", 5, ""},
                  {-1, "abc", 5, ""},
                  {2, "abc", 1, ".."}};
    for (const auto& fall : faelle) {
        EXPECT_EQ(SPALTE_FORMAT(fall.art, fall.text, fall.breite), fall.ergebnis) << fall.art << fall.text;
    }
}

TEST(Betragssumme, IstAufDenCentGenau) {
    const struct {
        std::vector<const char*> betraege;
        const char* summe;
    } faelle[] = {{{}, "0,00"},
                  {{"0,1", "0,2"}, "0,30"},
                  {{"1.234,56", "1234.56", "-2469,11"}, "0,01"},
                  {{"0,005"}, "0,01"},
                  {{"-0,005"}, "-0,01"},
                  {{"-0,004"}, "0,00"},
                  {{"2,004", "0,001"}, "2,01"},
                  {{"99999999999999,99", "0,01"}, "100000000000000,00"},
                  {{"5,-", " 7 ", "-0,5", "3-"}, "8,50"},
                  {{"1E3", "1"}, "1001,00"},
                  {{"1e300", "-1e300", "0,01"}, "0,01"}};
    for (const auto& fall : faelle) {
        Betragssumme summe;
        for (const char* betrag : fall.betraege) {
            summe.dazu(betrag);
        }
        EXPECT_EQ(summe.text(), fall.summe);
    }
    Betragssumme grosse;
    for (int i = 0; i < 20; ++i) {
        grosse.dazu("1,7e308");
    }
    EXPECT_EQ(grosse.text().substr(0, 3), "340");
    EXPECT_EQ(grosse.text().size(), 310U + 3U);
    for (const char* keiner : {"", "#**#", "1,2,3", "12 EUR", "1e999", "nan", "inf"}) {
        EXPECT_EQ(fehlernummer([&] { grosse.dazu(keiner); }), fehler::kFalscherTyp) << keiner;
    }
}

/// Invoice files of every kind, and what the analyzer has to make of them, in thousandths.
class Zufallsrechnung {
public:
    explicit Zufallsrechnung(unsigned saat) : zufall_(saat) {
        ZEILEN[0] = "qk8";
        ZEILEN[1] = "RE" + std::to_string(zahl(9999));
        ZEILEN[2] = "0" + std::to_string(1 + zahl(8)) + ".03.2008";
        ZEILEN[3] = wahl({"Müller", "Großhandel Köhler & Söhne", "O", ""});
        ZEILEN[7] = wahl({"K1", "Kundennr: 4711 mit sehr langem Zusatz"});
        ZEILEN[56] = wahl({"0", "1"});
        ZEILEN[57] = wahl({"0", "1"});
        ZEILEN[58] = wahl({"0", "1", "2"});
        ZEILEN[59] = wahl({"0", "1", "3"});
        ZEILEN[80] = wahl({"", "7", "#**#"});
        ZEILEN[218] = "Notiz";
        netto = betrag(ZEILEN[75]);
        mwst = betrag(ZEILEN[53]);
        brutto = betrag(ZEILEN[54]);
        rohnetto = ZEILEN[75];
        rohmwst = ZEILEN[53];
        versandnetto = betrag(ZEILEN[220]);
        versandmwst = betrag(ZEILEN[219]);
        verderben();
    }

    std::string bytes() const {
        std::string text;
        for (std::size_t i = ohne_kennung ? 1 : 0; i < std::min(laenge, ZEILEN.size()); ++i) {
            text += nach_ansi(ZEILEN[i]).bytes + "\r\n";
        }
        if (riesig) {
            for (int i = 0; i < 40000; ++i) {
                text += "#qk8LIST#;001;-;1;Stuhl;1;1\r\n";
            }
        }
        return text;
    }

    std::vector<std::string> ZEILEN = std::vector<std::string>(400, "#**#");
    std::string rohnetto, rohmwst;
    std::int64_t netto, mwst, brutto, versandnetto, versandmwst;
    std::size_t laenge = 400;
    bool ohne_kennung = false;
    bool ohne_versand = false;
    bool riesig = false;
    bool unlesbar = false;

    int zahl(int unter) { return static_cast<int>(zufall_() % static_cast<unsigned>(unter)); }

private:
    std::string wahl(std::initializer_list<const char*> aus) {
        return *(aus.begin() + zahl(static_cast<int>(aus.size())));
    }

    /// An amount of at most three decimals, written in one of the ways that are read.
    std::int64_t betrag(std::string& text) {
        const int art = zahl(5);
        std::int64_t wert = static_cast<std::int64_t>(zahl(2000000)) * (art == 0 ? 1 : 10);
        std::string ganz = std::to_string(wert / 1000);
        std::string bruch = std::to_string(1000 + wert % 1000).substr(1, art == 0 ? 3 : 2);
        if (art == 1 && ganz.size() > 3) {
            ganz.insert(ganz.size() - 3, ".");
        }
        const bool minus = zahl(6) == 0;
        text = (minus ? "-" : "") + ganz + (art == 2 ? "." : ",") + bruch;
        return minus ? -wert : wert;
    }

    void verderben() {
        switch (zahl(12)) {
        case 0: // before the shipping costs were split
            ohne_versand = true;
            ZEILEN[zahl(2) == 0 ? 219 : 220] = "#**#";
            ohne_kennung = zahl(2) == 0;
            break;
        case 1: // ends in front of its amounts, or behind them
            laenge = static_cast<std::size_t>(zahl(219));
            ohne_versand = true;
            unlesbar = laenge <= 75; // the net total is the last line without which there is no row
            break;
        case 2:
            ohne_kennung = true;
            break;
        case 3:
            ZEILEN[static_cast<std::size_t>(std::array{53, 54, 56, 57, 58, 75}.at(zahl(6)))] =
                wahl({"", "x", "1,2,3", "99999x"});
            unlesbar = true;
            break;
        case 4:
            riesig = zahl(8) == 0;
            break;
        case 5: // position lines count as lines, but hold no field
            ZEILEN[static_cast<std::size_t>(90 + zahl(100))] = ZEILEN[3] = "#qk8LIST#;001;-;1;Tisch;1;1";
            break;
        default:
            break;
        }
    }

    std::mt19937 zufall_;
};

std::string cent(std::int64_t tausendstel) {
    const std::int64_t ganze = (std::abs(tausendstel) + 5) / 10;
    const std::string bruch = std::to_string(100 + ganze % 100).substr(1);
    return (tausendstel < 0 && ganze > 0 ? "-" : "") + std::to_string(ganze / 100) + "," + bruch;
}

std::int64_t gerundet(std::int64_t tausendstel) {
    const std::int64_t ganze = (std::abs(tausendstel) + 5) / 10 * 10;
    return tausendstel < 0 ? -ganze : ganze;
}

/// The report that belongs to invoices, put together line by line.
class Modellbericht {
public:
    void dazu(const std::string& datei, const Zufallsrechnung& r) {
        const auto ist = [&](int i) { return i < int(r.laenge) && r.ZEILEN[i] != "0" ? "JA" : "NEIN"; };
        const std::string name = r.ZEILEN[3].rfind("#qk8LIST#", 0) == 0 ? "" : r.ZEILEN[3];
        const bool netto_alt = r.laenge <= 220 || r.ZEILEN[220] == "#**#";
        const bool mwst_alt = r.laenge <= 219 || r.ZEILEN[219] == "#**#";
        const std::int64_t netto = netto_alt ? r.netto : gerundet(r.netto + r.versandnetto);
        const std::int64_t mwst = mwst_alt ? r.mwst : gerundet(r.mwst + r.versandmwst);
        const std::string zusatz = r.laenge > 80 ? r.ZEILEN[80] : "";
        alte_version = alte_version || netto_alt || mwst_alt;
        liste += spalte(r.ZEILEN[2], 12) + spalte(r.ZEILEN[1] + zusatz, -21) + " " + spalte(r.ZEILEN[7], 23) +
                 " " + spalte(name, 17) + spalte(ist(56), 7) + spalte(ist(58), 5) +
                 spalte(r.ZEILEN[58] == "0" ? "0" : r.ZEILEN[59], 3) + spalte(ist(57), 5) +
                 spalte(netto_alt ? r.rohnetto : cent(netto), -11) +
                 spalte(mwst_alt ? r.rohmwst : cent(mwst), -11) + spalte(r.ZEILEN[54], -11) + "\r\n[" +
                 datei + "]\r\n\r\n";
        ++anzahl;
        const bool bezahlt = r.ZEILEN[57] == "1";
        offen += bezahlt ? 0 : 1;
        const std::int64_t werte[] = {r.brutto, netto, mwst};
        for (int i = 0; i < 3; ++i) {
            summen[i][0] += werte[i];
            summen[i][bezahlt ? 1 : 2] += werte[i];
        }
    }

    /// Its numbers in their order, each the end of a line.
    std::vector<std::string> zahlen() const {
        std::vector<std::string> alle{std::to_string(anzahl), std::to_string(offen)};
        for (const auto& gruppe : summen) {
            for (const std::int64_t summe : gruppe) {
                alle.push_back(cent(summe));
            }
        }
        return alle;
    }

    std::string liste;
    bool alte_version = false;

private:
    /// Cut and filled to a width; to the right for a negative one.
    static std::string spalte(const std::string& text, int breite) {
        std::vector<std::string> zeichen;
        for (const char c : text) {
            if ((c & 0xC0) == 0x80) {
                zeichen.back() += c;
            } else {
                zeichen.emplace_back(1, c);
            }
        }
        const auto ziel = static_cast<std::size_t>(std::abs(breite));
        if (zeichen.size() > ziel) {
            zeichen.resize(ziel - 2);
            zeichen.insert(zeichen.end(), 2, ".");
        }
        zeichen.insert(breite < 0 ? zeichen.begin() : zeichen.end(), ziel - zeichen.size(), " ");
        std::string ergebnis;
        for (const std::string& z : zeichen) {
            ergebnis += z;
        }
        return ergebnis;
    }

    int anzahl = 0;
    int offen = 0;
    std::int64_t summen[3][3]{};
};

/// The analyzer over a folder of its own.
struct Analyzerstand {
    Analyzerstand() {
        programm.schreiben("analyse_quelle.txt", rechnungen.ordner() + "\r\n");
        desktop.adopt(form);
        form.Show();
    }
    ScriptClock zeit;
    ScriptDesktop desktop{zeit};
    ScriptDialogs dialoge;
    ScriptShell shell;
    ScriptProgress fortschritt;
    FesteSchrift schrift;
    PictureHeaders bilder;
    ScriptPrinting druck{schrift, bilder, {}};
    StehendeUhr uhr;
    Probenordner programm;
    Probenordner rechnungen;
    Programmverzeichnis verzeichnis{programm.ordner()};
    std::vector<std::string> geoeffnet;
    Form_Analyzer form;
    Analyzer analyzer{form,    verzeichnis, desktop,
                      dialoge, druck,       shell,
                      uhr,     fortschritt, [this](const std::string& pfad) { geoeffnet.push_back(pfad); }};
};

TEST(Analyzer, ZaehltZufaelligeOrdnerWieEineZweiteRechnung) {
    Analyzerstand s;
    std::mt19937 zufall(2008);
    std::map<std::string, std::pair<std::string, Zufallsrechnung>> ordnung; // by names without case
    for (unsigned i = 0; i < 500; ++i) {
        Zufallsrechnung r(zufall());
        std::string name;
        for (int k = 0; k < 3; ++k) {
            name += static_cast<char>((r.zahl(2) == 0 ? 'a' : 'A') + r.zahl(26));
        }
        name += std::to_string(i) + (r.zahl(4) == 0 ? ".QK8" : ".qk8");
        s.rechnungen.schreiben(name, r.bytes());
        std::string gross = name;
        std::transform(gross.begin(), gross.end(), gross.begin(), [](char c) { return std::toupper(c); });
        ordnung.emplace(gross, std::pair(name, std::move(r)));
    }
    std::filesystem::create_directory(s.rechnungen.pfad("x.qk8"));
    s.rechnungen.schreiben("leer.qk8", "");
    s.rechnungen.schreiben("bytes.qk8", std::string("\0\xff\n\r;\xe4", 6));
    s.rechnungen.schreiben("andere.txt", "qk8\r\n");
    std::filesystem::resize_file(s.rechnungen.schreiben("endlos.qk8", "qk8"), 60U << 20U);
    Modellbericht modell;
    std::vector<std::string> dateien;
    for (const auto& [gross, rechnung] : ordnung) {
        if (!rechnung.second.unlesbar) {
            modell.dazu(rechnung.first, rechnung.second);
            dateien.push_back(rechnung.first);
        }
    }
    s.form.CMD_START_ANALYSE.Click();
    EXPECT_EQ(s.form.List_dateien.items(), dateien);
    for (const ListBox& spalte : s.form.List_rohdata) {
        EXPECT_EQ(spalte.ListCount(), static_cast<int>(dateien.size()));
        EXPECT_EQ(spalte.ListIndex(), 0);
    }
    EXPECT_EQ(s.form.Label_Status.Caption(),
              std::to_string(dateien.size()) + " Rechnungen gelesen. " +
                  std::to_string(503 - dateien.size()) +
                  " von 503 Dateien sind keine lesbaren Rechnungen und fehlen hier.");
    s.form.cmd_ErgebnisSpeichern.Click();
    const std::string bericht = aus_ansi(s.programm.lesen("AnalyseErgebnis.txt"));
    EXPECT_TRUE(bericht.ends_with("- -\r\n" + modell.liste));
    EXPECT_EQ(bericht.find("unter Version 4.0.2") != std::string::npos, modell.alte_version);
    std::size_t stelle = bericht.find("Anzahl berücksichtigter");
    for (const std::string& zahl : modell.zahlen()) {
        stelle = bericht.find(": ", stelle);
        const std::size_t ende = bericht.find("\r\n", stelle);
        stelle = bericht.find_first_not_of(": ", stelle);
        EXPECT_EQ(bericht.substr(stelle, ende - stelle), zahl);
    }
    EXPECT_EQ(s.form.List_dateien.ListIndex(), static_cast<int>(dateien.size()) - 1);
}

TEST(Verzeichniswahl, LiestGetippteVerzeichnisse) {
    const std::string heim = HEIMORDNER();
    const std::pair<const char*, std::string> faelle[] = {
        {"~", heim},
        {" ~/ ", heim},
        {"~/Rechnungen", (heim == "/" ? "" : heim) + "/Rechnungen"},
        {"/", "/"},
        {"/srv//", "/srv"},
        {"2008", "/daten/2008"},
        {"2008/März", "/daten/2008/März"}};
    for (const auto& [getippt, gelesen] : faelle) {
        EXPECT_EQ(VERZEICHNIS_LESEN(getippt, "/daten"), gelesen);
    }
}

} // namespace
} // namespace quittika
