#include "invoice/berechnung.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/zahlen.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <random>

namespace quittika {
namespace {

struct Fall {
    const char* name;
    Rechenvorgabe vorgabe;
    const char* rabatt;
    const char* nach_rabatt;
    const char* mwst;
    const char* gesamt;
};

TEST(Berechnung, JederModusVonHandGerechnet) {
    const Fall faelle[] = {
        {"leer", {0, false, 0, Mwst_Modus::Ohne, 19, 0}, "-0,00", "0,00", "0,00", "0,00"},
        {"ohne Mehrwertsteuer mit Versand",
         {100, false, 0, Mwst_Modus::Ohne, 19, 5.9},
         "-0,00",
         "100,00",
         "0,00",
         "105,90"},
        {"plus", {100, false, 0, Mwst_Modus::Plus, 19, 0}, "-0,00", "100,00", "19,00", "119,00"},
        {"plus mit Rabatt und Versand",
         {200, true, 10, Mwst_Modus::Plus, 19, 5},
         "-20,00",
         "180,00",
         "34,20",
         "219,20"},
        {"minus zieht ab", {119, false, 0, Mwst_Modus::Minus, 19, 0}, "-0,00", "119,00", "-19,00", "100,00"},
        {"minus mit Bruttoversand",
         {119, false, 0, Mwst_Modus::Minus, 19, 10},
         "-0,00",
         "119,00",
         "-19,00",
         "110,00"},
        {"inklusive", {107, false, 0, Mwst_Modus::Inklusive, 7, 0}, "-0,00", "107,00", "7,00", "107,00"},
        {"Rabatt 0", {10, true, 0, Mwst_Modus::Ohne, 0, 0}, "-0,00", "10,00", "0,00", "10,00"},
        {"Satz -100 plus", {10, false, 0, Mwst_Modus::Plus, -100, 0}, "-0,00", "10,00", "-10,00", "0,00"},
        {"Gutschrift", {-50, false, 0, Mwst_Modus::Plus, 19, 0}, "-0,00", "-50,00", "-9,50", "-59,50"},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.name);
        const Rechenergebnis e = RECHNUNGSBETRAEGE(f.vorgabe);
        EXPECT_EQ(format_zahl(e.Rabattbetrag, "-0.00"), f.rabatt);
        EXPECT_EQ(format_zahl(e.Summe_nach_Rabatt, "0.00"), f.nach_rabatt);
        EXPECT_EQ(format_zahl(e.MwSt_Betrag, "0.00"), f.mwst);
        EXPECT_EQ(format_zahl(e.Gesamtbetrag, "0.00"), f.gesamt);
    }
}

TEST(Berechnung, WasSichNichtBerechnenLaesstIstNull) {
    struct Fehlerfall {
        Rechenvorgabe vorgabe;
        int nummer;
        Rechenergebnis ergebnis;
    };
    const Fehlerfall faelle[] = {
        {{100, true, 10, Mwst_Modus::Minus, -100, 5}, 11, {10, 90, 0, 0}},
        {{100, false, 0, Mwst_Modus::Inklusive, -100, 0}, 11, {0, 100, 0, 0}},
        {{1e308, true, 1e308, Mwst_Modus::Ohne, 0, 0}, 6, {0, 0, 0, 0}},
        {{1e308, false, 0, Mwst_Modus::Plus, 100, 0}, 6, {0, 1e308, 0, 0}},
        {{1.7e308, false, 0, Mwst_Modus::Ohne, 0, 1.7e308}, 6, {0, 1.7e308, 0, 0}},
    };
    for (const Fehlerfall& f : faelle) {
        SCOPED_TRACE(f.vorgabe.MwSt_Satz);
        const Rechenergebnis e = RECHNUNGSBETRAEGE(f.vorgabe);
        EXPECT_EQ(e.fehler, f.nummer);
        EXPECT_EQ(e.Rabattbetrag, f.ergebnis.Rabattbetrag);
        EXPECT_EQ(e.Summe_nach_Rabatt, f.ergebnis.Summe_nach_Rabatt);
        EXPECT_EQ(e.MwSt_Betrag, 0);
        EXPECT_EQ(e.Gesamtbetrag, 0);
    }
}

TEST(Berechnung, VersandWirdGeteilt) {
    const Versandaufteilung bisher{1, 2};
    const auto getrennt = VERSAND_AUFTEILEN(Versand_Modus::Getrennt, 11.9, 19, bisher);
    EXPECT_EQ(format_zahl(getrennt.Versand_Netto, "0.00"), "10,00");
    EXPECT_EQ(format_zahl(getrennt.Versand_MwSt, "0.00"), "1,90");
    const auto enthalten = VERSAND_AUFTEILEN(Versand_Modus::Enthalten, 11.9, 19, bisher);
    EXPECT_EQ(format_zahl(enthalten.Versand_Netto, "0.00"), "11,90") << "gross on purpose";
    EXPECT_EQ(format_zahl(enthalten.Versand_MwSt, "0.00"), "1,90");
    const auto sonst = VERSAND_AUFTEILEN(Versand_Modus::Unveraendert, 11.9, 19, bisher);
    EXPECT_EQ(sonst.Versand_Netto, 1);
    EXPECT_EQ(sonst.Versand_MwSt, 2);
}

// --- random invoices against exact fractions ---

__extension__ using Gross = __int128;

/// An exact fraction; `text` rounds it half away from zero to `stellen` decimals.
struct Bruch {
    Gross z = 0;
    Gross n = 1;
    friend Bruch operator*(Bruch a, Bruch b) { return Bruch{a.z * b.z, a.n * b.n}.gekuerzt(); }
    friend Bruch operator/(Bruch a, Bruch b) { return Bruch{a.z * b.n, a.n * b.z}.gekuerzt(); }
    friend Bruch operator+(Bruch a, Bruch b) { return Bruch{a.z * b.n + b.z * a.n, a.n * b.n}.gekuerzt(); }
    friend Bruch operator-(Bruch a, Bruch b) { return a + Bruch{-b.z, b.n}; }

    Bruch gekuerzt() const {
        Gross a = z < 0 ? -z : z;
        Gross b = n < 0 ? -n : n;
        while (b != 0) {
            const Gross rest = a % b;
            a = b;
            b = rest;
        }
        const Gross teiler = (n < 0 ? -1 : 1) * (a == 0 ? 1 : a);
        return {z / teiler, n / teiler};
    }
    long long gerundet(int stellen) const {
        Gross wert = z < 0 ? -z : z;
        for (int i = 0; i < stellen; ++i) {
            wert *= 10;
        }
        const Gross ganz = (2 * wert + n) / (2 * n);
        return static_cast<long long>(z < 0 ? -ganz : ganz);
    }
    std::string text(int stellen) const {
        const long long wert = gerundet(stellen);
        std::string ziffern = std::to_string(wert < 0 ? -wert : wert);
        while (static_cast<int>(ziffern.size()) <= stellen) {
            ziffern.insert(0, "0");
        }
        ziffern.insert(ziffern.size() - static_cast<std::size_t>(stellen), ",");
        return (wert < 0 ? "-" : "") + ziffern;
    }
};

struct Zufallsrechnung {
    std::mt19937 zufall;
    int bis(int grenze) { return static_cast<int>(zufall() % static_cast<unsigned>(grenze + 1)); }
    Bruch hundertstel(int grenze) { return {bis(grenze), 100}; }
};

void eine_rechnung(unsigned saat) {
    Pruefstand p;
    Zufallsrechnung r{std::mt19937(saat)};
    const bool drei = r.bis(1) == 1;
    const int stellen = drei ? 3 : 2;
    p.form1.Check_mengenartDECIMAL.Value = 1;
    p.form1.Check_000.Value = drei ? 1 : 0;
    Bruch summe;
    for (int i = r.bis(30); i >= 0; --i) {
        const Bruch menge = Bruch{r.bis(99999) + 1, 100};
        const Bruch preis{r.bis(999999), drei ? 1000 : 100};
        p.zeile(menge.text(2), "Posten", preis.text(stellen));
        summe = summe + Bruch{(menge * preis).gerundet(stellen), drei ? 1000 : 100};
    }
    const Bruch rabattsatz = r.hundertstel(10000);
    const Bruch satz = r.hundertstel(3000);
    const Bruch versand = r.hundertstel(9999);
    const bool rabatt = r.bis(1) == 1;
    const int modus = r.bis(3);
    const int versandmodus = r.bis(3);
    Form1& f = p.form1;
    f.Check_RABATT.Value = rabatt ? 1 : 0;
    f.Text_Rabatt.Text = rabattsatz.text(2);
    f.Text_MwSt.Text = satz.text(2);
    f.Check_mwst.Value = modus == 0 ? 0 : 1;
    if (modus > 0) {
        (modus == 1   ? f.Option_mwst_plus
         : modus == 2 ? f.Option_mwst_minus
                      : f.Option_inkl_MwSt)
            .Value = true;
    }
    f.Check_Versandkosten.Value = versandmodus == 0 ? 0 : 1;
    f.Text_PreisVersankostenEingabe.Text = versand.text(2);
    f.Check_VersandMwStEXTRA.Value = versandmodus == 2 ? 1 : 0;
    f.Check_VersandINKL_MwSt.Value = versandmodus == 3 ? 1 : 0;
    p.summen.jetztberechnen_List();

    const Bruch hundert{100, 1};
    const Bruch abzug = rabatt ? rabattsatz / hundert * summe : Bruch{};
    const Bruch rest = summe - abzug;
    const Bruch faktor = satz / hundert + Bruch{1, 1};
    const Bruch netto = rest / faktor;
    const Bruch mwst = modus == 1   ? rest * faktor - rest
                       : modus == 2 ? netto - rest
                       : modus == 3 ? rest - netto
                                    : Bruch{};
    const Bruch betrag = modus == 1 ? rest * faktor : modus == 2 ? netto : rest;
    const Bruch eingabe = versandmodus == 0 ? Bruch{} : versand;
    const Bruch versandnetto = eingabe / Bruch{119, 100};

    EXPECT_EQ(f.Text_summe.Text(), summe.text(stellen));
    EXPECT_EQ(f.Text_summeRabatt.Text(), "-" + abzug.text(stellen));
    EXPECT_EQ(f.Text_summeNACHRABATT.Text(), rest.text(stellen));
    EXPECT_EQ(f.Text_summemwst.Text(), mwst.text(2));
    EXPECT_EQ(f.Text_gesamtbetrag.Text(), (betrag + eingabe).text(2));
    EXPECT_EQ(f.Text_PreisVersankosten.Text(), (versandmodus == 2 ? versandnetto : eingabe).text(2));
    EXPECT_EQ(f.Text_PreisVersankostenMwST.Text(),
              versandmodus >= 2 ? (eingabe - versandnetto).text(2) : "0,00");
    EXPECT_TRUE(p.dialoge.boxen.empty());
}

TEST(Berechnung, ZufaelligeRechnungenStimmenMitBruechenUeberein) {
    for (unsigned saat = 1; saat <= 150; ++saat) {
        SCOPED_TRACE(saat);
        eine_rechnung(saat);
        if (HasFailure()) {
            break;
        }
    }
}

} // namespace
} // namespace quittika
