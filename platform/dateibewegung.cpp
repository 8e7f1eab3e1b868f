#include "platform/datei.hpp"
#include "platform/dateizugriff.hpp"
#include "platform/verzeichnis.hpp"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
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

void DATEI_VERKNUEPFEN(const std::string& pfad, const std::string& name) {
    const std::string neu = ort_von(name);
    if (link(ort_von(pfad).c_str(), neu.c_str()) != 0) {
        scheitern(errno, neu);
    }
}

void DATEI_UMBENENNEN(const std::string& alt, const std::string& neu) {
    umbenennen_ohne_ersatz(ort_von(alt), ort_von(neu));
}

void ORDNER_ANLEGEN(const std::string& ordner) {
    const std::string ort = ort_von(ordner);
    struct stat auskunft {};
    if (stat(ort.c_str(), &auskunft) == 0 && S_ISDIR(auskunft.st_mode)) {
        return;
    }
    const std::string eltern = ort.substr(0, ort.find_last_of('/'));
    if (!datei_vorhanden(eltern)) {
        ORDNER_ANLEGEN(eltern);
    }
    if (mkdir(ort.c_str(), 0777) != 0) {
        scheitern(errno, ort + "/");
    }
    ordner_sichern(ordner_von(ort));
}

void DATEI_LOESCHEN(const std::string& pfad) {
    const std::string ort = ort_von(pfad);
    if (faccessat(AT_FDCWD, ort.c_str(), W_OK, AT_EACCESS) != 0 && errno == EACCES) {
        scheitern(EACCES, ort);
    }
    abgang_melden(ort, Abgang::Ersetzt);
    if (unlink(ort.c_str()) != 0) {
        const bool ordner_verbietet = errno == EACCES || errno == EPERM || errno == EROFS;
        scheitern(errno, ordner_verbietet ? ordner_von(ort) : ort);
    }
    ordner_sichern(ordner_von(ort));
}

} // namespace quittika
