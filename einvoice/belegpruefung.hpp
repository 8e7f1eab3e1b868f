#pragma once

#include "einvoice/rechnungsbeleg.hpp"

#include <cstdint>

namespace quittika {

enum class E_Format : std::uint8_t {
    ZUGFeRD,   ///< Factur-X, profile EN 16931
    XRechnung, ///< XRechnung 3.0
};

/// Mandatory fields, check digits and form of everything that the format asks for, fatal findings first.
Maengel BELEG_PRUEFEN(const Rechnungsbeleg& beleg, E_Format format);

/// Everything that is to be said of an invoice: what making it a document found, then the above.
struct E_Rechnung {
    Rechnungsbeleg beleg;
    Maengel maengel;
    bool vollstaendig() const { return !IST_FATAL(maengel); }
};
E_Rechnung E_RECHNUNG(const Belegquelle& quelle, const Verkaeufer& verkaeufer, const Kaeufer& kaeufer,
                      const Bezug& bezug, E_Format format);

} // namespace quittika
