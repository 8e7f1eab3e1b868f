#pragma once

#include <string>
#include <string_view>

namespace quittika {

/// A name proposed in a file dialog as one that every medium takes: "/", "\" and "|" become "-", other marks
/// that some media refuse and control characters a gap between words, dots in front go, and a name of more
/// than 255 bytes loses the end of what stands before its extension. A name of which nothing is left is
/// "Unbenannt"; no proposal stays none.
std::string DATEINAME_BEREINIGEN(std::string_view vorschlag);

} // namespace quittika
