#include "app/eingabe.hpp"

namespace quittika {

Eingabe::Eingabe(Form1& form1, const Ereignisse& ereignisse, Eingabezeile& eingabezeile,
                 Positionen& positionen, Zeilenmenue& zeilenmenue, Artikeluebernahme& artikel)
    : form1_(form1), positionen_(positionen) {
    KnoepfeVerdrahten(ereignisse);
    ZeileVerdrahten(ereignisse, eingabezeile);
    ArtikelVerdrahten(ereignisse, artikel);
    ListenVerdrahten(ereignisse);
    ZeilenmenueVerdrahten(ereignisse, zeilenmenue);
}

void Eingabe::KnoepfeVerdrahten(const Ereignisse& ereignisse) {
    Positionen& positionen = positionen_;
    form1_.Cmd_Add_To_list.Click = ereignisse.befehl([&positionen] { positionen.Cmd_Add_To_list_Click(); });
    form1_.Command_AENDERN.Click = ereignisse.befehl([&positionen] { positionen.Command_AENDERN_Click(); });
    form1_.md_Del_artikel.Click = ereignisse.befehl([&positionen] { positionen.md_Del_artikel_Click(); });
    form1_.Command_Trennzeile.Click =
        ereignisse.befehl([&positionen] { positionen.Command_Trennzeile_Click(); });
    form1_.Check_K.Click = ereignisse.vom_benutzer([&positionen] { positionen.Check_K_Click(); });
}

void Eingabe::ArtikelVerdrahten(const Ereignisse& ereignisse, Artikeluebernahme& artikel) {
    form1_.Command_PLUS_LIST.Click =
        ereignisse.befehl([&artikel] { artikel.Command_PLUS_Click(artikel.Eingabezeile()); });
    form1_.Text_leistung.OLEDragDrop = [&artikel](const std::string& text) {
        artikel.Ablegen(artikel.Eingabezeile(), text);
    };
}

void Eingabe::ZeileVerdrahten(const Ereignisse& ereignisse, Eingabezeile& eingabezeile) {
    Positionen& positionen = positionen_;
    for (TextBox* feld : {&form1_.Text_Menge, &form1_.Text_leistung, &form1_.Text_preis}) {
        feld->GotFocus = [feld, &eingabezeile] {
            feld->select_all();
            eingabezeile.fokus(true);
        };
        feld->LostFocus = [&eingabezeile] { eingabezeile.fokus(false); };
        feld->KeyDown =
            TASTEN({{kEingabetaste, ereignisse.befehl([&positionen] { positionen.Eingabetaste(); })},
                    {kEscape, [&positionen] { positionen.ZeileLoslassen(); }}});
    }
    BetragsfeldVerdrahten(form1_.Text_Menge, ereignisse, eingabezeile);
    BetragsfeldVerdrahten(form1_.Text_preis, ereignisse, eingabezeile);
}

void Eingabe::BetragsfeldVerdrahten(TextBox& feld, const Ereignisse& ereignisse, Eingabezeile& eingabezeile) {
    feld.Change = ereignisse.vom_benutzer([&hinweise = form1_.Hinweise, &feld, &eingabezeile] {
        hinweise.vergessen(feld);
        eingabezeile.mitrechnen();
    });
    feld.LostFocus = [&eingabezeile, &positionen = positionen_] {
        eingabezeile.fokus(false);
        positionen.EingabezeileVerlassen();
    };
}

void Eingabe::ListenVerdrahten(const Ereignisse& ereignisse) {
    Positionen& positionen = positionen_;
    ListBox& darstellung = form1_.List_DARSTELLUNG;
    darstellung.Click =
        ereignisse.vom_benutzer(ereignisse.befehl([&positionen] { positionen.List_DARSTELLUNG_Click(); }));
    darstellung.KeyDown =
        TASTEN({{kEntfernen, ereignisse.befehl([&positionen] { positionen.md_Del_artikel_Click(); })},
                {kEscape, [&positionen] { positionen.ZeileLoslassen(); }}});
    for (ListBox* liste : form1_.Positionslisten()) {
        liste->Click = ereignisse.vom_benutzer([&positionen, liste] { positionen.Liste_Click(*liste); });
    }
}

void Eingabe::ZeilenmenueVerdrahten(const Ereignisse& ereignisse, Zeilenmenue& menue) {
    Positionen& positionen = positionen_;
    form1_.List_DARSTELLUNG.Changed = [&menue] { menue.EintraegeFreigeben(); };
    form1_.m_Zeile_aendern.Click = ereignisse.befehl([&menue] { menue.m_Zeile_aendern_Click(); });
    form1_.m_Zeile_loeschen.Click = ereignisse.befehl([&positionen] { positionen.md_Del_artikel_Click(); });
    form1_.m_Zeile_kommentar.Click = ereignisse.befehl([&menue] { menue.m_Zeile_kommentar_Click(); });
    form1_.m_Zeile_umbruch.Click =
        ereignisse.befehl([&positionen] { positionen.Command_Trennzeile_Click(); });
    form1_.m_Zeile_hoch.Click = ereignisse.befehl([&menue] { menue.m_Zeile_hoch_Click(); });
    form1_.m_Zeile_runter.Click = ereignisse.befehl([&menue] { menue.m_Zeile_runter_Click(); });
    menue.EintraegeFreigeben();
}

} // namespace quittika
