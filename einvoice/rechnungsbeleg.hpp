#pragma once

#include "einvoice/angaben.hpp"
#include "einvoice/belegquelle.hpp"
#include "einvoice/festkomma.hpp"
#include "einvoice/mangel.hpp"
#include "platform/datum.hpp"

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quittika {

/// Codes of the document kinds.
enum class Belegart : std::uint16_t { Rechnung = 380, Gutschrift = 381, Korrektur = 384 };

/// What the user says of a document that takes another one back.
struct Bezug {
    std::optional<Belegart> art; ///< control `Combo_Belegart`; nothing while the user was not asked
    std::string Nummer;          ///< of the original; control `Text_Bezug_Nummer`
    std::string Datum;           ///< as typed; control `Text_Bezug_Datum`
};

/// The kind to propose for a title that asks for a decision; nothing for titles of plain invoices.
std::optional<Belegart> BELEGARTFRAGE(const std::string& titel);

/// VAT category and rate of an amount.
struct Steuerart {
    std::string kategorie; ///< "S", "E", "AE", "K", "G"
    Prozent satz;
    auto operator<=>(const Steuerart&) const = default;
};

struct Belegzeile {
    std::string bezeichnung;
    std::vector<std::string> hinweise;
    Menge menge;
    Preis einzelpreis; ///< net, never negative
    Cent betrag;       ///< net
    Steuerart steuer;
    int zeile = 0; ///< row of the position lists from 0
};

/// An allowance or a charge on the whole document.
struct Nachlass {
    bool zuschlag = false;
    Cent betrag;                    ///< net, never negative
    std::optional<Cent> grundlage;  ///< what the rate was taken of
    std::optional<Prozent> prozent; ///< with a basis only
    std::string grund;
    std::string code; ///< empty for none
    Steuerart steuer;
};

struct Steuergruppe {
    Steuerart steuer;
    Cent grundlage;
    Cent betrag;
    std::string grund; ///< of the exemption
    std::string code;  ///< of the exemption, empty for none
};

/// zeilen - nachlaesse + zuschlaege = netto; netto + steuer = brutto; brutto + rundung = zahlbetrag.
struct Belegsummen {
    Cent zeilen;
    Cent nachlaesse;
    Cent zuschlaege;
    Cent netto;
    Cent steuer;
    Cent brutto;
    Cent rundung;
    Cent zahlbetrag; ///< as printed
};

struct Zahlung {
    std::optional<Zeitpunkt> faellig;
    std::optional<Cent> skonto; ///< per cent
    int skontotage = 0;
};

/// An invoice in the terms of EN 16931.
struct Rechnungsbeleg {
    Belegart art = Belegart::Rechnung;
    std::string nummer;
    std::optional<Zeitpunkt> datum;
    std::optional<Zeitpunkt> lieferdatum;
    std::string bezug_nummer;
    std::optional<Zeitpunkt> bezug_datum;
    std::string waehrung; ///< three letters
    std::vector<std::string> hinweise;
    Verkaeufer verkaeufer; ///< trimmed, numbers without blanks
    Kaeufer kaeufer;
    std::vector<Belegzeile> zeilen;
    std::vector<Nachlass> nachlaesse;
    std::vector<Steuergruppe> steuern;
    Belegsummen summen;
    Zahlung zahlung;
};

/// An invoice, and what stands in the way of making it one.
struct Aufstellung {
    Rechnungsbeleg beleg;
    Maengel maengel;
};

/// Makes the invoice of what window and user say. What the format demands is looked at by
/// `BELEG_PRUEFEN`, once this found nothing fatal.
Aufstellung RECHNUNGSBELEG(const Belegquelle& quelle, const Verkaeufer& verkaeufer, const Kaeufer& kaeufer,
                           const Bezug& bezug = {});

} // namespace quittika
