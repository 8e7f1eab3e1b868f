#include "settings/druckfarben.hpp"
#include "settings/feldhinweise.hpp"
#include "tests/einstellungsstand.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace quittika {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// Everything that a form's controls show and allow.
std::string abbild(const Form& form) {
    std::string alles;
    for (const Control* feld : form.controls()) {
        alles += "\n" + feld->name() + ":";
        for (const PropertyId id :
             {PropertyId::Text, PropertyId::Value, PropertyId::Caption, PropertyId::Picture,
              PropertyId::BackColor, PropertyId::Enabled, PropertyId::Visible, PropertyId::FontBold,
              PropertyId::Left, PropertyId::Top}) {
            const PropertyBase* wert = feld->property(id);
            alles += wert == nullptr ? "" : "|" + wert->as_text();
        }
    }
    return alles;
}

/// All that a page is drawn from.
std::string abbild(const Einstellungsstand& p) {
    std::string alles = abbild(p.form1) + abbild(p.einstellungen) + abbild(p.programm);
    for (const Einstellungszeile& zeile : p.einstellungstabelle) {
        alles += "\n" + zeile.schluessel + "=" + ZEILENTEXT(zeile);
    }
    const PROGRAMMEINSTELLUNG& w = p.werte;
    for (const int groesse : {w.GROESSE_RECHNUNG, w.GROESSE_WERBUNG, w.GROESSE_ANSCHREIBEN,
                              w.GROESSE_BEMERKUNGEN, w.GROESSE_ZUSATZ_1, w.GROESSE_ZUSATZ_2}) {
        alles += "|" + std::to_string(groesse);
    }
    return alles + w.RECHNUNGSSCHRIFT;
}

/// Another choice of the same group: on if it was off, else its neighbour.
void umschalten(OptionButton& option) {
    if (!option.Value()) {
        return option.user_click();
    }
    for (Control* andere : option.form().controls()) {
        auto* nachbar = dynamic_cast<OptionButton*>(andere);
        if (nachbar != nullptr && nachbar != &option && &nachbar->container() == &option.container()) {
            return nachbar->user_click();
        }
    }
}

void umstellen(RangeControl& regler) {
    regler.Value = regler.Value() == regler.Max() ? regler.Min() : regler.Max();
}

constexpr const char* kOhneBilder = "IMG_LOGO:;\r\nIMG_WASSERZEICHEN:;\r\n";

/// Enters another value for a line, as a user does it in one of the two windows. False for a line that none
/// of their fields holds.
bool bearbeiten(Einstellungsstand& p, const Einstellungszeile& zeile) {
    frm_einstellungen& e = p.einstellungen;
    using Handgriff = std::function<void()>;
    std::map<std::string, Handgriff> handgriffe{
        {"MWST_SATZ1", [&] { e.Text_MwSt.Text = "8,1"; }},
        {"MWST_SATZ2", [&] { e.Text_MwSt2.Text = "2,6"; }},
        {"WAEHRUNG", [&] { e.Text_Waehrung.Text = "CHF"; }},
        {"LAYOUTNUMMER", [&] { e.Image5_Layout.Click(); }},
        {"DRUCKERSCHRIFT",
         [&] {
             p.dialoge.queue(choice::Font{"Courier New"});
             e.Command_DRUCKERSCHRIFT.Click();
         }},
    };
    for (const Druckfarbe& farbe : kDruckfarben) {
        handgriffe[farbe.schluessel] = [&] {
            p.dialoge.queue(choice::Colour{0x332211});
            (e.*farbe.zeile).Command_FARBE.Click();
        };
    }
    for (const auto& spalte : e.Spaltennamen()) {
        handgriffe[spalte.zugeordnet.name()] = [&e, &neu = spalte.neu] {
            neu.Text = "Eigene Spalte";
            e.CMD_Zuordnung.Click();
        };
    }
    if (const auto handgriff = handgriffe.find(zeile.schluessel); handgriff != handgriffe.end()) {
        handgriff->second();
    } else if (auto* const* text = std::get_if<TextBox*>(&zeile.besitzer)) {
        (*text)->Text = "tä #§#;|€\"ß,-1 7 ";
    } else if (auto* const* haekchen = std::get_if<CheckBox*>(&zeile.besitzer)) {
        (*haekchen)->user_click();
    } else if (auto* const* option = std::get_if<OptionButton*>(&zeile.besitzer)) {
        umschalten(**option);
    } else if (auto* const* regler = std::get_if<RangeControl*>(&zeile.besitzer)) {
        umstellen(**regler);
    } else {
        return false;
    }
    return true;
}

/// The design file is the master of what these two hold.
bool gehoert_dem_design(const Einstellungszeile& zeile) {
    return zeile.schluessel == "Text_logopath" || zeile.schluessel == "Text_bildpath";
}

TEST(Einstellungsfenster, JedesFeldWirdUebernommenGespeichertUndWiederGelesen) {
    const Einstellungsstand neu;
    int felder = 0;
    for (std::size_t n = 0; n < neu.einstellungstabelle.size(); ++n) {
        SCOPED_TRACE(neu.einstellungstabelle[n].schluessel);
        Einstellungsstand p;
        p.ordner.schreiben("design.dsg", kOhneBilder);
        p.starten();
        p.fenster.m_Rechnungsdaten_Click();
        const Einstellungszeile& zeile = p.einstellungstabelle[n];
        if (gehoert_dem_design(zeile) || !bearbeiten(p, zeile)) {
            continue;
        }
        ++felder;
        p.einstellungen.Command_uebernehmen2.Click();
        EXPECT_FALSE(p.einstellungen.shown());
        const std::vector<std::string> uebernommen = p.texte();
        EXPECT_NE(uebernommen[n], neu.einstellungstabelle[n].vorgabe);

        Einstellungsstand wieder;
        wieder.ordner.schreiben("design.dsg", kOhneBilder);
        wieder.ordner.schreiben("prog_n.cfg", p.ordner.lesen("prog_n.cfg"));
        wieder.starten();
        wieder.fenster.m_Rechnungsdaten_Click();
        EXPECT_EQ(wieder.texte(), uebernommen);
        for (const Druckfarbe& farbe : kDruckfarben) {
            EXPECT_EQ((wieder.einstellungen.*farbe.zeile).Muster.BackColor(), wieder.werte.*farbe.wert);
        }
        EXPECT_EQ(wieder.einstellungen.Text_MwSt.Text(), p.einstellungen.Text_MwSt.Text());
        wieder.einstellungen.Command_uebernehmen2.Click();
        EXPECT_EQ(wieder.ordner.lesen("prog_n.cfg"), p.ordner.lesen("prog_n.cfg"))
            << "taken over again without a change";
    }
    EXPECT_EQ(felder, 96) << "of 110 lines";
}

TEST(Einstellungsfenster, NichtUebernommenIstAllesWieVorher) {
    Einstellungsstand p;
    p.ordner.schreiben("logo.bmp", "");
    p.starten();
    p.fenster.m_Rechnungsdaten_Click();
    p.einstellungen.Command_uebernehmen2.Click();
    const std::string datei = p.ordner.lesen("prog_n.cfg");
    p.fenster.m_Rechnungsdaten_Click();
    const std::string vorher = abbild(p);
    for (const Einstellungszeile& zeile : p.einstellungstabelle) {
        const bool des_programms =
            zeile.schluessel.starts_with("Option_stil") || zeile.schluessel == "Check_datum";
        if (!des_programms) {
            bearbeiten(p, zeile);
        }
    }
    for (CheckBox& auch : p.einstellungen.check_uebern_f_aktuellerechnung) {
        auch.user_click();
    }
    p.einstellungen.Picture1.Picture = p.ordner.pfad("logo.bmp");
    p.einstellungen.Picture_wasserz.Picture = p.ordner.pfad("logo.bmp");
    EXPECT_NE(abbild(p), vorher);
    p.einstellungsschreiber.EINSTELLUNGEN_SPEICHERN();
    EXPECT_EQ(p.ordner.lesen("prog_n.cfg"), datei) << "another save meanwhile";

    p.dialoge.take_boxes();
    p.dialoge.queue(Answer::No);
    EXPECT_FALSE(p.einstellungen.Close());
    EXPECT_TRUE(p.einstellungen.shown()) << "the question answered with No";
    p.dialoge.queue(Answer::Yes);
    EXPECT_FALSE(p.einstellungen.Close());
    EXPECT_FALSE(p.einstellungen.shown());
    EXPECT_TRUE(p.einstellungen.loaded());
    EXPECT_THAT(p.dialoge.take_boxes(),
                testing::Each(HasSubstr("Sind Sie sicher, dass Sie keine Änderungen speichern möchten?")));
    p.fenster.m_Rechnungsdaten_Click();
    EXPECT_EQ(abbild(p), vorher);
    EXPECT_FALSE(p.zustand.geaendert());
    p.einstellungen.Command_uebernehmen2.Click();
    EXPECT_EQ(p.ordner.lesen("prog_n.cfg"), datei);
}

TEST(Feldhinweise, SagenWasNichtStimmenKann) {
    constexpr auto kSatz = SATZHINWEIS;
    constexpr auto kIban = IBANHINWEIS;
    // 3704 0044 0532 0130 00 at a German bank has the check digits 89, and the British example 82.
    const struct {
        decltype(kIban) pruefung;
        const char* text;
        const char* hinweis; ///< a part of it, empty for none
    } faelle[] = {
        {kSatz, "19", ""},
        {kSatz, "5,0", ""},
        {kSatz, "5.0", ""},
        {kSatz, "", "keine Zahl"},
        {kSatz, "19 %", "keine Zahl"},
        {kIban, "", ""},
        {kIban, "IBAN: ", ""},
        {kIban, "iban DE89370400440532013000", ""},
        {kIban, "GB82 WEST 1234 5698 7654 32", ""},
        {kIban, "IBAN: DE88 3704 0044 0532 0130 00", "Prüfziffer"},
        {kIban, "IBAN: DE89 3704 0044 0532 0103 00", "Prüfziffer"},
        {kIban, "IBAN: DE89 3704 0044 0532 0130 0", "hat 22 Stellen, diese hat 21"},
        {kIban, "Kontonummer 1234567", "keine IBAN"},
        {kIban, "DE89 ÄÖÜ0 0044 0532 0130", "keine IBAN"},
    };
    for (const auto& f : faelle) {
        const std::string gezeigt = f.pruefung(f.text);
        EXPECT_EQ(gezeigt.empty(), *f.hinweis == 0) << f.text;
        EXPECT_THAT(gezeigt, HasSubstr(f.hinweis)) << f.text;
    }
}

} // namespace
} // namespace quittika
