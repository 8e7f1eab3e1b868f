#include "platform/verzeichnis.hpp"
#include "tests/programmlauf.hpp"
#include "tests/pruefstand.hpp"
#include "tests/qt/form_table.hpp"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace quittika {
namespace {

using Zeilen = std::vector<std::string>;

constexpr const char* kStumm = "bleibt ohne Antwort";

/// How a user comes to each window. The splash has nothing to press.
const std::map<std::string, Zeilen> kWege{
    {"form1", {}},
    {"Form_ueber_QUITTIKA", {"click form1.ueber_QUITTIKA"}},
    {"frm_Programm", {"click form1.m_Programmeinstellungen"}},
    {"frm_einstellungen", {"click form1.m_Rechnungsdaten"}},
    {"Form_Lieferschein_opt",
     {"click form1.Option_LIEFERSCHEIN", "printer 1", "click form1.Command_printform"}},
    {"Form_Druckvorschau", {"click form1.Command_Druckvorschau"}},
    {"Form_Etp_Barcode", {"click form1.Cmd_Barcode"}},
    {"Form2_PAKET_ETIKETT", {"click form1.m_druckenpaketschein"}},
    {"Form2_PAKETHRMS_ETIKETT", {"click form1.m_druckenpaketscheinHVersand"}},
    {"Form2_PAECKCHEN_ETIKETT", {"click form1.m_druckenpaeckchenschein"}},
    {"Form2_Breiter_Brief", {"click form1.m_druckenBRIEF"}},
    {"Form_Kundenverwaltung", {"click form1.Command_Kundenliste"}},
    {"Form_Artikelverwaltung", {"click form1.Command_Artikelliste"}},
    {"FORM_DESIGNER", {"click form1.m_startdesigner"}},
    {"Form_Analyzer", {"click form1.m_start_analyzer"}},
    {"Form_VerzWahlAuftrag", {"click form1.m_start_analyzer", "click Form_Analyzer.Command_Quellordner"}},
    {"Form_txt_Vorlagen", {"click form1.Cmd_Vorlagen"}},
    {"Form_Helferlein", {"click form1.CMD_FORM_HELFERLEIN"}},
    {"Form_Helferlein_Bkg", {"click form1.CMD_FORM_HELFERLEIN_Bkg"}},
    {"Form_Notiz", {"click form1.Cmd_Notiz"}},
    {"Form_Fassungen",
     {"set form1.Text_Kunde_1 Eva", "click form1.m_speichern_kurz", "click form1.m_Fassungen",
      "select Form_Fassungen.List_Fassungen 0"}},
    {"Form_Datensicherung", {"click form1.m_datensicherung"}},
    {"Form_Rueckspielen",
     {"click form1.m_datensicherung", "file @ORDNER@/s.zip", "click Form_Datensicherung.Command_Sichern",
      "click Form_Datensicherung.Command_Schliessen", "file @ORDNER@/s.zip", "click form1.m_zurueckspielen"}},
    {"Form_Nummernpruefung", {"click form1.m_nummern_pruefen"}},
    {"Form_ERechnung", {"click form1.m_ERechnung"}}};

/// The invoices of the program's folder, read by the analyzer.
const Zeilen kAnalyse{"click Form_Analyzer.Command_Quellordner",
                      "set Form_VerzWahlAuftrag.Text_VerzWahl @ORDNER@",
                      "click Form_VerzWahlAuftrag.Command_OK", "click Form_Analyzer.CMD_START_ANALYSE"};

/// Makes an electronic invoice of what stands in the window.
const Zeilen kVollstaendig{"set Form_ERechnung.Text_Verkaeufer_Name Holz",
                           "set Form_ERechnung.Text_Verkaeufer_PLZ 50667",
                           "set Form_ERechnung.Text_Verkaeufer_Ort Bonn",
                           "set Form_ERechnung.Text_Verkaeufer_Land DE",
                           "set Form_ERechnung.Text_Verkaeufer_USt_IdNr DE136695976",
                           "set Form_ERechnung.Text_Verkaeufer_Kontakt Eva Holz",
                           "set Form_ERechnung.Text_Verkaeufer_Telefon 0221 4711",
                           "set Form_ERechnung.Text_Verkaeufer_E_Mail eva@holz.example",
                           "set Form_ERechnung.Text_Verkaeufer_IBAN DE02120300000000202051",
                           "set Form_ERechnung.Text_Zahlungstage 14",
                           "select Form_ERechnung.Combo_Befreiungsgrund 1",
                           "set Form_ERechnung.Text_Kaeufer_Name Emil",
                           "set Form_ERechnung.Text_Kaeufer_PLZ 53111",
                           "set Form_ERechnung.Text_Kaeufer_Ort Bonn",
                           "set Form_ERechnung.Text_Kaeufer_Land DE",
                           "set Form_ERechnung.Text_Kaeufer_E_Mail emil@bonn.example",
                           "set Form_ERechnung.Text_Kaeufer_Leitweg_ID 04011000-1234512345-06"};

/// What has to be done before a command can do anything, by the beginning of its name. "%n" is its index,
/// "%s" the page of six that it stands on.
const std::pair<const char*, Zeilen> kVoraussetzungen[]{
    {"form1.m_eingabezeile", {"click form1.Text_Kunde_1"}},
    {"form1.m_wiederholen", {"click form1.m_rueckgaengig"}},
    {"form1.m_Zeile_", {"select form1.List_DARSTELLUNG 1"}},
    {"form1.Command_AENDERN", {"select form1.List_DARSTELLUNG 1", "click form1.m_Zeile_aendern"}},
    {"form1.CMD_Seite1(0)", {"click form1.CMD_Seite1(1)"}},
    {"form1.Command_PLUS_", {"click form1.CMD_Seite1(%n)"}},
    {"frm_Programm.Command_farbe", {"click frm_Programm.Option_stil5"}},
    {"Form_Druckvorschau.cmd_rr", {"click Form_Druckvorschau.cmd_ff"}},
    {"Form_Druckvorschau.m_zurueck", {"click Form_Druckvorschau.cmd_ff"}},
    {"Form_Druckvorschau.m_erste", {"click Form_Druckvorschau.cmd_ff"}},
    {"Form_Druckvorschau.Command_Breite", {"click Form_Druckvorschau.Command_Seite"}},
    {"Form_Kundenverwaltung.Command_weitersuchen", {"type Form_Kundenverwaltung.Text_suchen e"}},
    {"Form_Artikelverwaltung.Command_weitersuchen", {"type Form_Artikelverwaltung.Text_suchen e"}},
    {"Form_Artikelverwaltung.Command_Artikelhinz", {"click Form_Artikelverwaltung.Command_neuerArtikel"}},
    {"Form_Artikelverwaltung.Command_ART", {"click Form_Artikelverwaltung.Command_neuerArtikel"}},
    {"Form_Analyzer.CMD_Alle_zeigen", {"set Form_Analyzer.Text_suchen e"}},
    {"Form_Analyzer.CMD_Unbezahlte_CSV", kAnalyse},
    {"Form_Analyzer.CMD_Diagramm_speichern", kAnalyse},
    {"FORM_DESIGNER.CMD_SET_LOGO",
     {"mouse FORM_DESIGNER.Image_LOGO down 2 9 9", "set FORM_DESIGNER.Text_Logo_X 30"}},
    {"FORM_DESIGNER.CMD_SET_Wasserz",
     {"mouse FORM_DESIGNER.Image_WASSERZ down 2 9 9", "set FORM_DESIGNER.Text_Wasserz_X 30"}},
    {"FORM_DESIGNER.CMD_MAXGROESSE", {"mouse FORM_DESIGNER.Image_WASSERZ down 2 9 9"}},
    {"FORM_DESIGNER.Command_", {"mouse FORM_DESIGNER.Image_RN down 2 9 9"}},
    {"FORM_DESIGNER.CMD_SCHLIESSEN", {"mouse FORM_DESIGNER.Image_RN down 2 9 9"}},
    {"FORM_DESIGNER.CMD_A4DATENSATZ_minus",
     {"click FORM_DESIGNER.CMD_VORLAGENAUSWAHL", "click FORM_DESIGNER.CMD_A4DATENSATZ_plus"}},
    {"FORM_DESIGNER.CMD_A4DATENSATZ_plus", {"click FORM_DESIGNER.CMD_VORLAGENAUSWAHL"}},
    {"FORM_DESIGNER.CMD_Schliessen_Auswahl", {"click FORM_DESIGNER.CMD_VORLAGENAUSWAHL"}},
    {"FORM_DESIGNER.CMD_CLOSE_HELP", {"click FORM_DESIGNER.CMD_OPEN_HELP"}},
    {"FORM_DESIGNER.m_Pfeil",
     {"mouse FORM_DESIGNER.Image_datum down 1 9 9", "mouse FORM_DESIGNER.Image_datum up 1 9 9"}},
    {"FORM_DESIGNER.m_Rueck",
     {"mouse FORM_DESIGNER.Image_datum down 1 9 9", "mouse FORM_DESIGNER.Image_datum up 1 9 9",
      "click FORM_DESIGNER.m_Pfeil(1)"}},
    {"FORM_DESIGNER.m_Wieder",
     {"mouse FORM_DESIGNER.Image_datum down 1 9 9", "mouse FORM_DESIGNER.Image_datum up 1 9 9",
      "click FORM_DESIGNER.m_Pfeil(1)", "click FORM_DESIGNER.m_Rueckgaengig"}},
    {"Form_Datensicherung.Command_Ordner_weg",
     {"click Form_Datensicherung.Command_Ordner_hinzu", "set Form_VerzWahlAuftrag.Text_VerzWahl @ORDNER@",
      "click Form_VerzWahlAuftrag.Command_OK", "select Form_Datensicherung.List_Ordner 0"}},
    {"Form_Rueckspielen.Command_Alle", {"click Form_Rueckspielen.Command_Keine"}},
    {"Form_Nummernpruefung.Command_Oeffnen",
     {"click Form_Nummernpruefung.Command_Ordner", "set Form_VerzWahlAuftrag.Text_VerzWahl @ORDNER@",
      "click Form_VerzWahlAuftrag.Command_OK", "click Form_Nummernpruefung.Command_Pruefen",
      "select Form_Nummernpruefung.List_Befund 0"}},
    {"Form_Fassungen.Command_Kopie", {"file @ORDNER@/k.qk8"}},
    {"Form_Nummernpruefung.Command_Speichern", {"click Form_Nummernpruefung.Command_Pruefen"}},
    {"Form_ERechnung.Command_ZUGFeRD", kVollstaendig},
    {"Form_ERechnung.Command_XRechnung", kVollstaendig},
    {"Form_txt_Vorlagen.Command1_choose", {"click Form_txt_Vorlagen.Option%s"}}};

/// Titles of menus, and a button that calculates what is calculated already.
const std::set<std::string> kOhneAntwort{"frm_einstellungen.m_extra", "Form_Kundenverwaltung.m_Extras",
                                         "Form_Artikelverwaltung.m_extras", "form1.Command_berechnen"};

Zeilen Weg(const std::string& fenster, const Control& befehl) {
    Zeilen zeilen = kWege.at(fenster);
    const std::string name = fenster + "." + befehl.name();
    const int index = befehl.index();
    for (const auto& [anfang, davor] : kVoraussetzungen) {
        const bool nur_anfang = name == "form1.Command_PLUS_LIST"; // no button of the grid
        if (beginnt_mit(name, anfang) && !nur_anfang) {
            for (const std::string& zeile : davor) {
                zeilen.push_back(ersetzen(ersetzen(zeile, "%n", std::to_string(index)), "%s",
                                          std::to_string(index / 6 + 1)));
            }
        }
    }
    return zeilen;
}

bool ist_befehl(const Control& steuerelement) {
    return (steuerelement.kind() == "CommandButton" || steuerelement.kind() == "Menu") &&
           !steuerelement.data_only();
}

constexpr PropertyId kEigenschaften[] = {
    PropertyId::Text,      PropertyId::Value,     PropertyId::Caption,  PropertyId::Enabled,
    PropertyId::Visible,   PropertyId::BackColor, PropertyId::FontBold, PropertyId::ListIndex,
    PropertyId::SelLength, PropertyId::Picture,   PropertyId::Tab,      PropertyId::Left,
    PropertyId::Top,       PropertyId::Width,     PropertyId::Height,   PropertyId::Modified};

std::string Eigenschaften(const PropertyHost& von) {
    std::string alle;
    for (const PropertyId id : kEigenschaften) {
        if (const PropertyBase* eigenschaft = von.property(id)) {
            alle += eigenschaft->as_text() + "|";
        }
    }
    return alle;
}

/// A program that has been used: two lists, an invoice of two rows, three files opened last.
class Benutzt {
public:
    explicit Benutzt(Zeilen zeilen) : zeilen_(std::move(zeilen)) {
        ordner_.schreiben("prgaufruf.lld", "1\r\n");
        ordner_.schreiben("Artikelliste.txt",
                          "Ente$\xA7$1.00$\xA7$1$\xA7$\r\nEule$\xA7$2.00$\xA7$2$\xA7$\r\n");
        ordner_.schreiben("Kundenliste.txt", "Eva...Markt 1...12345 Stadt...Tel.: 1...7...\r\nEmil...\r\n");
        Zeilen anfang{"start @ORDNER@ 2008-03-05T10:20:30"};
        for (const char* leistung : {"Stuhl", "Tisch", "Bank"}) {
            for (const std::string& zeile :
                 {std::string("set form1.Text_Menge 2"), std::string("set form1.Text_leistung ") + leistung,
                  std::string("set form1.Text_preis 12,50"), std::string("click form1.Cmd_Add_To_list"),
                  std::string("file @ORDNER@/") + leistung + ".qk8",
                  std::string("click form1.m_speichern")}) {
                anfang.push_back(zeile);
            }
        }
        anfang.emplace_back("select form1.List_DARSTELLUNG 1");
        anfang.emplace_back("click form1.m_Zeile_umbruch");
        zeilen_.insert(zeilen_.begin(), anfang.begin(), anfang.end());
    }

    /// Plays the lines and then gives a command; returns what is wrong with that, or nothing.
    std::string druecken(const std::string& befehl) {
        std::string vorher;
        std::size_t n = 0;
        bool gedrueckt = false;
        std::string befund = "hat das Programm beendet, ehe es so weit war";
        lauf_.eingabe.naechste = [&](std::string& zeile) {
            if (n < zeilen_.size()) {
                zeile = ersetzen(zeilen_[n++], "@ORDNER@", ordner_.ordner());
                return true;
            }
            if (!gedrueckt) {
                if (lauf_.aus.str().find("error: ") != std::string::npos) {
                    befund = "davor: " + lauf_.aus.str();
                    return false;
                }
                lauf_.aus.str("");
                anwaehlen(befehl);
                static_cast<void>(Stand());
                vorher = Stand();
                zeile = "click " + befehl;
                gedrueckt = true;
                return true;
            }
            befund = lauf_.aus.str().find("error: ") != std::string::npos ? lauf_.aus.str()
                     : Stand() == vorher                                  ? kStumm
                                                                          : "";
            return false;
        };
        lauf_.runner.run();
        return befund;
    }

private:
    void anwaehlen(const std::string& befehl) {
        const std::size_t punkt = befehl.find('.');
        ScriptDesktop& desktop = lauf_.runner.platform().desktop;
        Form* const form = desktop.find(befehl.substr(0, punkt));
        Control* const knopf = form == nullptr ? nullptr : form->find(befehl.substr(punkt + 1));
        if (knopf != nullptr && knopf->kind() != "Menu") {
            knopf->SetFocus();
        }
    }

    /// Everything that a user could notice.
    std::string Stand() {
        ScriptPlatform& p = lauf_.runner.platform();
        std::string stand = p.desktop.focus() == nullptr ? "" : p.desktop.focus()->name();
        for (const Form* form : p.desktop.windows()) {
            stand += "\n" + form->name() + Eigenschaften(*form);
            for (const Control* steuerelement : form->controls()) {
                stand += "\n" + steuerelement->name() + "|" + Eigenschaften(*steuerelement);
                if (const auto* liste = dynamic_cast<const ListBox*>(steuerelement)) {
                    stand += std::to_string(liste->ListCount());
                }
            }
        }
        for (const Zeilen& geschehen : {p.dialogs.take_boxes(), p.dialogs.take_dialogs(),
                                        p.shell.take_opened(), p.progress.take_displays()}) {
            for (const std::string& zeile : geschehen) {
                stand += "\n" + zeile;
            }
        }
        for (const auto& datei : std::filesystem::recursive_directory_iterator(ordner_.ordner())) {
            stand += "\n" + datei.path().string() +
                     (datei.is_regular_file() ? ordner_.lesen(datei.path().string()) : "");
        }
        return stand + "\n" + std::to_string(p.printing.jobs().size()) + std::to_string(p.desktop.beeps());
    }

    Probenordner ordner_;
    Zeilen zeilen_;
    Programmlauf lauf_;
};

/// Every menu entry and button of a window can be pressed, where what it needs is there, and does something.
class Alles : public ::testing::TestWithParam<test::MakeForm> {};

TEST_P(Alles, LaesstSichDrueckenUndAntwortet) {
    const std::unique_ptr<Form> form = GetParam()();
    const std::size_t befehle = static_cast<std::size_t>(std::count_if(
        form->controls().begin(), form->controls().end(), [](const Control* c) { return ist_befehl(*c); }));
    ASSERT_TRUE(kWege.contains(form->name()) || befehle == 0) << "Wie kommt man zu " << form->name() << "?";
    for (const Control* steuerelement : form->controls()) {
        if (!ist_befehl(*steuerelement)) {
            continue;
        }
        const std::string name = form->name() + "." + steuerelement->name();
        const std::string befund = Benutzt(Weg(form->name(), *steuerelement)).druecken(name);
        EXPECT_TRUE(befund.empty() || (befund == kStumm && kOhneAntwort.contains(name)))
            << name << ": " << befund;
    }
}

INSTANTIATE_TEST_SUITE_P(Fenster, Alles, ::testing::ValuesIn(test::kForms),
                         [](const auto& welches) { return welches.param()->name(); });

} // namespace
} // namespace quittika
