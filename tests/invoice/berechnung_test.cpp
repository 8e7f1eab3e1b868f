#include "invoice/berechnung.hpp"

#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <random>

namespace quittika {
namespace {

// The modes themselves are played by the script of the sums and, by chance, below.
TEST(Berechnung, GrenzenVonHandGerechnet) {
    const struct {
        const char* name;
        Rechenvorgabe vorgabe;
        int fehler;
        Rechenergebnis ergebnis;
    } faelle[] = {
        {"leer", {0, false, 0, Mwst_Modus::Ohne, 19, 0}, 0, {0, 0, 0, 0}},
        {"Satz -100 plus", {10, false, 0, Mwst_Modus::Plus, -100, 0}, 0, {0, 10, -10, 0}},
        {"Gutschrift", {-50, false, 0, Mwst_Modus::Plus, 19, 0}, 0, {0, -50, -9.5, -59.5}},
        {"Satz -100 minus", {100, true, 10, Mwst_Modus::Minus, -100, 5}, 11, {10, 90, 0, 0}},
        {"Satz -100 inklusive", {100, false, 0, Mwst_Modus::Inklusive, -100, 0}, 11, {0, 100, 0, 0}},
        {"Rabatt zu groß", {1e308, true, 1e308, Mwst_Modus::Ohne, 0, 0}, 6, {0, 0, 0, 0}},
        {"MwSt. zu groß", {1e308, false, 0, Mwst_Modus::Plus, 100, 0}, 6, {0, 1e308, 0, 0}},
        {"Versand zu groß", {1.7e308, false, 0, Mwst_Modus::Ohne, 0, 1.7e308}, 6, {0, 1.7e308, 0, 0}},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        const Rechenergebnis e = RECHNUNGSBETRAEGE(f.vorgabe);
        EXPECT_EQ(e.fehler, f.fehler);
        EXPECT_EQ(e.Rabattbetrag, f.ergebnis.Rabattbetrag);
        EXPECT_EQ(e.Summe_nach_Rabatt, f.ergebnis.Summe_nach_Rabatt);
        EXPECT_EQ(e.MwSt_Betrag, f.ergebnis.MwSt_Betrag);
        EXPECT_EQ(e.Gesamtbetrag, f.ergebnis.Gesamtbetrag);
    }
}

__extension__ using Gross = __int128;

/// The fraction z/n, rounded half away from zero to `stellen` decimals.
std::string bruch(Gross z, Gross n, int stellen) {
    Gross wert = z < 0 ? -z : z;
    for (int i = 0; i < stellen; ++i) {
        wert *= 10;
    }
    wert = (2 * wert + n) / (2 * n);
    std::string ziffern = std::to_string(static_cast<long long>(wert));
    while (static_cast<int>(ziffern.size()) <= stellen) {
        ziffern.insert(0, "0");
    }
    ziffern.insert(ziffern.size() - static_cast<std::size_t>(stellen), ",");
    return (z < 0 && wert != 0 ? "-" : "") + ziffern;
}

/// A random invoice against the same one in exact fractions; rates and the shipping price are hundredths.
void eine_rechnung(unsigned saat) {
    std::mt19937 zufall(saat);
    const auto bis = [&zufall](int grenze) {
        return static_cast<int>(zufall() % static_cast<unsigned>(grenze + 1));
    };
    const bool drei = bis(1) == 1;
    const int stellen = drei ? 3 : 2;
    const int nenner = drei ? 1000 : 100;
    Pruefstand p;
    Form1& f = p.form1;
    f.Check_mengenartDECIMAL.Value = 1;
    f.Check_000.Value = drei ? 1 : 0;
    Gross summe = 0;
    for (int i = bis(30); i >= 0; --i) {
        const Gross menge = bis(99999) + 1;
        const Gross preis = bis(999999);
        p.zeile(bruch(menge, 100, 2), "Posten", bruch(preis, nenner, stellen));
        summe += (2 * menge * preis + 100) / 200;
    }
    const Gross rabatt = bis(10000);
    const Gross satz = bis(3000);
    const Gross versand = bis(9999);
    const bool mit_rabatt = bis(1) == 1;
    const int modus = bis(3);
    const int versandmodus = bis(3);
    f.Check_RABATT.Value = mit_rabatt ? 1 : 0;
    f.Text_Rabatt.Text = bruch(rabatt, 100, 2);
    f.Text_MwSt.Text = bruch(satz, 100, 2);
    f.Check_mwst.Value = modus == 0 ? 0 : 1;
    OptionButton* const modi[] = {nullptr, &f.Option_mwst_plus, &f.Option_mwst_minus, &f.Option_inkl_MwSt};
    if (modus > 0) {
        modi[modus]->Value = true;
    }
    f.Check_Versandkosten.Value = versandmodus == 0 ? 0 : 1;
    f.Text_PreisVersankostenEingabe.Text = bruch(versand, 100, 2);
    f.Check_VersandMwStEXTRA.Value = versandmodus == 2 ? 1 : 0;
    f.Check_VersandINKL_MwSt.Value = versandmodus == 3 ? 1 : 0;
    p.summen.jetztberechnen_List();

    const Gross abzug = mit_rabatt ? rabatt : 0;
    const Gross rest = summe * (10000 - abzug); // in parts of n
    const Gross n = Gross{10000} * nenner;
    const Gross brutto = 10000 + satz;
    const Gross eingabe = versandmodus == 0 ? 0 : versand;
    const auto mit_versand = [&](Gross z, Gross teile) {
        return bruch(100 * z + eingabe * teile, 100 * teile, 2);
    };
    EXPECT_EQ(f.Text_summe.Text(), bruch(summe, nenner, stellen));
    EXPECT_EQ(f.Text_summeRabatt.Text(), "-" + bruch(summe * abzug, n, stellen));
    EXPECT_EQ(f.Text_summeNACHRABATT.Text(), bruch(rest, n, stellen));
    EXPECT_EQ(f.Text_summemwst.Text(), modus == 0 ? "0,00"
                                       : modus == 1
                                           ? bruch(rest * satz, n * 10000, 2)
                                           : bruch((modus == 2 ? -1 : 1) * rest * satz, n * brutto, 2));
    EXPECT_EQ(f.Text_gesamtbetrag.Text(), modus == 1   ? mit_versand(rest * brutto, n * 10000)
                                          : modus == 2 ? mit_versand(rest * 10000, n * brutto)
                                                       : mit_versand(rest, n));
    EXPECT_EQ(f.Text_PreisVersankosten.Text(),
              versandmodus == 2 ? bruch(eingabe, 119, 2) : bruch(eingabe, 100, 2));
    EXPECT_EQ(f.Text_PreisVersankostenMwST.Text(), bruch(versandmodus >= 2 ? eingabe * 19 : 0, 11900, 2));
    EXPECT_TRUE(p.dialoge.take_boxes().empty());
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
