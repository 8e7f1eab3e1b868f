#pragma once

#include "einvoice/angaben.hpp"
#include "einvoice/belegquelle.hpp"
#include "einvoice/festkomma.hpp"

#include <cstddef>
#include <string>
#include <vector>

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

/// A square of dark and light modules, without the quiet zone of `kRuhezone` modules around it.
struct Codebild {
    static constexpr int kRuhezone = 4;
    int seite = 0; ///< modules
    std::vector<bool> dunkel;
    bool ist_dunkel(int x, int y) const {
        return dunkel.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(seite) +
                         static_cast<std::size_t>(x));
    }
};

/// QR code of a text, error correction M. Throws `Laufzeitfehler` 5 for one that no code holds.
Codebild QR_CODE(const std::string& text);

} // namespace quittika
