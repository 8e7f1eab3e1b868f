#include "app/hauptfenster.hpp"

#include "app/raster.hpp"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

namespace quittika {

namespace {

constexpr int kEingabetaste = 13;
constexpr int kEscape = 27;
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

/// What each of these keys does.
std::function<void(int)> tasten(std::map<int, Control::Event> belegung) {
    return [belegung = std::move(belegung)](int taste) {
        if (const auto gedrueckt = belegung.find(taste); gedrueckt != belegung.end()) {
            gedrueckt->second();
        }
    };
}

} // namespace

Hauptfenster::Ereignis Hauptfenster::vom_benutzer(Ereignis tun) {
    return [&zustand = t_.zustand, tun = std::move(tun)] {
        if (!zustand.gesperrt()) {
            tun();
        }
    };
}

Hauptfenster::Ereignis Hauptfenster::aenderung(Ereignis tun) {
    return vom_benutzer([this, tun = std::move(tun)] {
        t_.zustand.aendern();
        if (tun) {
            tun();
        }
        t_.summen.jetztberechnen_List();
    });
}

Hauptfenster::Ereignis Hauptfenster::befehl(Ereignis tun) {
    return [&hinweise = t_.form1.Hinweise, tun = std::move(tun)] {
        const Hinweiszeile::Befehl laeuft(hinweise);
        tun();
    };
}

void Hauptfenster::FensterVerdrahten() {
    Form1& f = t_.form1;
    f.Load = [this] {
        t_.ladefolge.Form_Load();
        KundeAnwaehlen();
    };
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
    f.m_neu.Click = befehl([this, &datei] {
        datei.m_neu_Click();
        KundeAnwaehlen();
    });
    f.m_oeffnen.Click = befehl([&datei] { datei.m_oeffnen_Click(); });
    f.m_speichern.Click = befehl([&datei] { datei.m_speichern_Click(); });
    f.Command_jetztSpeichern.Click = befehl([&datei] { datei.m_speichern_Click(); });
    f.m_speichern_direkt.Click = befehl([&datei] { datei.m_speichern_direkt_Click(); });
    f.m_speichern_kurz.Click = befehl([&datei] { datei.m_speichern_kurz_Click(); });
    f.m_R1.Click = befehl([&datei] { datei.m_R_Click(1); });
    f.m_R2.Click = befehl([&datei] { datei.m_R_Click(2); });
    f.m_R3.Click = befehl([&datei] { datei.m_R_Click(3); });
    f.Command_printform.Click = befehl([this] { t_.druckauftrag.Command_printform_Click(); });
    f.m_Drucken.Click = befehl([this] { t_.druckauftrag.Command_printform_Click(); });
    f.m_eingabezeile.Click = [this] { EingabezeileAnwaehlen(); };
    f.m_beenden.Click = befehl([this] { m_beenden_Click(); });
    f.m_Schlagwortsuche.Click = befehl([this] { m_Schlagwortsuche_Click(); });
    f.ueber_QUITTIKA.Click = befehl([this] { ueber_QUITTIKA_Click(); });
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
        feld->Change = vom_benutzer([this] { t_.zustand.aendern(); });
    }
    for (TextBox* feld :
         {&f.Text_Kunde_1, &f.Text_Kunde_2, &f.Text_Kunde_3, &f.Text_Kunde_4, &f.Text_KundennrK}) {
        feld->GotFocus = [this, feld] { PlatzhalterMarkieren(*feld); };
    }
    f.Check_LIEFERDATUM.Click = aenderung([this] { Check_LIEFERDATUM_Click(); });
    f.Check_datum.Click = aenderung([this] { Check_datum_Click(); });
    f.Command_KD_Add.Click = befehl([this] { t_.kunde_aufnehmen.Command_KD_Add_Click(); });
    for (OptionButton* block : {&f.Option_anschreiben, &f.Option_Bemerkungen}) {
        block->Click = [this] { Option_anschreiben_Click(); };
    }
    for (int n = 1; n <= 4; ++n) {
        for (TextBox& zeile : f.Text_Bemerkung(n)) {
            zeile.Change = vom_benutzer([this] { t_.zustand.aendern(); });
        }
    }
    // Printed otherwise, but nothing of the invoice itself.
    for (Control* schalter :
         {static_cast<Control*>(&f.Option_RECHNUNG), static_cast<Control*>(&f.Option_RECHNUNG_KOPIE),
          static_cast<Control*>(&f.Option_LIEFERSCHEIN), static_cast<Control*>(&f.Option_LIEFERSCHEIN_KOPIE),
          static_cast<Control*>(&f.Check_tele_nichtdrucken)}) {
        schalter->Click = vom_benutzer([this] { t_.summen.jetztberechnen_List(); });
    }
}

void Hauptfenster::EingabeVerdrahten() {
    Form1& f = t_.form1;
    Positionen& positionen = t_.positionen;
    f.Cmd_Add_To_list.Click = befehl([&positionen] { positionen.Cmd_Add_To_list_Click(); });
    f.Command_AENDERN.Click = befehl([&positionen] { positionen.Command_AENDERN_Click(); });
    f.md_Del_artikel.Click = befehl([&positionen] { positionen.md_Del_artikel_Click(); });
    f.Command_Trennzeile.Click = befehl([&positionen] { positionen.Command_Trennzeile_Click(); });
    f.Check_K.Click = vom_benutzer([&positionen] { positionen.Check_K_Click(); });
    for (TextBox* feld : {&f.Text_Menge, &f.Text_leistung, &f.Text_preis}) {
        feld->GotFocus = [this, feld] {
            feld->select_all();
            t_.eingabezeile.fokus(true);
        };
        feld->LostFocus = [this] { t_.eingabezeile.fokus(false); };
        feld->KeyDown = tasten({{kEingabetaste, befehl([&positionen] { positionen.Eingabetaste(); })},
                                {kEscape, [&positionen] { positionen.ZeileLoslassen(); }}});
    }
    for (TextBox* feld : {&f.Text_Menge, &f.Text_preis}) {
        feld->Change = vom_benutzer([this, feld] {
            t_.form1.Hinweise.vergessen(*feld);
            t_.eingabezeile.mitrechnen();
        });
        feld->LostFocus = [this, &positionen] {
            t_.eingabezeile.fokus(false);
            positionen.EingabezeileVerlassen();
        };
    }
}

void Hauptfenster::ListenVerdrahten() {
    Form1& f = t_.form1;
    Positionen& positionen = t_.positionen;
    f.List_DARSTELLUNG.Click = vom_benutzer(befehl([&positionen] { positionen.List_DARSTELLUNG_Click(); }));
    f.List_DARSTELLUNG.KeyDown =
        tasten({{kEntfernen, befehl([&positionen] { positionen.md_Del_artikel_Click(); })},
                {kEscape, [&positionen] { positionen.ZeileLoslassen(); }}});
    for (ListBox* liste : f.Positionslisten()) {
        liste->Click = vom_benutzer([&positionen, liste] { positionen.Liste_Click(*liste); });
    }
}

void Hauptfenster::ZeilenmenueVerdrahten() {
    Form1& f = t_.form1;
    Positionen& positionen = t_.positionen;
    Zeilenmenue& menue = t_.zeilenmenue;
    f.List_DARSTELLUNG.Changed = [&menue] { menue.EintraegeFreigeben(); };
    f.m_Zeile_aendern.Click = befehl([&menue] { menue.m_Zeile_aendern_Click(); });
    f.m_Zeile_loeschen.Click = befehl([&positionen] { positionen.md_Del_artikel_Click(); });
    f.m_Zeile_kommentar.Click = befehl([&menue] { menue.m_Zeile_kommentar_Click(); });
    f.m_Zeile_umbruch.Click = befehl([&positionen] { positionen.Command_Trennzeile_Click(); });
    f.m_Zeile_hoch.Click = befehl([&menue] { menue.m_Zeile_hoch_Click(); });
    f.m_Zeile_runter.Click = befehl([&menue] { menue.m_Zeile_runter_Click(); });
    menue.EintraegeFreigeben();
}

void Hauptfenster::BetraegeVerdrahten() {
    Form1& f = t_.form1;
    for (Control* schalter :
         {static_cast<Control*>(&f.Option_mwst_plus), static_cast<Control*>(&f.Option_mwst_minus),
          static_cast<Control*>(&f.Option_inkl_MwSt), static_cast<Control*>(&f.Check_RABATT),
          static_cast<Control*>(&f.Check_Versandkosten), static_cast<Control*>(&f.Check_VersandMwStEXTRA),
          static_cast<Control*>(&f.Check_VersandINKL_MwSt), static_cast<Control*>(&f.Check_000)}) {
        schalter->Click = aenderung();
    }
    f.Check_mengenartDECIMAL.Click =
        aenderung([this] { t_.werte.MENGE_DEZIMAL = t_.form1.Check_mengenartDECIMAL.ticked(); });
    f.Check_mwst.Click = aenderung([this] { Check_mwst_Click(); });
    f.Option_Satz1.Click = aenderung([this] { t_.form1.Text_MwSt.Text = t_.werte.MWST_SATZ1; });
    f.Option_Satz2.Click = aenderung([this] { t_.form1.Text_MwSt.Text = t_.werte.MWST_SATZ2; });
    WertfeldVerdrahten(f.Text_MwSt, [this] { Text_MwSt_LostFocus(); });
    for (TextBox* feld : {&f.Text_Rabatt, &f.Text_PreisVersankostenEingabe, &f.Text_Versandk}) {
        WertfeldVerdrahten(*feld, [this] { t_.summen.jetztberechnen_List(); });
    }
    f.Command_berechnen.Click = befehl([this] { Command_berechnen_Click(); });
}

void Hauptfenster::WertfeldVerdrahten(TextBox& feld, const Ereignis& rechnen) {
    CommandButton& knopf = t_.form1.Command_berechnen;
    feld.Change = vom_benutzer([this, &feld] {
        t_.zustand.aendern();
        t_.form1.Hinweise.vergessen(feld);
    });
    feld.GotFocus = [&knopf] { knopf.Default = true; };
    feld.LostFocus = [&knopf, rechnen] {
        knopf.Default = false;
        rechnen();
    };
    feld.KeyDown = tasten({{kEingabetaste, befehl([rechnen, &feld] {
                                rechnen();
                                feld.select_all();
                            })}});
}

void Hauptfenster::StatusVerdrahten() {
    Form1& f = t_.form1;
    f.Check_versendet.Click = aenderung();
    f.Check_bezahlt.Click = aenderung();
    f.Check_abgemahnt.Click = aenderung([this] { Check_abgemahnt_Click(); });
    f.Combo1_mahnung.Click = vom_benutzer([this] { t_.zustand.aendern(); });
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
