#pragma once

#include "einvoice/angaben.hpp"
#include "einvoice/belegquelle.hpp"

#include <span>
#include <string>

namespace quittika {

// Proposals for the user to confirm, made of lines as people write them.

/// What lines of an address or of a letter head say: "12345 Ort", "D-12345 Ort", "Tel.: 0123", "Steuernr:
/// 1/2", "USt-IdNr.: DE...", "IBAN: DE...", "BIC: ...", an e-mail address. The first other line is the name,
/// the last one before the town the street.
struct Erkanntes {
    std::string Name;
    std::string Zusatz; ///< lines between name and street, parted by ", "
    std::string Strasse;
    std::string PLZ;
    std::string Ort;
    std::string Land; ///< "DE" where a town is known and no other country is named
    std::string Telefon;
    std::string E_Mail;
    std::string USt_IdNr;
    std::string Steuernummer;
    std::string IBAN;
    std::string BIC;
};
Erkanntes ANGABEN_ERKENNEN(std::span<const std::string> zeilen);

/// From company and bank lines. Sample values that nobody replaced are proposed for nothing.
Verkaeufer VERKAEUFER_VORSCHLAG(const Belegquelle& quelle);
/// From the customer's lines.
Kaeufer KAEUFER_VORSCHLAG(const Belegquelle& quelle);

} // namespace quittika
