#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// Names of the files of a folder that fit a pattern with "*" and "?", in the order of their names; neither
/// looks at the case, umlauts included. "*.*" fits every name. A name that is no UTF-8 is handed over byte
/// for byte: folder, "/" and name lead to the file.
/// Whatever is no folder counts as a file, links that lead nowhere, too: who reads it sees that it cannot be
/// read. Hidden names, which begin with ".", fit only a pattern that begins so.
/// Throws `Laufzeitfehler` 76 where there is no such folder, 70 where it may not be read.
std::vector<std::string> DATEIEN_SUCHEN(const std::string& ordner, std::string_view muster);

} // namespace quittika
