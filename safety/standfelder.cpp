#include "safety/standfelder.hpp"

#include "invoice/file/dateifelder.hpp"
#include "invoice/zahleneingabe.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kNummernschritt = "Rechnungsnummer ändern";

struct Zeilenname {
    int von; ///< lines of the invoice file
    int bis;
    Feldart art;
    const char* schritt;
};

/// Lines of no name here are results and follow from the others.
constexpr Zeilenname kZeilennamen[] = {
    {1, 1, Feldart::Rechnung, "Titel ändern"},
    {2, 2, Feldart::Rechnung, "Datum ändern"},
    {3, 3, Feldart::Kunde, "Name ändern"},
    {4, 4, Feldart::Kunde, "Straße ändern"},
    {5, 5, Feldart::Kunde, "Ort ändern"},
    {6, 6, Feldart::Kunde, "Telefon ändern"},
    {7, 7, Feldart::Kunde, "Kundennummer ändern"},
    {8, 34, Feldart::Rechnung, "Positionsraster ändern"},
    {35, 38, Feldart::Rechnung, "Mehrwertsteuer ändern"},
    {39, 42, Feldart::Rechnung, "Anschreiben ändern"},
    {43, 51, Feldart::Rechnung, "Positionsraster ändern"},
    {55, 55, Feldart::Rechnung, "Mengenart ändern"},
    {56, 58, Feldart::Rechnung, "Status ändern"},
    {62, 62, Feldart::Rechnung, "Preisart ändern"},
    {63, 71, Feldart::Rechnung, "Positionsraster ändern"},
    {72, 73, Feldart::Rechnung, "Rabatt ändern"},
    {76, 79, Feldart::Rechnung, "Versandkosten ändern"},
    {dateizeile::kNummer, dateizeile::kNummer, Feldart::Rechnung, kNummernschritt},
    {81, 215, Feldart::Rechnung, "Positionsraster ändern"},
    {216, 216, Feldart::Rechnung, "Mehrwertsteuer ändern"},
    {217, 217, Feldart::Rechnung, "Versandkosten ändern"},
    {221, 224, Feldart::Rechnung, "Bemerkungen ändern"},
    {225, 229, Feldart::Rechnung, "Spaltennamen ändern"},
    {230, 231, Feldart::Rechnung, "Lieferdatum ändern"},
};

Standfeld standfeld(const Dateifeld& feld, Feldart art, const char* schritt) {
    return {[feld] { return FELDTEXT(feld); }, [feld](const std::string& text) { FELD_SETZEN(feld, text); },
            art, schritt};
}

template <class C> Standfeld standfeld(C& steuerelement, Feldart art, const char* schritt) {
    return standfeld(Dateifeld{-1, &steuerelement, Lesart::Immer}, art, schritt);
}

void felder_der_datei(Form1& form1, std::vector<Standfeld>& felder) {
    for (const Dateifeld& feld : DATEIFELDER(form1)) {
        const auto* const name =
            std::find_if(std::begin(kZeilennamen), std::end(kZeilennamen), [&](const Zeilenname& zeilen) {
                return zeilen.von <= feld.zeile && feld.zeile <= zeilen.bis;
            });
        if (name != std::end(kZeilennamen)) {
            felder.push_back(standfeld(feld, name->art, name->schritt));
        }
    }
}

void weitere_felder(Form1& f, Rechnungszustand& zustand, Rechnung& rechnung, std::vector<Standfeld>& felder) {
    ComboBox& mahnung = f.Combo1_mahnung;
    felder.push_back({[&mahnung] { return std::to_string(mahnung.ListIndex()); },
                      [&mahnung](const std::string& text) { mahnung.ListIndex = nach_int32(text); },
                      Feldart::Rechnung, "Status ändern"});
    felder.push_back({[&zustand] { return zustand.Notiztext; },
                      [&rechnung](const std::string& text) { rechnung.NotizSetzen(text); }, Feldart::Rechnung,
                      "Notiz ändern"});
    for (OptionButton* art : {&f.Option_RECHNUNG, &f.Option_RECHNUNG_KOPIE, &f.Option_LIEFERSCHEIN,
                              &f.Option_LIEFERSCHEIN_KOPIE}) {
        felder.push_back(standfeld(*art, Feldart::Druck, "Dokumentart ändern"));
    }
    felder.push_back(standfeld(f.Check_datum, Feldart::Druck, "Datum ändern"));
    felder.push_back(standfeld(f.Check_tele_nichtdrucken, Feldart::Druck, "Telefon ändern"));
}

bool gleich(const std::string& a, const std::string& b) {
    if (a == b) {
        return true;
    }
    const auto links = ZAHL_LESEN(a);
    const auto rechts = ZAHL_LESEN(b);
    return links && rechts && links->wert == rechts->wert;
}

/// A field of the input line, and what it shows of a row that was fetched and of none.
struct Eingabefeld {
    Dateifeld feld;
    const ListBox& liste;
    std::string leer;
    const char* schritt;
};

std::string unberuehrt(const Eingabefeld& eingabe, int zeile) {
    if (zeile < 0) {
        return eingabe.leer;
    }
    const std::string& text = eingabe.liste.List(zeile);
    const bool haekchen = std::holds_alternative<CheckBox*>(eingabe.feld.steuerelement);
    return haekchen ? (text == "K" ? "1" : "0") : text;
}

/// Only what the user has entered there is told, behind a mark: it may be empty.
Standfeld standfeld(const Eingabefeld& eingabe, const Eingabezeile& eingabezeile) {
    return {[eingabe, &eingabezeile] {
                const std::string text = FELDTEXT(eingabe.feld);
                return gleich(text, unberuehrt(eingabe, eingabezeile.zeile())) ? std::string() : "=" + text;
            },
            [feld = eingabe.feld](const std::string& text) {
                if (!text.empty()) {
                    FELD_SETZEN(feld, text.substr(1));
                }
            },
            Feldart::Eingabe, eingabe.schritt};
}

void eingabefelder(Form1& f, const Eingabezeile& eingabezeile, std::vector<Standfeld>& felder) {
    const Eingabefeld eingaben[] = {
        {{-1, &f.Check_K, Lesart::Immer}, f.List_K, "0", "Kommentarhäkchen ändern"},
        {{-1, &f.Text_Menge, Lesart::Immer}, f.List_Menge, vorgabe::kMenge, "Menge eingeben"},
        {{-1, &f.Text_leistung, Lesart::Immer}, f.List_Leistung, vorgabe::kLeistung, "Leistung eingeben"},
        {{-1, &f.Text_preis, Lesart::Immer}, f.List_Preis, vorgabe::kBetrag, "Preis eingeben"},
    };
    for (const Eingabefeld& eingabe : eingaben) {
        felder.push_back(standfeld(eingabe, eingabezeile));
    }
}

} // namespace

std::vector<Standfeld> STANDFELDER(Form1& form1, Rechnungszustand& zustand, Rechnung& rechnung,
                                   Eingabezeile& eingabezeile) {
    std::vector<Standfeld> felder;
    felder_der_datei(form1, felder);
    weitere_felder(form1, zustand, rechnung, felder);
    eingabefelder(form1, eingabezeile, felder);
    return felder;
}

std::size_t NUMMERNFELD(const std::vector<Standfeld>& felder) {
    const auto nummer = std::find_if(felder.begin(), felder.end(),
                                     [](const Standfeld& feld) { return feld.schritt == kNummernschritt; });
    return static_cast<std::size_t>(nummer - felder.begin());
}

} // namespace quittika
