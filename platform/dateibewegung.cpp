#include "platform/datei.hpp"
#include "platform/dateizugriff.hpp"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace quittika {

bool IST_DIESELBE_DATEI(const std::string& a, const std::string& b) {
    std::error_code fehlt;
    return std::filesystem::equivalent(ort_von(a), ort_von(b), fehlt);
}

void DATEI_KOPIEREN(const std::string& von, const std::string& nach, Kopierziel ziel) {
    if (IST_DIESELBE_DATEI(von, nach)) {
        scheitern(EACCES, nach);
    }
    const std::string bytes = bytes_lesen(von);
    if (ziel == Kopierziel::Neu) {
        datei_anlegen(nach, bytes);
    } else {
        datei_ersetzen(nach, bytes);
    }
}

void DATEI_LOESCHEN(const std::string& pfad) {
    const std::string ort = ort_von(pfad);
    if (faccessat(AT_FDCWD, ort.c_str(), W_OK, AT_EACCESS) != 0 && errno == EACCES) {
        scheitern(EACCES, ort);
    }
    if (unlink(ort.c_str()) != 0) {
        const bool ordner_verbietet = errno == EACCES || errno == EPERM || errno == EROFS;
        scheitern(errno, ordner_verbietet ? ordner_von(ort) : ort);
    }
    ordner_sichern(ordner_von(ort));
}

} // namespace quittika
