#pragma once

#include "einvoice/belegquelle.hpp"
#include "einvoice/mangel.hpp"

#include <span>
#include <string>
#include <vector>

namespace quittika {

/// An invoice file and the number of the invoice in it.
struct Nummernfund {
    std::string pfad;
    std::string nummer;
};

/// The numbers of these invoice files; `eigener` and what cannot be read is left out.
std::vector<Nummernfund> NUMMERN_AUS_DATEIEN(std::span<const std::string> pfade, const std::string& eigener);

/// What the printed invoice lacks of what the law asks for (UStG 14, UStDV 33 up to 250 EUR, UStDV 34a for
/// small businesses), the most serious first. Nobody is stopped by it: all are hints. Empty for delivery
/// notes.
Maengel PFLICHTANGABEN(const Belegquelle& quelle, std::span<const Nummernfund> andere = {});

} // namespace quittika
