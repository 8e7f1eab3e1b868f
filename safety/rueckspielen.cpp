#include "safety/rueckspielen.hpp"

#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>

namespace quittika {

namespace {

namespace fs = std::filesystem;

std::string ort_von(const Rueckspielauftrag& auftrag, const Sicherungsdatei& datei) {
    return (fs::path(auftrag.ziel) / datei.pfad).string();
}

/// Time and size of a file; nothing where there is none.
std::optional<struct stat> stand_von(const std::string& ort) {
    struct stat stand {};
    return stat(ort.c_str(), &stand) == 0 ? std::optional(stand) : std::nullopt;
}

/// Whether a file on disk holds what the backup does. False for one that cannot be read.
bool gleicher_inhalt(const Sicherungsinhalt& inhalt, const Sicherungsdatei& datei, const std::string& ort,
                     const struct stat& stand) {
    if (!S_ISREG(stand.st_mode) || static_cast<std::uint64_t>(stand.st_size) != datei.groesse) {
        return false;
    }
    try {
        const Datei hier(ort, O_RDONLY | O_NONBLOCK);
        std::uint64_t stelle = 0;
        bool gleich = true;
        std::string puffer;
        inhalt.lesen(datei, [&](std::string_view bytes) {
            puffer.resize(bytes.size());
            gleich = gleich && hier.lesen_ab(stelle, puffer.data(), puffer.size()) == bytes.size() &&
                     puffer == bytes;
            stelle += bytes.size();
        });
        return gleich;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

void zeit_setzen(const std::string& ort, std::int64_t zeit) {
    const std::array<timespec, 2> zeiten{timespec{0, UTIME_NOW}, timespec{zeit, 0}};
    utimensat(AT_FDCWD, ort.c_str(), zeiten.data(), 0); // where it fails, the content still counts
}

void schreiben(const Sicherungsinhalt& inhalt, const Sicherungsdatei& datei, const std::string& ort) {
    std::error_code fehler;
    const fs::path ordner = fs::path(ort).parent_path();
    fs::create_directories(ordner, fehler);
    if (fehler) {
        scheitern(fehler.value(), ordner.string() + "/");
    }
    datei_ersetzen(ort, [&](const Bytesenke& senke) { inhalt.lesen(datei, senke); });
    zeit_setzen(ort, datei.zeit);
}

std::string fehlersatz(const std::string& ort, const std::string& grund) {
    return "Bei >>" + ort + "<< ging es nicht weiter: " + grund +
           ". Diese Datei und alle, die nach ihr kämen, sind unverändert.";
}

/// Restores one file after the other.
class Rueckspieler {
public:
    Rueckspieler(const Sicherungsinhalt& inhalt, bool neuere_ersetzen)
        : inhalt_(inhalt), neuere_ersetzen_(neuere_ersetzen) {}

    void datei(const Sicherungsdatei& datei, const std::string& ort) {
        const std::optional<struct stat> stand = stand_von(ort);
        if (stand && gleicher_inhalt(inhalt_, datei, ort, *stand)) {
            ++ergebnis.gleich;
        } else if (stand && stand->st_mtime > datei.zeit && !neuere_ersetzen_) {
            ++ergebnis.behalten;
        } else {
            schreiben(inhalt_, datei, ort);
            ++ergebnis.zurueck;
        }
    }

    Rueckspielstand ergebnis;

private:
    const Sicherungsinhalt& inhalt_;
    bool neuere_ersetzen_;
};

std::size_t anzahl(const std::vector<Rueckspielauftrag>& auftraege) {
    std::size_t summe = 0;
    for (const Rueckspielauftrag& auftrag : auftraege) {
        summe += auftrag.teil->dateien.size();
    }
    return summe;
}

} // namespace

std::vector<Neuere> NEUERE_DATEIEN(const Sicherungsinhalt& inhalt,
                                   const std::vector<Rueckspielauftrag>& auftraege) {
    std::vector<Neuere> neuere;
    for (const Rueckspielauftrag& auftrag : auftraege) {
        for (const Sicherungsdatei& datei : auftrag.teil->dateien) {
            const std::string ort = ort_von(auftrag, datei);
            const auto stand = stand_von(ort);
            if (stand && stand->st_mtime > datei.zeit && !gleicher_inhalt(inhalt, datei, ort, *stand)) {
                neuere.push_back({ort, stand->st_mtime, datei.zeit});
            }
        }
    }
    return neuere;
}

Rueckspielstand ZURUECKSPIELEN(const Sicherungsinhalt& inhalt,
                               const std::vector<Rueckspielauftrag>& auftraege, bool neuere_ersetzen,
                               ProgressDisplay& fortschritt) {
    const std::size_t ganz = anzahl(auftraege);
    std::size_t getan = 0;
    Rueckspieler spieler(inhalt, neuere_ersetzen);
    for (const Rueckspielauftrag& auftrag : auftraege) {
        for (const Sicherungsdatei& datei : auftrag.teil->dateien) {
            const std::string ort = ort_von(auftrag, datei);
            try {
                spieler.datei(datei, ort);
            } catch (const Laufzeitfehler& fehler) {
                spieler.ergebnis.fehler = fehlersatz(ort, fehlertext(fehler.nummer()));
                return spieler.ergebnis;
            } catch (const Sicherungsfehler& fehler) {
                spieler.ergebnis.fehler = fehlersatz(ort, "sie ist in der Datensicherung beschädigt");
                return spieler.ergebnis;
            }
            fortschritt.update(++getan, ganz, datei.pfad);
            if (getan < ganz && fortschritt.aborted()) {
                spieler.ergebnis.abgebrochen = true;
                return spieler.ergebnis;
            }
        }
    }
    return spieler.ergebnis;
}

} // namespace quittika
