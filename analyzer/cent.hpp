#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quittika {

/// An amount as an invoice holds it, with comma or point, in cents, rounded half away from zero. Nothing for
/// a text that is no number or beyond what can be counted.
std::optional<std::int64_t> CENT(std::string_view betrag);

/// Sum of two amounts; one beyond the bounds stays at the bound.
std::int64_t CENTSUMME(std::int64_t a, std::int64_t b);

} // namespace quittika
