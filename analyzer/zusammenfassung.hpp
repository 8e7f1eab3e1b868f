#pragma once

#include "platform/datum.hpp"

#include <string>
#include <vector>

namespace quittika {

/// Sums over all invoices, those paid and those not paid, in the format "0.00".
struct Betragsgruppe {
    std::string erwartet;
    std::string bezahlt;
    std::string nicht_bezahlt;
};

struct Gesamtwerte {
    int rechnungen = 0;
    int nicht_bezahlt = 0;
    Betragsgruppe brutto;
    Betragsgruppe netto;
    Betragsgruppe mwst;
};

/// Adds up columns in step: whether an invoice is paid ("JA"), and its amounts. Throws `Laufzeitfehler` 13
/// for an amount that is none.
Gesamtwerte GESAMTWERTE(const std::vector<std::string>& bezahlt, const std::vector<std::string>& netto,
                        const std::vector<std::string>& mwst, const std::vector<std::string>& brutto);

/// The summary, line by line.
/// `alte_version`: whether there are invoices without a split of the shipping costs.
std::vector<std::string> ZUSAMMENFASSUNG(const std::string& verzeichnis, const Zeitpunkt& jetzt,
                                         bool alte_version, const Gesamtwerte& werte);

} // namespace quittika
