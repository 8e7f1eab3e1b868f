#pragma once

#include "analyzer/spalten.hpp"

#include <array>
#include <string_view>

namespace quittika {

/// What the analyzer keeps of an invoice.
struct Rechnungsauszug {
    Rohdaten werte;
    bool alte_version = false; ///< the file holds no split of the shipping costs
};

/// The lines of an invoice file that the analyzer may need, as views of its bytes. Position lines count as
/// lines here, wherever they stand. A file whose first line is not "qk8" has its fields one line further up.
class Rechnungszeilen {
public:
    static constexpr std::size_t kAnzahl =
        221; ///< far in front of 32,000, where reading would end in any case

    /// Takes the lines out of the first bytes of a file; whether they reach behind the last line needed.
    bool lesen(std::string_view bytes);
    /// The bytes of a line; a line that the file does not have is empty.
    std::string_view operator[](int zeile) const { return ZEILEN_.at(static_cast<std::size_t>(zeile)); }

private:
    std::array<std::string_view, kAnzahl> ZEILEN_{};
};

/// Picks out the fields. Throws `Laufzeitfehler` 13 or 6 where a state, the dunning level or an amount is no
/// number.
Rechnungsauszug AUSZUG_LESEN(const Rechnungszeilen& ZEILEN);

} // namespace quittika
