#include "invoice/zeilenmenue.hpp"

#include <algorithm>
#include <string>

namespace quittika {

Zeilenmenue::Zeilenmenue(Form1& form1, Rechnungszustand& zustand, Eingabezeile& eingabezeile,
                         Rechnung& rechnung, Summen& summen, Positionen& positionen)
    : form1_(form1),
      zustand_(zustand),
      eingabezeile_(eingabezeile),
      rechnung_(rechnung),
      summen_(summen),
      positionen_(positionen) {}

void Zeilenmenue::EintraegeFreigeben() {
    const int zeile = form1_.List_DARSTELLUNG.ListIndex();
    const bool gewaehlt = zeile >= 0;
    form1_.m_Zeile_aendern.Enabled = gewaehlt && form1_.List_K.List(zeile) != "T";
    form1_.m_Zeile_loeschen.Enabled = gewaehlt;
    form1_.m_Zeile_kommentar.Enabled = gewaehlt;
    form1_.m_Zeile_umbruch.Enabled = gewaehlt;
    form1_.m_Zeile_hoch.Enabled = zeile > 0;
    form1_.m_Zeile_runter.Enabled = gewaehlt && zeile + 1 < form1_.List_DARSTELLUNG.ListCount();
}

void Zeilenmenue::m_Zeile_aendern_Click() {
    if (eingabezeile_.zeile() < 0) {
        positionen_.ZeileInEingabeHolen();
    }
    (form1_.Check_K.ticked() ? form1_.Text_leistung : form1_.Text_Menge).SetFocus();
}

void Zeilenmenue::m_Zeile_kommentar_Click() {
    const int zeile = form1_.List_DARSTELLUNG.ListIndex();
    positionen_.ZeileLoslassen(); // what is typed for a new row stays: it may be the comment
    form1_.Check_K.Value = 1;
    Auswaehlen(zeile - 1);
    form1_.Text_leistung.SetFocus();
    form1_.Hinweise.melden("Kommentar eingeben und >Hinzufügen< drücken: Er kommt vor Zeile " +
                           std::to_string(zeile + 1) + ".");
}

void Zeilenmenue::ZeileVerschieben(int schritt) {
    const int von = form1_.List_DARSTELLUNG.ListIndex();
    const int nach = von + schritt;
    zustand_.aendern();
    {
        const Rechnungszustand::Sperre still(zustand_);
        for (ListBox* liste : form1_.Positionslisten()) {
            std::string text = liste->List(von);
            liste->RemoveItem(von);
            liste->AddItem(std::move(text), nach);
        }
    }
    summen_.jetztberechnen_List();
    rechnung_.DarstellungAufbauen(std::min(von, nach));
    Auswaehlen(nach);
    if (eingabezeile_.zeile() >= 0) {
        eingabezeile_.zeile_setzen(nach);
    }
}

void Zeilenmenue::Auswaehlen(int zeile) {
    const Rechnungszustand::Sperre still(zustand_);
    for (ListBox* liste : form1_.Positionslisten()) {
        liste->ListIndex = zeile;
    }
    form1_.List_DARSTELLUNG.ListIndex = zeile;
}

} // namespace quittika
