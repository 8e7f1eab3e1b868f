#include "invoice/rechnung.hpp"

#include "invoice/compressor.hpp"
#include "invoice/notiztext.hpp"
#include "invoice/zahleneingabe.hpp"
#include "platform/datum.hpp"
#include "platform/zahlen.hpp"

#include <optional>
#include <utility>
#include <vector>

namespace quittika {

namespace {

std::string Darstellungszeile(const Form1& form1, int zeile) {
    constexpr std::size_t kUeblich = 3 + 9 + 76 + 6 + 10;
    std::string text;
    text.reserve(kUeblich + form1.List_Leistung.List(zeile).size());
    COMPRESSOR_ANFUEGEN(text, 1, form1.List_pos.List(zeile));
    COMPRESSOR_ANFUEGEN(text, 2, form1.List_Menge.List(zeile));
    COMPRESSOR_ANFUEGEN(text, 3, form1.List_Leistung.List(zeile));
    COMPRESSOR_ANFUEGEN(text, 4, form1.List_Preis.List(zeile));
    COMPRESSOR_ANFUEGEN(text, 5, form1.List_Gesamtp.List(zeile));
    return text;
}

} // namespace

void SatzAuswahlZeigen(Form1& form1, const PROGRAMMEINSTELLUNG& einstellung) {
    const auto wert = [](const std::string& satz) { return double_versuch(MIT_KOMMA(satz)); };
    const auto satz = wert(form1.Text_MwSt.Text());
    form1.Option_Satz1.Value = satz && satz == wert(einstellung.MWST_SATZ1);
    form1.Option_Satz2.Value = !form1.Option_Satz1.Value() && satz && satz == wert(einstellung.MWST_SATZ2);
}

void ZweiteKopfzeileZeigen(Form1& form1) {
    form1.Label_Mengex.Caption = form1.Label_Menge.Caption();
    form1.Label_Leistungx.Caption = form1.Label_Leistung.Caption();
    form1.Label_preisx.Caption = form1.Label_preis.Caption();
}

void DatumAutomatisch(Form1& form1, Rechnungszustand& zustand, int haekchen) {
    std::optional<Rechnungszustand::Sperre> still;
    if (zustand.IstDateiDesPfads()) {
        still.emplace(zustand);
    }
    form1.Check_datum.Value = haekchen;
}

void LieferdatumFreigeben(Form1& form1) {
    const bool frei = form1.Check_LIEFERDATUM.ticked();
    form1.Text_LIEFERDATUM.Enabled = frei;
    // Shut, it takes the colour of the frame, or looks as the desktop's own where the frame does.
    const Frame& rahmen = form1.Frame_rechnung;
    const bool gefaerbt = rahmen.BackColor() >= 0;
    form1.Text_LIEFERDATUM.OwnLook = !frei && (rahmen.OwnLook() || !gefaerbt);
    form1.Text_LIEFERDATUM.BackColor = frei ? color::kWhite : gefaerbt ? rahmen.BackColor() : color::kGrey;
}

Rechnung::Rechnung(Form1& form1, Rechnungszustand& zustand, Eingabezeile& eingabezeile, const Clock& uhr)
    : form1_(form1), zustand_(zustand), eingabezeile_(eingabezeile), uhr_(uhr) {}

void Rechnung::RechnungLeeren() {
    zustand_.NeuerBeleg();
    const Rechnungszustand::Sperre still(zustand_);
    KopfLeeren();
    for (TextBox* betrag : {&form1_.Text_summe, &form1_.Text_summemwst, &form1_.Text_gesamtbetrag,
                            &form1_.Text_summeRabatt, &form1_.Text_summeNACHRABATT}) {
        betrag->Text = vorgabe::kBetrag;
    }
    StatusLeeren();
    eingabezeile_.leeren();
    for (ListBox* liste : form1_.Positionslisten()) {
        liste->Clear();
    }
    form1_.List_DARSTELLUNG.Clear();
    RasterLeeren();
    NotizSetzen(vorgabe::kNotiz);
    LieferdatumFreigeben(form1_);
    DarstellungAufbauen();
}

void Rechnung::KopfLeeren() {
    form1_.Option_RECHNUNG.Value = true;
    form1_.Text_rechnung.Text = vorgabe::kTitel;
    form1_.Check_LIEFERDATUM.Value = 0;
    form1_.Text_LIEFERDATUM.Text = " ";
    form1_.Text_Datum.Text = datum_text(uhr_.now());
    form1_.Text_Kunde_1.Text = vorgabe::kKunde1;
    form1_.Text_Kunde_2.Text = vorgabe::kKunde2;
    form1_.Text_Kunde_3.Text = vorgabe::kKunde3;
    form1_.Text_Kunde_4.Text = vorgabe::kKunde4;
    form1_.Text_KundennrK.Text = vorgabe::kKundennr;
}

void Rechnung::StatusLeeren() {
    form1_.Check_versendet.Value = 0;
    form1_.Check_bezahlt.Value = 0;
    form1_.Check_abgemahnt.Value = 0;
    form1_.Combo1_mahnung.Enabled = form1_.Check_abgemahnt.ticked();
}

/// The file takes these fields along but gives none of them back: they would end up in the next customer's.
void Rechnung::RasterLeeren() {
    for (Form1::Rasterzeile& zeile : form1_.Raster) {
        for (int seite = 0; seite < Form1::kSeiten; ++seite) {
            zeile.Check_K[seite].Value = 0;
            zeile.Text_menge[seite].Text = vorgabe::kMenge;
            zeile.Text_leistung[seite].Text = "";
            zeile.Text_preis[seite].Text = vorgabe::kBetrag;
            zeile.Text_gesamtp[seite].Text = vorgabe::kBetrag;
        }
    }
}

void Rechnung::NotizSetzen(const std::string& notiz) {
    zustand_.Notiztext = notiz;
    form1_.Text_Notiz.Text = NOTIZ_LESBAR(notiz);
}

void Rechnung::DarstellungAufbauen(int ab) {
    const Rechnungszustand::Sperre still(zustand_);
    const int zeilen = form1_.List_Gesamtp.ListCount();
    std::vector<std::string> darstellung;
    darstellung.reserve(static_cast<std::size_t>(zeilen - ab));
    for (int zeile = ab; zeile < zeilen; ++zeile) {
        darstellung.push_back(Darstellungszeile(form1_, zeile));
    }
    for (ListBox* liste : form1_.Positionslisten()) {
        liste->ListIndex = zeilen - 1;
    }
    form1_.List_DARSTELLUNG.ListIndex.adopt(-1);
    form1_.List_DARSTELLUNG.assign(std::move(darstellung), ab);
}

} // namespace quittika
