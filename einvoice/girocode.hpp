#pragma once

#include "einvoice/angaben.hpp"
#include "einvoice/belegquelle.hpp"
#include "einvoice/festkomma.hpp"
#include "platform/printing.hpp"

#include <optional>
#include <string>

namespace quittika {

/// A transfer as a banking app reads it from paper.
struct Ueberweisung {
    std::string empfaenger; ///< cut to 70 characters
    std::string IBAN;
    std::string BIC;      ///< may be empty
    std::string waehrung; ///< must be "EUR"
    Cent betrag;
    std::string verwendung; ///< cut to 140 characters
};

/// The transfer that pays an invoice; of nothing for documents that nobody pays: credit notes, delivery
/// notes.
Ueberweisung UEBERWEISUNG(const Belegquelle& quelle, const Verkaeufer& verkaeufer);

/// Why there can be no code of it, in a sentence; empty where there can.
std::string GIROCODE_FEHLER(const Ueberweisung& ueberweisung);

/// The text in the code (EPC069-12, version 002, UTF-8). Only where `GIROCODE_FEHLER` is empty.
std::string GIROCODE_TEXT(const Ueberweisung& ueberweisung);

/// QR code of a text with the quiet zone that it needs, error correction M. Throws `Laufzeitfehler` 5 for one
/// that no code holds.
SquareGrid QR_CODE(const std::string& text);

/// The code to be printed on the invoice; nothing where it is not wanted or cannot be.
std::optional<SquareGrid> GIROCODE(const Belegquelle& quelle, const Verkaeufer& verkaeufer);

} // namespace quittika
