#pragma once

#include <cstddef>
#include <string>

namespace quittika {

/// What panel 3 of the status bar says after a file was written: empty, or that characters had to be
/// replaced.
inline std::string ZEICHENERSATZ_MELDUNG(std::size_t ersetzt) {
    return ersetzt == 0 ? std::string()
                        : "Achtung: " + std::to_string(ersetzt) +
                              " Zeichen kennt die Datei nicht, sie wurden ersetzt.";
}

} // namespace quittika
