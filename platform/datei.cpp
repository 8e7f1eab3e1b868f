#include "platform/datei.hpp"

#include "platform/dateizugriff.hpp"
#include "platform/verzeichnis.hpp"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace quittika {

namespace {

bool endet_mit_der_zeile(const Datei& datei, off_t laenge, const std::string& ort) {
    char letztes = '\n';
    if (laenge > 0 && pread(datei.nummer(), &letztes, 1, laenge - 1) != 1) {
        scheitern(errno, ort);
    }
    return letztes == '\n';
}

/// Leaves a file as it was before. Nothing more can be done where that fails, too.
void zuruecknehmen(const std::string& ort, off_t laenge, bool neu) {
    [[maybe_unused]] const int ergebnis = neu ? unlink(ort.c_str()) : truncate(ort.c_str(), laenge);
}

} // namespace

void dateigroesse_als_fehler() {
    std::signal(SIGXFSZ, SIG_IGN);
}

std::string bytes_lesen(const std::string& pfad, std::size_t hoechstens) {
    const std::string ort = ort_von(pfad);
    const Datei datei(ort, O_RDONLY | O_NONBLOCK); // a pipe without a writer must not hold the program
    if (!S_ISREG(datei.auskunft().st_mode)) {
        scheitern(EISDIR, ort); // neither a folder nor a device nor a pipe is a text file
    }
    return datei.lesen(hoechstens);
}

void datei_anhaengen(const std::string& pfad, std::string_view bytes) {
    const std::string ort = ort_von(pfad);
    const bool neu = !datei_vorhanden(ort);
    Datei datei(ort, O_RDWR | O_CREAT | O_APPEND);
    const struct stat auskunft = datei.auskunft();
    if (!S_ISREG(auskunft.st_mode)) {
        datei.schreiben(bytes);
        datei.schliessen();
        return;
    }
    if (auskunft.st_nlink > 1) {
        abgang_melden(ort, Abgang::AmOrt); // what has a second name must not grow under it
    }
    try {
        datei.schreiben((endet_mit_der_zeile(datei, auskunft.st_size, ort) ? "" : "\r\n") +
                        std::string(bytes));
        datei.sichern();
        datei.schliessen();
        if (neu) {
            ordner_sichern(ordner_von(ort));
        }
    } catch (const Laufzeitfehler&) {
        zuruecknehmen(ort, auskunft.st_size, neu);
        throw;
    }
}

} // namespace quittika
