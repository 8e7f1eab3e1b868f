#pragma once

#include "analyzer/spalten.hpp"

#include <string_view>

namespace quittika {

/// What the analyzer keeps of an invoice.
struct Rechnungsauszug {
    Rohdaten werte;
    bool alte_version = false; ///< the file holds no split of the shipping costs
};

/// Picks the fields out of the lines of an invoice file, `ZEILEN`. Position lines count as lines here,
/// wherever they stand. A file whose first line is not "qk8" has its fields one line further up.
/// Throws `Laufzeitfehler` 13 or 6 where a state, the dunning level or an amount is no number.
Rechnungsauszug AUSZUG_LESEN(std::string_view bytes);

} // namespace quittika
