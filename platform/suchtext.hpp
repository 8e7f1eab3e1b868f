#pragma once

#include <string>
#include <string_view>

namespace quittika {

/// A text as searches compare it: capitals, "Ä" as "AE", "ß" as "SS".
std::string SUCHTEXT(std::string_view text);

/// The same behind what stands in `ziel`.
void suchtext_anfuegen(std::string& ziel, std::string_view text);

} // namespace quittika
