#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quittika {

// Carriage return, line feed, and both together are each one line end: text from elsewhere has all three.

/// Takes the first text that a line end follows, and that line end, off a text; nothing where none does.
std::optional<std::string_view> ZEILE_ABTRENNEN(std::string_view& text);

/// Every line end replaced by `durch`.
std::string ZEILENENDEN_ERSETZEN(std::string_view text, std::string_view durch);

} // namespace quittika
