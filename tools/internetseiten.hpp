#pragma once

namespace quittika {

// Pages of the program's own site.

inline constexpr const char* kHauptseite = "https://www.quittika.example/";
inline constexpr const char* kHilfeseite = "https://www.quittika.example/hilfe.htm";
inline constexpr const char* UPDATEINFO_URL = "https://www.quittika.example/updateinfo.htm";

} // namespace quittika
