#include "platform/verzeichnis.hpp"

#include <algorithm>

#include <sys/stat.h>

namespace quittika {

std::string systempfad(std::string_view pfad) {
    std::string ergebnis(pfad);
    struct stat auskunft {};
    if (ergebnis.find('\\') == std::string::npos || stat(ergebnis.c_str(), &auskunft) == 0) {
        return ergebnis;
    }
    std::replace(ergebnis.begin(), ergebnis.end(), '\\', '/');
    return ergebnis;
}

bool datei_vorhanden(std::string_view pfad) {
    struct stat auskunft {};
    return stat(systempfad(pfad).c_str(), &auskunft) == 0;
}

} // namespace quittika
