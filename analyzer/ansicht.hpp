#pragma once

#include "analyzer/rechnungstabelle.hpp"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// How the texts of a column are compared.
enum class Wertart { Text, Datum, Betrag };

/// A column of the table.
struct Tabellenspalte {
    std::string_view name;
    std::size_t rohspalte;
    Wertart art;
};

/// From left to right.
inline constexpr std::array<Tabellenspalte, 11> kTabellenspalten{{
    {"Datum", rohdatum::kDatum, Wertart::Datum},
    {"Rechnungsnummer", rohdatum::kNummer, Wertart::Text},
    {"Kundennummer", rohdatum::kKundennummer, Wertart::Text},
    {"Kundenname", rohdatum::kKundenname, Wertart::Text},
    {"versendet", rohdatum::kVersendet, Wertart::Text},
    {"abgemahnt", rohdatum::kAbgemahnt, Wertart::Text},
    {"Mahnstufe", rohdatum::kMahnstufe, Wertart::Betrag},
    {"bezahlt", rohdatum::kBezahlt, Wertart::Text},
    {"Netto", rohdatum::kNetto, Wertart::Betrag},
    {"MwSt", rohdatum::kMwSt, Wertart::Betrag},
    {"Brutto", rohdatum::kBrutto, Wertart::Betrag},
}};

/// What the user wants to see of the table.
struct Ansichtswunsch {
    int spalte = -1; ///< of the table, that sorts; -1 for the order of the files
    bool absteigend = false;
    std::string gesucht; ///< each word must stand in number, customer, date or note
    bool nur_unbezahlte = false;
    std::optional<std::vector<int>> auswahl; ///< these invoices alone, in rising order
};

/// The texts in which the search looks, one for each invoice, as `SUCHTEXT` makes them.
std::vector<std::string> SUCHTEXTE(const Rechnungstabelle& daten);

/// The invoices to show, from top to bottom. `suchtexte` may be empty where nothing is searched. Dates are
/// sorted as dates, amounts as numbers, texts with their numbers as numbers; what cannot be read stands last.
/// Equal ones keep the order of the files.
std::vector<int> ANSICHT(const Rechnungstabelle& daten, const std::vector<std::string>& suchtexte,
                         const Ansichtswunsch& wunsch);

} // namespace quittika
