#include "safety/rueckgaengig.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

namespace quittika {
namespace {

struct Probe : Pruefstand {
    Standaufnahme aufnahme{form1,  werte,      zustand, eingabezeile, rechnung,
                           summen, positionen, nummern, stand,        sperre};
    Activity alles; ///< never comes to rest: each deed below tells its end itself
    Rueckgaengig schritte{form1, zustand, aufnahme, alles};

    Probe() {
        werte.MWST_SATZ1 = "19,00";
        werte.MWST_SATZ2 = "7,00";
        einstellungen.Check_RN_automatisch.Value = 1;
        nummern.RNStartLesen();
        befehle.m_neu_Click();
        schritte.beginnen();
    }

    /// All that the user sees of the invoice but its number.
    std::string bild() const {
        static const std::set<std::string> kAnderes{"Text_RNnr", "Label_Pfad", "Text1"};
        std::string bild;
        for (const Control* c : form1.controls()) {
            if (const auto* liste = dynamic_cast<const ListBox*>(c)) {
                for (const std::string& text : liste->items()) {
                    bild += text + "|";
                }
            } else if (!kAnderes.contains(c->name()) &&
                       (c->kind() == "TextBox" || c->kind() == "CheckBox" || c->kind() == "OptionButton" ||
                        c->kind() == "ComboBox" || c->kind() == "Label")) {
                bild += c->name() + "=" + c->main_value() + (c->Enabled() ? "\n" : " -\n");
            }
        }
        return bild;
    }
};

/// A user who does this and that.
class Nutzer {
public:
    Nutzer(Probe& probe, unsigned saat) : p_(probe), zufall_(saat) {}

    int bis(int n) { return static_cast<int>(zufall_() % static_cast<unsigned>(n)); }
    std::string datei() { return std::string(1, static_cast<char>('a' + bis(3))) + ".qk8"; }

    void etwas_tun() {
        Form1& f = p_.form1;
        switch (bis(10)) {
        case 0:
        case 1:
            waehlen();
            p_.zeile(zahl(), "Posten " + zahl(), zahl() + ",50");
            break;
        case 2:
            waehlen();
            bis(2) == 0 ? p_.positionen.md_Del_artikel_Click() : p_.positionen.Command_Trennzeile_Click();
            break;
        case 3:
            waehlen();
            if (f.List_DARSTELLUNG.ListIndex() >= 0) {
                p_.positionen.ZeileInEingabeHolen();
                f.Text_Menge.Text = zahl();
                p_.positionen.Command_AENDERN_Click();
            }
            break;
        case 4:
            feld({&f.Text_Kunde_1, &f.Text_rechnung, &f.Text_LIEFERDATUM, &f.Text_Bemerkung2[1]}) = zahl();
            p_.zustand.aendern();
            break;
        case 5:
            haken();
            break;
        case 6:
            feld({&f.Text_MwSt, &f.Text_Rabatt, &f.Text_PreisVersankostenEingabe}) = zahl();
            p_.summen.jetztberechnen_List();
            SatzAuswahlZeigen(f, p_.werte);
            p_.zustand.aendern();
            break;
        case 7:
            (bis(2) == 0 ? f.Option_mwst_minus : f.Option_inkl_MwSt).Value = true;
            p_.zustand.aendern();
            break;
        case 8:
            p_.rechnung.NotizSetzen("Notiz#$§$#" + zahl());
            p_.zustand.aendern();
            break;
        default:
            bis(2) == 0 ? static_cast<void>(p_.befehle.m_neu_Click())
                        : static_cast<void>(p_.oeffnen(datei()));
        }
        p_.positionen.ZeileLoslassen();
        p_.summen.jetztberechnen_List();
        p_.schritte.erfassen();
    }

private:
    std::string zahl() { return std::to_string(1 + bis(30)); }
    void waehlen() { p_.positionen.StillAuswaehlen(bis(p_.form1.List_DARSTELLUNG.ListCount() + 1) - 1); }
    Property<std::string>& feld(std::vector<TextBox*> felder) {
        return felder.at(static_cast<std::size_t>(bis(static_cast<int>(felder.size()))))->Text;
    }
    void haken() {
        Form1& f = p_.form1;
        const std::vector<CheckBox*> alle{&f.Check_mwst,
                                          &f.Check_RABATT,
                                          &f.Check_Versandkosten,
                                          &f.Check_000,
                                          &f.Check_abgemahnt,
                                          &f.Check_VersandMwStEXTRA,
                                          &f.Check_VersandINKL_MwSt,
                                          &f.Check_LIEFERDATUM,
                                          &f.Check_mengenartDECIMAL};
        CheckBox& eines = *alle.at(static_cast<std::size_t>(bis(static_cast<int>(alle.size()))));
        eines.user_click();
        f.Combo1_mahnung.Enabled = f.Check_abgemahnt.ticked();
        LieferdatumFreigeben(f);
        p_.zustand.aendern();
    }

    Probe& p_;
    std::minstd_rand zufall_;
};

/// What the invoices ought to be: all states one after the other, and where the user is among them.
struct Modell {
    struct Stand {
        std::string bild;
        int beleg;
    };
    std::vector<Stand> staende;
    std::size_t wo = 0;
    std::map<int, std::string> pfade, gespeichert; ///< by invoice
    std::map<std::string, int> nummern;            ///< invoice that a number was given out to

    void merken(const Probe& p) {
        if (p.zustand.Beleg() == staende.at(wo).beleg && p.bild() == staende.at(wo).bild) {
            return;
        }
        if (p.zustand.Beleg() != staende.at(wo).beleg) {
            pfade[p.zustand.Beleg()] = p.zustand.IstDateiDesPfads() ? p.zustand.AktuellerPfad() : "";
            gespeichert[p.zustand.Beleg()] = p.bild();
        }
        staende.resize(++wo);
        staende.push_back({p.bild(), p.zustand.Beleg()});
    }

    void pruefen(const Probe& p) {
        const Stand& soll = staende.at(wo);
        ASSERT_EQ(p.bild(), soll.bild);
        ASSERT_EQ(p.zustand.Beleg(), soll.beleg);
        ASSERT_EQ(p.zustand.IstDateiDesPfads() ? p.zustand.AktuellerPfad() : "", pfade[soll.beleg]);
        if (!p.zustand.geaendert()) {
            ASSERT_EQ(gespeichert[soll.beleg], soll.bild);
        }
        const std::size_t zurueck = std::min(wo, Rueckgaengig::kSchritte);
        ASSERT_EQ(p.form1.m_rueckgaengig.Enabled(), zurueck > 0);
        ASSERT_EQ(p.form1.m_wiederholen.Enabled(), wo + 1 < staende.size());
    }

    void speichern(Probe& p, const std::string& name) {
        const bool neu = !p.zustand.IstDateiDesPfads();
        ASSERT_TRUE(p.speichern(name));
        p.schritte.erfassen();
        if (neu) {
            const auto [eintrag, erstmals] = nummern.emplace(p.form1.Text_RNnr.Text(), p.zustand.Beleg());
            ASSERT_TRUE(erstmals) << "number " << eintrag->first << " was given out twice";
        }
        pfade[p.zustand.Beleg()] = p.zustand.AktuellerPfad();
        gespeichert[p.zustand.Beleg()] = p.bild();
    }
};

TEST(Rueckgaengig, IstImmerDieselbeRechnung) {
    for (unsigned saat = 1; saat <= 3; ++saat) {
        SCOPED_TRACE(saat);
        Probe p;
        Nutzer nutzer(p, saat);
        Modell modell;
        modell.staende.push_back({p.bild(), p.zustand.Beleg()});
        modell.gespeichert[p.zustand.Beleg()] = p.bild();
        for (const char* name : {"a.qk8", "b.qk8", "c.qk8"}) {
            modell.speichern(p, name);
        }
        for (int i = 0; i < 300; ++i) {
            SCOPED_TRACE(i);
            const int was = nutzer.bis(10);
            if (was < 5) {
                nutzer.etwas_tun();
                modell.merken(p);
            } else if (was == 5) {
                modell.speichern(p, std::to_string(i) + ".qk8");
            } else if (was < 8 && p.form1.m_rueckgaengig.Enabled()) {
                p.schritte.m_rueckgaengig_Click();
                --modell.wo;
            } else if (p.form1.m_wiederholen.Enabled()) {
                p.schritte.m_wiederholen_Click();
                ++modell.wo;
            }
            modell.pruefen(p);
            if (HasFatalFailure()) {
                return;
            }
        }
    }
}

TEST(Rueckgaengig, BehaeltZweihundertSchritte) {
    Probe p;
    for (int i = 0; i < 300; ++i) {
        p.form1.Text_Kunde_1.Text = std::to_string(i);
        p.schritte.erfassen();
    }
    int zurueck = 0;
    for (; p.form1.m_rueckgaengig.Enabled(); ++zurueck) {
        p.schritte.m_rueckgaengig_Click();
    }
    EXPECT_EQ(zurueck, 200);
    EXPECT_EQ(p.form1.Text_Kunde_1.Text(), "99");
}

std::size_t bytes(const Schritt& schritt) {
    std::size_t summe = sizeof schritt + schritt.zeilen.texte.capacity() +
                        schritt.felder.capacity() * sizeof(schritt.felder.front());
    for (const auto& [feld, text] : schritt.felder) {
        summe += text.capacity();
    }
    return summe;
}

TEST(Rueckgaengig, EinSchrittBleibtKlein) {
    Probe p;
    for (int i = 0; i < 1000; ++i) {
        p.positionen.StillAuswaehlen(i - 1);
        p.zeile("12,5", "Leistung Nummer " + std::to_string(i) + ", ausgeführt wie besprochen", "1250,75");
    }
    p.schritte.erfassen();
    p.positionen.StillAuswaehlen(0);
    p.positionen.md_Del_artikel_Click(); // renumbers all that follow
    p.schritte.erfassen();
    EXPECT_STREQ(p.schritte.naechster_zurueck()->name, "Zeile löschen");
    EXPECT_LT(bytes(*p.schritte.naechster_zurueck()), 1000U);
    p.befehle.m_neu_Click(); // the largest: all rows are gone
    p.schritte.erfassen();
    EXPECT_LT(bytes(*p.schritte.naechster_zurueck()), 100'000U);
    p.schritte.m_rueckgaengig_Click();
    EXPECT_EQ(p.form1.List_DARSTELLUNG.ListCount(), 999);
}

} // namespace
} // namespace quittika
