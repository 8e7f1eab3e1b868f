#include "einvoice/mangel.hpp"

#include <algorithm>

namespace quittika {

bool IST_FATAL(const Maengel& maengel) {
    return std::any_of(maengel.begin(), maengel.end(),
                       [](const Mangel& mangel) { return mangel.schwere == Schwere::Fatal; });
}

} // namespace quittika
