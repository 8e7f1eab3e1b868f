#pragma once

#include "invoice/berechnung.hpp"
#include "invoice/form1.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <array>
#include <string>
#include <vector>

namespace quittika {

/// A row of the position lists.
struct Quellzeile {
    std::string K = "-"; ///< "-" position, "K" comment, "T" page break
    std::string Menge;
    std::string Leistung;
    std::string Preis;
    std::string Gesamtp;
    bool operator==(const Quellzeile&) const = default;
};

/// The invoice in hand as texts, without a window: what the main window shows and the settings hold.
/// Placeholders of empty fields and sample values of the settings are empty texts.
struct Belegquelle {
    bool lieferschein = false; ///< the document is a delivery note
    std::string Titel;
    std::string Nummer;
    std::string Datum;
    std::string Lieferdatum; ///< empty unless it is ticked
    std::array<std::string, 4> Kunde;
    std::string Kundennr; ///< without the word in front
    std::array<std::string, 8> Firma;
    std::string IBAN;
    std::string BIC;
    std::vector<std::string> Bankzeilen; ///< free lines, where they are printed
    std::string Waehrung;
    std::vector<Quellzeile> zeilen;
    Mwst_Modus mwst = Mwst_Modus::Ohne;
    std::string MwSt_Satz;
    bool rabatt = false;
    std::string Rabatt_Satz;
    bool versand = false;
    std::string Versand_Text;
    std::string Versand_Betrag; ///< gross
    std::string Versand_Satz;   ///< of the settings
    bool versand_getrennt = false;
    bool versand_enthalten = false;
    std::string Gesamtbetrag; ///< as printed
    std::vector<std::string> Anschreiben;
    std::vector<std::string> Bemerkungen;
    bool operator==(const Belegquelle&) const = default;
};

Belegquelle BELEGQUELLE(const Form1& form1, const frm_einstellungen& einstellungen,
                        const PROGRAMMEINSTELLUNG& werte);

} // namespace quittika
