#pragma once

#include "analyzer/betragssumme.hpp"

#include <cstdint>
#include <optional>
#include <string_view>

namespace quittika {

/// A sum in cents; one beyond what can be counted is the bound.
std::int64_t CENT(const Betragssumme& summe);

/// An amount of an invoice in cents, rounded half away from zero. Nothing for a text that is none.
std::optional<std::int64_t> CENT(std::string_view betrag);

} // namespace quittika
