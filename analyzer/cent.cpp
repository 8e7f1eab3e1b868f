#include "analyzer/cent.hpp"

#include "platform/zahlen.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>
#include <system_error>

namespace quittika {

std::int64_t CENT(const Betragssumme& summe) {
    using Grenzen = std::numeric_limits<std::int64_t>;
    std::string ziffern = summe.text();
    ziffern.erase(std::remove(ziffern.begin(), ziffern.end(), deutsch().decimal_mark), ziffern.end());
    std::int64_t cent = 0;
    const auto gelesen = std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), cent);
    if (gelesen.ec == std::errc::result_out_of_range) {
        return ziffern.front() == '-' ? Grenzen::min() : Grenzen::max();
    }
    return cent;
}

std::optional<std::int64_t> CENT(std::string_view betrag) {
    if (!BETRAG_LESEN(betrag)) {
        return std::nullopt;
    }
    Betragssumme summe;
    summe.dazu(betrag);
    return CENT(summe);
}

} // namespace quittika
