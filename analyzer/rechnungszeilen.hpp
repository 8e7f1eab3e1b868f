#pragma once

#include "invoice/file/dateifelder.hpp"

#include <array>
#include <string>
#include <string_view>

namespace quittika {

/// Numbers of the lines that tell invoices apart; the others are in `dateizeile`.
namespace rechnungszeile {
constexpr int kTitel = 1; ///< of the document; what stands in it before the number belongs to the number
constexpr int kDatum = 2;
constexpr int kKundenname = 3;
} // namespace rechnungszeile

/// `ZEILEN`, the lines of an invoice file up to the last one that an evaluation needs, as views of its bytes.
/// A line that it does not have is empty. Position lines count as lines here, wherever they stand. A file
/// whose first line is not "qk8" has its fields one line further up.
class Rechnungszeilen {
public:
    explicit Rechnungszeilen(std::string_view bytes);
    /// Whether the bytes of a file reach behind the last line. It stands far in front of line 32,000, where
    /// reading would end in any case.
    static bool REICHT(std::string_view bytes);

    std::string_view bytes(int nummer) const { return ZEILEN_.at(static_cast<std::size_t>(nummer)); }
    std::string text(int nummer) const;

private:
    static constexpr int kLetzte = dateizeile::kVersandNetto;
    std::array<std::string_view, kLetzte + 1> ZEILEN_{};
};

} // namespace quittika
