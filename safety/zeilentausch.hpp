#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace quittika {

/// The rows of an invoice by columns: kind, quantity, text, price and total. The number of a row follows from
/// the kinds.
using Zeilenspalten = std::array<std::vector<std::string>, 5>;

/// Rows that stood where others stand now.
struct Zeilentausch {
    std::size_t ab = 0;
    std::size_t jetzt = 0;   ///< count of the rows that stand there now
    std::size_t frueher = 0; ///< count of those that stood there
    std::string texte;       ///< theirs, row by row

    bool leer() const { return jetzt == 0 && frueher == 0; }
};

/// Brings `alt` to what `neu` holds; answers what stood where they differ.
Zeilentausch ZEILEN_NACHFUEHREN(Zeilenspalten& alt,
                                const std::array<const std::vector<std::string>*, 5>& neu);

/// The earlier rows of a range.
Zeilenspalten FRUEHERE_ZEILEN(const Zeilentausch& tausch);

} // namespace quittika
