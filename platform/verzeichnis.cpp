#include "platform/verzeichnis.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quittika {

namespace {

bool vorhanden(const std::string& pfad) {
    struct stat auskunft {};
    return stat(pfad.c_str(), &auskunft) == 0;
}

bool ist_ordner(const std::string& pfad) {
    struct stat auskunft {};
    return stat(pfad.c_str(), &auskunft) == 0 && S_ISDIR(auskunft.st_mode);
}

} // namespace

std::string systempfad(std::string_view pfad) {
    std::string ergebnis(pfad);
    if (ergebnis.find('\\') == std::string::npos || vorhanden(ergebnis)) {
        return ergebnis;
    }
    for (std::size_t i = ergebnis.find('\\'); i != std::string::npos; i = ergebnis.find('\\', i + 1)) {
        const std::size_t ende = ergebnis.find_first_of("\\/", i + 1);
        if (ende == std::string::npos || !ist_ordner(ergebnis.substr(0, ende))) {
            ergebnis[i] = '/';
        }
    }
    return ergebnis;
}

bool datei_vorhanden(std::string_view pfad) {
    return vorhanden(systempfad(pfad));
}

bool ordner_vorhanden(std::string_view pfad) {
    return ist_ordner(systempfad(pfad));
}

bool ordner_beschreibbar(const std::string& ordner) {
    return faccessat(AT_FDCWD, ordner.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

} // namespace quittika
