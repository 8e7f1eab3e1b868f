#pragma once

#include "safety/rechnungsstand.hpp"
#include "safety/standfelder.hpp"

#include <vector>

namespace quittika {

/// What the user did, told from what is different now: `zurueck` leads from `jetzt` to where it was before.
const char* SCHRITTNAME(const Schritt& zurueck, const Rechnungsstand& jetzt,
                        const std::vector<Standfeld>& felder);

} // namespace quittika
