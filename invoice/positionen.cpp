#include "invoice/positionen.hpp"

#include "platform/text.hpp"

#include <algorithm>
#include <string>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kSeitenumbruch =
    "+ + + + + + + + + + + + + + + + nächste Seite + + + + + + + + + + + + + + + +";
constexpr const char* kLeer = " ";

} // namespace

Positionen::Positionen(Form1& form1, Rechnungszustand& zustand, Eingabezeile& eingabezeile,
                       Rechnung& rechnung, Summen& summen, std::function<std::string(int zeile)> Druckhinweis)
    : form1_(form1),
      zustand_(zustand),
      eingabezeile_(eingabezeile),
      rechnung_(rechnung),
      summen_(summen),
      druckhinweis_(std::move(Druckhinweis)) {}

void Positionen::EingabezeileVerlassen() {
    if (eingabezeile_.Menge() && eingabezeile_.Preis()) {
        summen_.jetztberechnen_List();
    } else {
        eingabezeile_.ungelesenes_melden();
        form1_.Text_gesamtp.Text = vorgabe::kBetrag;
    }
}

Positionen::Eingabe Positionen::EingabePruefen() {
    if (form1_.Check_K.ticked()) {
        return Eingabe::Gueltig;
    }
    // What is added is what the fields show once they are left, by mouse and by the return key alike.
    EingabezeileVerlassen();
    if (const std::optional<double> menge = eingabezeile_.Menge(); menge && *menge == 0) {
        return Eingabe::Menge_Null;
    }
    if (const auto ablehnung = eingabezeile_.pruefen()) {
        EingabeAblehnen(*ablehnung);
        return Eingabe::Ungueltig;
    }
    return Eingabe::Gueltig;
}

void Positionen::EingabeAblehnen(const Eingabezeile::Ablehnung& ablehnung) {
    form1_.Hinweise.melden(ablehnung.grund, ablehnung.feld);
    eingabezeile_.beanstanden();
    Eingabezeile::hingehen(*ablehnung.feld);
}

void Positionen::MengeNullMelden() {
    form1_.StatusBar1[2].Caption = "!Menge=0 >> Tip:  Kommentarhäkchen >K< setzen.";
}

void Positionen::Cmd_Add_To_list_Click() {
    zustand_.aendern();
    if (!eingabezeile_.MengeIstZahl()) {
        const std::string grund = KEINE_ZAHL(form1_.Text_Menge.Text());
        form1_.Text_Menge.Text = vorgabe::kMenge;
        form1_.Hinweise.melden(form1_.Check_K.ticked() ? std::string() : grund + ", die Menge steht auf 0.",
                               &form1_.Text_Menge);
    }
    const Eingabe eingabe = EingabePruefen();
    if (eingabe == Eingabe::Ungueltig || (eingabe == Eingabe::Gueltig && !ZeileHinzufuegen(false))) {
        return;
    }
    if (eingabe == Eingabe::Menge_Null) {
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
    if (const std::string grund = eingabezeile_.nullgrund();
        eingabe == Eingabe::Menge_Null && !grund.empty()) {
        EingabeAblehnen({&form1_.Text_Menge, grund});
        return;
    }
    if (eingabe == Eingabe::Ungueltig || (eingabe == Eingabe::Gueltig && !ZeileHinzufuegen(false))) {
        return;
    }
    zustand_.aendern();
    StillAuswaehlen(alte_zeile);
    ZeileEntfernen();
    EingabezeileLeeren();
    ListenAbschliessen(alte_zeile);
    NaechsteEingabe();
    if (eingabe == Eingabe::Menge_Null) {
        MengeNullMelden();
        form1_.Hinweise.melden("Zeile " + std::to_string(alte_zeile + 1) +
                               " wurde gelöscht, weil ihre Menge 0 ist.");
    }
}

void Positionen::Eingabetaste() {
    if (eingabezeile_.zeile() >= 0) {
        Command_AENDERN_Click();
    } else {
        Cmd_Add_To_list_Click();
    }
}

void Positionen::ZeileLoslassen() {
    if (eingabezeile_.zeile() >= 0) {
        EingabezeileLeeren();
    }
}

void Positionen::EingabezeileLeeren() {
    const Rechnungszustand::Sperre still(zustand_);
    eingabezeile_.leeren();
}

void Positionen::NaechsteEingabe() {
    StillAuswaehlen(form1_.List_DARSTELLUNG.ListCount() - 1);
    Eingabezeile::hingehen(form1_.Text_Menge);
}

void Positionen::md_Del_artikel_Click() {
    const int zeile = form1_.List_DARSTELLUNG.ListIndex();
    if (zeile < 0) {
        return;
    }
    zustand_.aendern();
    ZeileLoslassen();
    ZeileEntfernen();
    ListenAbschliessen(zeile);
    StillAuswaehlen(std::min(zeile, form1_.List_DARSTELLUNG.ListCount() - 1));
    form1_.List_DARSTELLUNG.SetFocus();
}

void Positionen::Command_Trennzeile_Click() {
    zustand_.aendern();
    const int zeile = form1_.List_DARSTELLUNG.ListIndex() + 1;
    ZeileHinzufuegen(true);
    StillAuswaehlen(zeile);
    form1_.List_DARSTELLUNG.SetFocus();
}

bool Positionen::ZeileHinzufuegen(bool Trennzeile) {
    summen_.jetztberechnen_List();
    if (!Trennzeile && !eingabezeile_.SummeGueltig()) {
        EingabeAblehnen({&form1_.Text_preis, {}});
        return false;
    }
    if (!Trennzeile) {
        StrichpunkteErsetzen();
    }
    const int stelle = form1_.List_DARSTELLUNG.ListIndex() + 1;
    ZeileEinfuegen(stelle, Trennzeile);
    form1_.Hinweise.melden(druckhinweis_(stelle));
    EingabezeileLeeren();
    ListenAbschliessen(stelle);
    return true;
}

void Positionen::StrichpunkteErsetzen() {
    const std::string& text = form1_.Text_leistung.Text();
    if (text.find(';') != std::string::npos) {
        form1_.Text_leistung.Text = ZEICHENERSETZEN(text, ";", ",");
        form1_.Hinweise.melden("Aus \";\" wurde \",\": \";\" trennt in der Datei die Felder.");
    }
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

/// The rows before `ab` are as they were.
void Positionen::ListenAbschliessen(int ab) {
    summen_.jetztberechnen_List();
    rechnung_.DarstellungAufbauen(ab);
}

void Positionen::StillAuswaehlen(int zeile) {
    const Rechnungszustand::Sperre still(zustand_);
    form1_.List_DARSTELLUNG.ListIndex = zeile;
    ZeileAuswaehlen(zeile, form1_.List_DARSTELLUNG);
    eingabezeile_.zeile_setzen(-1);
}

void Positionen::ZeileAuswaehlen(int zeile, const Control& quelle) {
    const Rechnungszustand::Sperre still(zustand_);
    for (ListBox* liste : form1_.Positionslisten()) {
        if (liste != &quelle && zeile < liste->ListCount()) {
            liste->ListIndex = zeile;
        }
    }
    if (&quelle != &form1_.List_DARSTELLUNG && zeile < form1_.List_DARSTELLUNG.ListCount()) {
        form1_.List_DARSTELLUNG.ListIndex = zeile;
    }
}

void Positionen::List_DARSTELLUNG_Click() {
    Liste_Click(form1_.List_DARSTELLUNG);
}

void Positionen::Liste_Click(ListBox& liste) {
    ZeileAuswaehlen(liste.ListIndex(), liste);
    ZeileInEingabeHolen();
}

void Positionen::ZeileInEingabeHolen() {
    const int zeile = form1_.List_DARSTELLUNG.ListIndex();
    if (zeile >= 0) {
        const Rechnungszustand::Sperre still(zustand_);
        form1_.Check_K.Value = form1_.List_K.Text() == "K" ? 1 : 0;
        form1_.Text_Menge.Text = form1_.List_Menge.Text();
        form1_.Text_leistung.Text = form1_.List_Leistung.Text();
        form1_.Text_preis.Text = form1_.List_Preis.Text();
        form1_.Text_gesamtp.Text = form1_.List_Gesamtp.Text();
        eingabezeile_.felder_zeigen();
    }
    eingabezeile_.zeile_setzen(zeile);
}

void Positionen::Check_K_Click() {
    eingabezeile_.felder_zeigen();
    if (form1_.Text_Menge.Text() == kLeer) {
        form1_.Text_Menge.Text = vorgabe::kMenge;
    }
    if (form1_.Text_preis.Text() == kLeer) {
        form1_.Text_preis.Text = vorgabe::kBetrag;
    }
    summen_.jetztberechnen_List();
}

} // namespace quittika
