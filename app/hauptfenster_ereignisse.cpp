#include "app/hauptfenster.hpp"

#include "app/raster.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr int kEingabetaste = 13;
constexpr int kEntfernen = 46;
constexpr const char* kHilfeseite = "https://www.quittika.example/hilfe.htm";
constexpr const char* kHauptseite = "https://www.quittika.example/";

/// Dropped text for a field of one line.
std::string einzeilig(std::string text) {
    for (const char umbruch : {'\r', '\n'}) {
        std::replace(text.begin(), text.end(), umbruch, ' ');
    }
    return text;
}

} // namespace

void Hauptfenster::FensterVerdrahten() {
    Form1& f = t_.form1;
    f.Load = [this] { t_.ladefolge.Form_Load(); };
    f.QueryUnload = [this](bool& abbrechen) { Form_QueryUnload(abbrechen); };
    f.Unload = [this] { t_.platform.desktop.end(); };
    f.FilesDropped = [this](const std::vector<std::string>& pfade) { Form_FilesDropped(pfade); };
    t_.zustand.Gewechselt = [this] { TitelZeigen(); };
    f.Timer_blink.Tick = [this] { t_.erinnerung.Timer_blink_Timer(); };
    f.Timer_chronjob.Tick = [this] { t_.erinnerung.Timer_chronjob_Timer(); };
}

void Hauptfenster::MenueVerdrahten() {
    Form1& f = t_.form1;
    Dateibefehle& datei = t_.dateibefehle;
    f.m_neu.Click = [&datei] { datei.m_neu_Click(); };
    f.m_oeffnen.Click = [&datei] { datei.m_oeffnen_Click(); };
    f.m_speichern.Click = [&datei] { datei.m_speichern_Click(); };
    f.Command_jetztSpeichern.Click = [&datei] { datei.m_speichern_Click(); };
    f.m_speichern_direkt.Click = [&datei] { datei.m_speichern_direkt_Click(); };
    f.m_speichern_kurz.Click = [&datei] { datei.m_speichern_kurz_Click(); };
    f.m_R1.Click = [&datei] { datei.m_R_Click(1); };
    f.m_R2.Click = [&datei] { datei.m_R_Click(2); };
    f.m_R3.Click = [&datei] { datei.m_R_Click(3); };
    f.Command_printform.Click = [this] { t_.druckauftrag.Command_printform_Click(); };
    f.m_Drucken.Click = [this] { t_.druckauftrag.Command_printform_Click(); };
    f.m_beenden.Click = [this] { m_beenden_Click(); };
    f.m_Schlagwortsuche.Click = [this] { m_Schlagwortsuche_Click(); };
    f.ueber_QUITTIKA.Click = [this] { ueber_QUITTIKA_Click(); };
    const Programmverzeichnis& ordner = t_.verzeichnis;
    f.m_Benutzerhandbuch_html.Click = [this, &ordner] {
        DOKUMENT_OEFFNEN("file:///" + ordner.pfad("\\startbenutzerhandbuch.htm"));
    };
    f.m_Benutzerhandbuch_pdf.Click = [this, &ordner] {
        DOKUMENT_OEFFNEN(ordner.pfad("\\Benutzerhandbuch - Quittika 2008.pdf"));
    };
    f.m_ErsteRechnungerstellen.Click = [this, &ordner] {
        DOKUMENT_OEFFNEN(ordner.pfad("\\DIE_ERSTE_RECHNUNG.pdf"));
    };
    f.m_hilfe.Click = [this] { DOKUMENT_OEFFNEN(kHilfeseite); };
    f.m_website.Click = [this] { DOKUMENT_OEFFNEN(kHauptseite); };
}

void Hauptfenster::KopfVerdrahten() {
    Form1& f = t_.form1;
    for (TextBox* feld : {&f.Text_Datum, &f.Text_Kunde_1, &f.Text_Kunde_2, &f.Text_Kunde_3, &f.Text_Kunde_4,
                          &f.Text_KundennrK, &f.Text_LIEFERDATUM, &f.Text_rechnung, &f.Text_RNnr}) {
        feld->Change = [this] { t_.zustand.aendern(); };
    }
    f.Check_LIEFERDATUM.Click = [this] { Check_LIEFERDATUM_Click(); };
    f.Check_datum.Click = [this] { Check_datum_Click(); };
    f.Command_KD_Add.Click = [this] { t_.kunde_aufnehmen.Command_KD_Add_Click(); };
    f.Option_anschreiben.Click = [this] { Option_anschreiben_Click(); };
    f.Option_Bemerkungen.Click = [this] { Option_anschreiben_Click(); };
    for (int n = 1; n <= 4; ++n) {
        for (TextBox& zeile : f.Text_Bemerkung(n)) {
            zeile.Change = [this] { t_.zustand.aendern(); };
        }
    }
}

void Hauptfenster::EingabeVerdrahten() {
    Form1& f = t_.form1;
    Positionen& positionen = t_.positionen;
    f.Cmd_Add_To_list.Click = [&positionen] { positionen.Cmd_Add_To_list_Click(); };
    f.Command_AENDERN.Click = [&positionen] { positionen.Command_AENDERN_Click(); };
    f.md_Del_artikel.Click = [&positionen] { positionen.md_Del_artikel_Click(); };
    f.Command_Trennzeile.Click = [&positionen] { positionen.Command_Trennzeile_Click(); };
    f.Check_K.Click = [&positionen] { positionen.Check_K_Click(); };
    for (TextBox* feld : {&f.Text_Menge, &f.Text_leistung, &f.Text_preis}) {
        feld->GotFocus = [feld] { feld->select_all(); };
        feld->KeyDown = [&positionen](int taste) {
            if (taste == kEingabetaste) {
                positionen.Cmd_Add_To_list_Click();
            }
        };
    }
    f.Text_Menge.LostFocus = [this] { t_.summen.EingabezeileVerlassen(); };
    f.Text_preis.LostFocus = [this] { t_.summen.EingabezeileVerlassen(); };
}

void Hauptfenster::ListenVerdrahten() {
    Form1& f = t_.form1;
    f.List_DARSTELLUNG.Click = [this] { t_.positionen.List_DARSTELLUNG_Click(); };
    f.List_DARSTELLUNG.KeyDown = [this](int taste) {
        if (taste == kEntfernen) {
            t_.positionen.md_Del_artikel_Click();
        }
    };
    for (ListBox* liste : f.Positionslisten()) {
        liste->Click = [this, liste] { t_.positionen.Liste_Click(*liste); };
    }
}

void Hauptfenster::ZeilenmenueVerdrahten() {
    Form1& f = t_.form1;
    Positionen& positionen = t_.positionen;
    Zeilenmenue& menue = t_.zeilenmenue;
    f.List_DARSTELLUNG.Changed = [&menue] { menue.EintraegeFreigeben(); };
    f.m_Zeile_aendern.Click = [&menue] { menue.m_Zeile_aendern_Click(); };
    f.m_Zeile_loeschen.Click = [&positionen] { positionen.md_Del_artikel_Click(); };
    f.m_Zeile_kommentar.Click = [&menue] { menue.m_Zeile_kommentar_Click(); };
    f.m_Zeile_umbruch.Click = [&positionen] { positionen.Command_Trennzeile_Click(); };
    f.m_Zeile_hoch.Click = [&menue] { menue.m_Zeile_hoch_Click(); };
    f.m_Zeile_runter.Click = [&menue] { menue.m_Zeile_runter_Click(); };
    menue.EintraegeFreigeben();
}

void Hauptfenster::BetraegeVerdrahten() {
    Form1& f = t_.form1;
    for (Control* schalter :
         {static_cast<Control*>(&f.Check_mwst), static_cast<Control*>(&f.Option_mwst_plus),
          static_cast<Control*>(&f.Option_mwst_minus), static_cast<Control*>(&f.Option_inkl_MwSt),
          static_cast<Control*>(&f.Check_RABATT), static_cast<Control*>(&f.Check_Versandkosten),
          static_cast<Control*>(&f.Check_VersandMwStEXTRA), static_cast<Control*>(&f.Check_VersandINKL_MwSt),
          static_cast<Control*>(&f.Check_mengenartDECIMAL), static_cast<Control*>(&f.Check_000)}) {
        schalter->Click = [this] { geaendert_und_rechnen(); };
    }
    f.Option_Satz1.Click = [this] { Satz_Click(t_.werte.MWST_SATZ1); };
    f.Option_Satz2.Click = [this] { Satz_Click(t_.werte.MWST_SATZ2); };
    for (TextBox* feld : {&f.Text_MwSt, &f.Text_Rabatt, &f.Text_PreisVersankostenEingabe, &f.Text_Versandk}) {
        feld->Change = [this] { t_.zustand.aendern(); };
        feld->LostFocus = [this] { t_.summen.jetztberechnen_List(); };
    }
    f.Text_MwSt.LostFocus = [this] { Text_MwSt_LostFocus(); };
    f.Command_berechnen.Click = [this] { t_.summen.jetztberechnen_List(); };
}

void Hauptfenster::StatusVerdrahten() {
    Form1& f = t_.form1;
    for (Control* feld : {static_cast<Control*>(&f.Check_versendet), static_cast<Control*>(&f.Check_bezahlt),
                          static_cast<Control*>(&f.Combo1_mahnung)}) {
        feld->Click = [this] { t_.zustand.aendern(); };
    }
    f.Check_abgemahnt.Click = [this] { Check_abgemahnt_Click(); };
}

void Hauptfenster::RasterVerdrahten() {
    Form1& f = t_.form1;
    for (int seite = 0; seite < Form1::kSeiten; ++seite) {
        f.CMD_Seite1[seite].Click = [this, seite] { t_.dateibefehle.CMD_Seite1_Click(seite); };
        for (Form1::Rasterzeile& zeile : f.Raster) {
            zeile.Check_K[seite].Click = [this, &zeile, seite] {
                RasterzeileFreigeben(zeile, seite);
                t_.summen.jetztberechnen_List();
            };
            zeile.Text_menge[seite].LostFocus = [this] { t_.summen.jetztberechnen_List(); };
            zeile.Text_preis[seite].LostFocus = [this] { t_.summen.jetztberechnen_List(); };
        }
    }
}

void Hauptfenster::AblegenVerdrahten() {
    Form1& f = t_.form1;
    for (TextBox* feld : {&f.Text_Kunde_1, &f.Text_Kunde_2, &f.Text_Kunde_3, &f.Text_Kunde_4,
                          &f.Text_KundennrK, &f.Text_leistung}) {
        feld->OLEDragDrop = [feld](const std::string& text) { feld->Text = einzeilig(text); };
    }
    for (Form1::Rasterzeile& zeile : f.Raster) {
        for (TextBox& feld : zeile.Text_leistung) {
            feld.OLEDragDrop = [&feld](const std::string& text) { feld.Text = einzeilig(text); };
        }
    }
}

/// Commands whose windows the program does not have are not offered.
void Hauptfenster::SpaeteresSperren() {
    Form1& f = t_.form1;
    for (Menu* m : {&f.m_Rechnung_txt_export, &f.m_Rechnung_bmp_export, &f.m_Vorschau, &f.m_druckenBRIEF,
                    &f.m_druckenpaketschein, &f.m_druckenpaketscheinHVersand, &f.m_druckenpaeckchenschein,
                    &f.m_druckjustierung, &f.m_Rechnungsdaten, &f.m_Programmeinstellungen, &f.m_Kundenliste,
                    &f.m_Artikelliste, &f.m_start_analyzer, &f.m_startdesigner, &f.m_updatesuchen}) {
        m->Enabled = false;
    }
    for (CommandButton* k :
         {&f.CMD_AS_BILD, &f.Command_Druckvorschau, &f.Command_Kundenliste, &f.Command_Artikelliste,
          &f.Cmd_Barcode, &f.Command1, &f.Command2, &f.Cmd_Notiz, &f.CMD_FORM_HELFERLEIN,
          &f.CMD_FORM_HELFERLEIN_Bkg, &f.Cmd_Vorlagen, &f.Command_PLUS_LIST}) {
        k->Enabled = false;
    }
    for (Form1::Rasterzeile& zeile : f.Raster) {
        for (CommandButton& k : zeile.Command_PLUS_) {
            k.Enabled = false;
        }
    }
}

} // namespace quittika
