#include "masterdata/artikeluebernahme.hpp"

#include "invoice/zahleneingabe.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <memory>

namespace quittika {

namespace {

constexpr const char* kEinStueck = "1";

/// A price of the list as a row of the invoice shows it.
std::string RECHNUNGSPREIS(std::string_view listenpreis) {
    const auto preis = ZAHL_LESEN(listenpreis);
    return preis ? preis->text : std::string(listenpreis);
}

bool ist_null(const TextBox& menge) {
    const auto zahl = ZAHL_LESEN(menge.Text());
    return !zahl || zahl->wert == 0;
}

} // namespace

Artikeluebernahme::Artikeluebernahme(Form1& form1, Artikelzustand& zustand, Artikeltabelle& ARTIKEL,
                                     Summen& summen, Kundenfenster& kundenfenster,
                                     const Programmverzeichnis& verzeichnis, Desktop& desktop,
                                     Dialogs& dialogs)
    : form1_(form1),
      zustand_(zustand),
      ARTIKEL_(ARTIKEL),
      summen_(summen),
      kundenfenster_(kundenfenster),
      verzeichnis_(verzeichnis),
      desktop_(desktop),
      dialogs_(dialogs),
      fenster_(desktop, [this](Form_Artikelverwaltung& form) {
          return std::make_unique<Artikelverwaltung>(form, Artikelverwaltung::Zweck::Beistellen, form1_,
                                                     zustand_, ARTIKEL_, verzeichnis_, dialogs_,
                                                     [this] { Uebernehmen(Eingabezeile()); });
      }) {}

Artikeluebernahme::Zeile Artikeluebernahme::Eingabezeile() const {
    return {form1_.Check_K, form1_.Text_Menge, form1_.Text_leistung, form1_.Text_preis};
}

Artikeluebernahme::Zeile Artikeluebernahme::Rasterzeile(Form1::Rasterzeile& zeile, int seite) {
    return {zeile.Check_K[seite], zeile.Text_menge[seite], zeile.Text_leistung[seite],
            zeile.Text_preis[seite]};
}

void Artikeluebernahme::Command_PLUS_Click(const Zeile& ziel) {
    if (Kundenverwaltung* kunden = kundenfenster_.module()) {
        kunden->Schliessen();
    }
    if (Artikelverwaltung* offen = fenster_.module()) {
        offen->Schliessen();
    }
    Form_Artikelverwaltung form;
    const Artikelverwaltung verwaltung(form, Artikelverwaltung::Zweck::Auswahl, form1_, zustand_, ARTIKEL_,
                                       verzeichnis_, dialogs_);
    desktop_.adopt(form);
    form.Show(Modality::Modal);
    Uebernehmen(ziel);
}

void Artikeluebernahme::Uebernehmen(const Zeile& ziel) {
    if (!zustand_.ArtikelAuswahlAbgebrochen) {
        zustand_.ArtikelTrenner = ARTIKEL_AUS_ZEILE(zustand_.ArtikelAuswahl).Trenner;
        ziel.Check_K.Value = 0;
        ziel.Text_Menge.Text = kEinStueck;
        if (zustand_.ArtikelAuswahl != zustand_.ArtikelTrenner) {
            Fuellen(ziel, zustand_.ArtikelAuswahl);
            ziel.Text_Menge.SetFocus();
        }
    }
    summen_.jetztberechnen_List();
}

void Artikeluebernahme::Fuellen(const Zeile& ziel, std::string_view artikelzeile) {
    const Artikel artikel = ARTIKEL_AUS_ZEILE(artikelzeile);
    ziel.Text_leistung.Text = std::string(artikel.Leistung);
    ziel.Text_preis.Text = RECHNUNGSPREIS(artikel.Preis);
}

void Artikeluebernahme::Ablegen(const Zeile& ziel, const std::string& text) {
    const std::string zeile = ArtikelzeileAus(text);
    if (zeile.empty()) {
        ziel.Text_leistung.Text = einzeilig(text);
        return;
    }
    ziel.Check_K.Value = 0;
    if (ist_null(ziel.Text_Menge)) {
        ziel.Text_Menge.Text = kEinStueck;
    }
    Fuellen(ziel, zeile);
    summen_.jetztberechnen_List();
}

void Artikeluebernahme::FarbenUebernehmen() const {
    if (Artikelverwaltung* offen = fenster_.module()) {
        offen->FarbenUebernehmen();
    }
}

std::string Artikeluebernahme::ArtikelzeileAus(std::string_view text) const {
    const Artikelverwaltung* offen = fenster_.module();
    if (const auto gezogen = offen == nullptr ? std::nullopt : offen->Gezogen(text)) {
        return *gezogen;
    }
    const bool zeile = FELD_AUS_ZEILE(text, artikelzeile::kTrenner, 2) != "ERROR" &&
                       rechts(text, zeichenzahl(artikelzeile::kTrenner)) == artikelzeile::kTrenner;
    return zeile ? std::string(text) : std::string();
}

} // namespace quittika
