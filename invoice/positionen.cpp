#include "invoice/positionen.hpp"

#include <algorithm>
#include <string>

namespace quittika {

namespace {

constexpr const char* kSeitenumbruch =
    "+ + + + + + + + + + + + + + + + nächste Seite + + + + + + + + + + + + + + + +";
constexpr const char* kLeer = " ";

} // namespace

Positionen::Positionen(Form1& form1, Rechnungszustand& zustand, Rechnung& rechnung, Summen& summen,
                       Dialogs& dialogs)
    : form1_(form1), zustand_(zustand), rechnung_(rechnung), summen_(summen), dialogs_(dialogs) {}

Positionen::Eingabe Positionen::EingabePruefen() {
    if (form1_.Check_K.ticked()) {
        return Eingabe::Gueltig;
    }
    // What is added is what the fields show once they are left, by mouse and by the return key alike.
    summen_.EingabezeileVerlassen();
    const std::optional<double> menge = summen_.Menge();
    if (menge && *menge == 0) {
        return Eingabe::Menge_Null;
    }
    if (menge && summen_.Preis()) {
        return Eingabe::Gueltig;
    }
    EingabeAblehnen();
    return Eingabe::Ungueltig;
}

void Positionen::EingabeAblehnen() {
    dialogs_.message({"Ihre Eingabe ist nicht gültig!", "Achtung Fehler!"});
}

void Positionen::MengeNullMelden() {
    form1_.StatusBar1[2].Caption = "!Menge=0 >> Tip:  Kommentarhäkchen >K< setzen.";
}

void Positionen::Cmd_Add_To_list_Click() {
    zustand_.aendern();
    if (!summen_.MengeIstZahl()) {
        form1_.Text_Menge.Text = vorgabe::kMenge;
    }
    const Eingabe eingabe = EingabePruefen();
    if (eingabe == Eingabe::Gueltig) {
        ZeileHinzufuegen(false);
    } else if (eingabe == Eingabe::Menge_Null) {
        MengeNullMelden();
    }
    NaechsteEingabe();
}

void Positionen::Command_AENDERN_Click() {
    const int alte_zeile = form1_.List_DARSTELLUNG.ListIndex();
    if (alte_zeile < 0) {
        return;
    }
    const Eingabe eingabe = EingabePruefen();
    if (eingabe == Eingabe::Ungueltig || (eingabe == Eingabe::Gueltig && !ZeileHinzufuegen(false))) {
        return;
    }
    zustand_.aendern();
    StillAuswaehlen(alte_zeile);
    ZeileEntfernen();
    ListenAbschliessen();
    NaechsteEingabe();
    if (eingabe == Eingabe::Menge_Null) {
        MengeNullMelden();
    }
}

void Positionen::ZeileLoslassen() {
    if (form1_.Command_AENDERN.Enabled()) {
        const Rechnungszustand::Sperre still(zustand_);
        rechnung_.EingabezeileLeeren();
    }
}

void Positionen::NaechsteEingabe() {
    StillAuswaehlen(form1_.List_DARSTELLUNG.ListCount() - 1);
    form1_.Text_Menge.SetFocus();
    form1_.Text_Menge.select_all();
}

void Positionen::md_Del_artikel_Click() {
    const int zeile = form1_.List_DARSTELLUNG.ListIndex();
    if (zeile < 0) {
        return;
    }
    zustand_.aendern();
    ZeileEntfernen();
    ListenAbschliessen();
    StillAuswaehlen(std::min(zeile, form1_.List_DARSTELLUNG.ListCount() - 1));
}

void Positionen::Command_Trennzeile_Click() {
    zustand_.aendern();
    ZeileHinzufuegen(true);
    StillAuswaehlen(form1_.List_DARSTELLUNG.ListCount() - 1);
}

bool Positionen::ZeileHinzufuegen(bool Trennzeile) {
    summen_.jetztberechnen_List();
    if (!Trennzeile && !summen_.ZeilensummeGueltig()) {
        EingabeAblehnen();
        return false;
    }
    {
        const Rechnungszustand::Sperre still(zustand_);
        ZeileEinfuegen(form1_.List_DARSTELLUNG.ListIndex() + 1, Trennzeile);
        rechnung_.EingabezeileLeeren();
    }
    ListenAbschliessen();
    return true;
}

void Positionen::ZeileEinfuegen(int stelle, bool Trennzeile) {
    const bool kommentar = !Trennzeile && form1_.Check_K.ticked();
    const bool ohne_betrag = Trennzeile || kommentar;
    form1_.List_K.AddItem(Trennzeile ? "T" : kommentar ? "K" : "-", stelle);
    form1_.List_Leistung.AddItem(Trennzeile ? kSeitenumbruch : form1_.Text_leistung.Text(), stelle);
    form1_.List_pos.AddItem(ohne_betrag ? kLeer : std::to_string(form1_.List_K.ListCount()), stelle);
    form1_.List_Menge.AddItem(ohne_betrag ? kLeer : form1_.Text_Menge.Text(), stelle);
    form1_.List_Preis.AddItem(ohne_betrag ? kLeer : form1_.Text_preis.Text(), stelle);
    form1_.List_Gesamtp.AddItem(ohne_betrag ? kLeer : form1_.Text_gesamtp.Text(), stelle);
}

void Positionen::ZeileEntfernen() {
    for (ListBox* liste : form1_.Positionslisten()) {
        liste->RemoveItem(liste->ListIndex());
    }
}

void Positionen::ListenAbschliessen() {
    summen_.jetztberechnen_List();
    rechnung_.DarstellungAufbauen();
}

void Positionen::StillAuswaehlen(int zeile) {
    {
        const Rechnungszustand::Sperre still(zustand_);
        form1_.List_DARSTELLUNG.ListIndex = zeile;
    }
    form1_.Command_AENDERN.Enabled = false;
    ZeileAuswaehlen(zeile, form1_.List_DARSTELLUNG);
}

void Positionen::ZeileAuswaehlen(int zeile, const Control& quelle) {
    auswahl_laeuft_ = true;
    for (ListBox* liste : form1_.Positionslisten()) {
        if (liste != &quelle && zeile < liste->ListCount()) {
            liste->ListIndex = zeile;
        }
    }
    if (&quelle != &form1_.List_DARSTELLUNG && zeile < form1_.List_DARSTELLUNG.ListCount()) {
        form1_.List_DARSTELLUNG.ListIndex = zeile;
    }
    auswahl_laeuft_ = false;
}

void Positionen::List_DARSTELLUNG_Click() {
    Liste_Click(form1_.List_DARSTELLUNG);
}

void Positionen::Liste_Click(ListBox& liste) {
    if (auswahl_laeuft_ || zustand_.gesperrt()) {
        return;
    }
    ZeileAuswaehlen(liste.ListIndex(), liste);
    ZeileInEingabeHolen();
}

void Positionen::ZeileInEingabeHolen() {
    if (form1_.List_DARSTELLUNG.ListIndex() < 0) {
        form1_.Command_AENDERN.Enabled = false;
        return;
    }
    {
        const Rechnungszustand::Sperre still(zustand_);
        form1_.Check_K.Value = form1_.List_K.Text() == "K" ? 1 : 0;
        form1_.Text_Menge.Text = form1_.List_Menge.Text();
        form1_.Text_leistung.Text = form1_.List_Leistung.Text();
        form1_.Text_preis.Text = form1_.List_Preis.Text();
        form1_.Text_gesamtp.Text = form1_.List_Gesamtp.Text();
    }
    EingabefelderZeigen(form1_);
    form1_.Command_AENDERN.Enabled = true;
}

void Positionen::Check_K_Click() {
    if (zustand_.gesperrt()) {
        return;
    }
    EingabefelderZeigen(form1_);
    if (form1_.Text_Menge.Text() == kLeer) {
        form1_.Text_Menge.Text = vorgabe::kMenge;
    }
    if (form1_.Text_preis.Text() == kLeer) {
        form1_.Text_preis.Text = vorgabe::kBetrag;
    }
    summen_.jetztberechnen_List();
}

} // namespace quittika
