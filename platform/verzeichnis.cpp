#include "platform/verzeichnis.hpp"

#include <sys/stat.h>

namespace quittika {

namespace {

bool vorhanden(const std::string& pfad) {
    struct stat auskunft {};
    return stat(pfad.c_str(), &auskunft) == 0;
}

} // namespace

std::string systempfad(std::string_view pfad) {
    std::string ergebnis(pfad);
    if (ergebnis.find('\\') == std::string::npos || vorhanden(ergebnis)) {
        return ergebnis;
    }
    for (std::size_t i = ergebnis.find('\\'); i != std::string::npos; i = ergebnis.find('\\', i + 1)) {
        const std::size_t ende = ergebnis.find('\\', i + 1);
        if (ende == std::string::npos || !vorhanden(ergebnis.substr(0, ende))) {
            ergebnis[i] = '/';
        }
    }
    return ergebnis;
}

bool datei_vorhanden(std::string_view pfad) {
    return vorhanden(systempfad(pfad));
}

} // namespace quittika
