#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// An amount as an invoice holds it, with comma or point: its sign, digits and at most one comma. Nothing for
/// a text that is none.
std::optional<std::string> BETRAG_LESEN(std::string_view text);

/// Sum of amounts, exact to the last digit, however many and however large they are.
class Betragssumme {
public:
    /// Throws `Laufzeitfehler` 13 for a text that is no amount.
    void dazu(std::string_view betrag);
    /// In the format "0.00", rounded half away from zero.
    std::string text() const;

private:
    std::vector<std::int64_t> ganz_;  ///< at index i how often 10^i; carried over by `text` alone
    std::vector<std::int64_t> bruch_; ///< at index i how often 10^-(i+1)
};

} // namespace quittika
