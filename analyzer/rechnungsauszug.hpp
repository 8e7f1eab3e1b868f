#pragma once

#include "analyzer/spalten.hpp"

#include <string_view>

namespace quittika {

/// What the analyzer keeps of an invoice.
struct Rechnungsauszug {
    Rohdaten werte;
    bool alte_version = false; ///< the file holds no split of the shipping costs
};

/// Whether the bytes of a file reach behind the last line that the analyzer needs. It stands far in front of
/// line 32,000, where reading would end in any case.
bool REICHT_FUER_AUSZUG(std::string_view bytes);

/// Picks the fields out of the lines of an invoice file, `ZEILEN`. Position lines count as lines here,
/// wherever they stand. A file whose first line is not "qk8" has its fields one line further up.
/// Throws `Laufzeitfehler` 13 or 6 where a state, the dunning level or an amount is no number.
Rechnungsauszug AUSZUG_LESEN(std::string_view bytes);

} // namespace quittika
