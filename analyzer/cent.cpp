#include "analyzer/cent.hpp"

#include "invoice/zahleneingabe.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>
#include <system_error>

namespace quittika {

std::optional<std::int64_t> CENT(std::string_view betrag) {
    const auto zahl = ZAHL_LESEN(betrag);
    if (!zahl) {
        return std::nullopt;
    }
    std::string ziffern = format_zahl(zahl->wert, "0.00");
    ziffern.erase(std::remove(ziffern.begin(), ziffern.end(), deutsch().decimal_mark), ziffern.end());
    std::int64_t cent = 0;
    const auto [ende, grund] = std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), cent);
    const bool ganz = grund == std::errc() && ende == ziffern.data() + ziffern.size();
    return ganz ? std::optional(cent) : std::nullopt;
}

std::int64_t CENTSUMME(std::int64_t a, std::int64_t b) {
    using Grenzen = std::numeric_limits<std::int64_t>;
    if (b > 0 && a > Grenzen::max() - b) {
        return Grenzen::max();
    }
    return b < 0 && a < Grenzen::min() - b ? Grenzen::min() : a + b;
}

} // namespace quittika
