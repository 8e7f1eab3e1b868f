#include "platform/textdatei.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/verzeichnis.hpp"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quittika {

namespace {

int nummer_von(int system) {
    switch (system) {
    case ENOENT:
        return fehler::kDateiFehlt;
    case ENOTDIR:
        return fehler::kPfadFehlt;
    case EACCES:
    case EPERM:
    case EROFS:
        return fehler::kZugriffVerweigert;
    case EISDIR:
    case ENAMETOOLONG:
    case ELOOP:
        return fehler::kPfadZugriff;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return fehler::kDatentraegerVoll;
    default:
        return fehler::kGeraet;
    }
}

[[noreturn]] void scheitern(int system, const std::string& pfad) {
    int nummer = nummer_von(system);
    if (nummer == fehler::kDateiFehlt) {
        const std::size_t ordner = pfad.rfind('/');
        if (ordner != std::string::npos && ordner > 0 && !datei_vorhanden(pfad.substr(0, ordner))) {
            nummer = fehler::kPfadFehlt;
        }
    }
    throw Laufzeitfehler(nummer, pfad);
}

/// The system's form of a path; one with a NUL in it names no file.
std::string ort_von(const std::string& pfad) {
    if (pfad.find('\0') != std::string::npos) {
        throw Laufzeitfehler(fehler::kDateiname, pfad);
    }
    return systempfad(pfad);
}

/// An open file of the system, closed at the end of its life.
class Datei {
public:
    Datei(const std::string& pfad, int art, mode_t rechte = 0666)
        : nummer_(open(pfad.c_str(), art | O_CLOEXEC, rechte)) {
        if (nummer_ < 0) {
            scheitern(errno, pfad);
        }
    }
    /// Takes over a file that is open already.
    explicit Datei(int nummer) : nummer_(nummer) {}
    Datei(const Datei&) = delete;
    Datei& operator=(const Datei&) = delete;
    ~Datei() {
        if (nummer_ >= 0) {
            close(nummer_);
        }
    }

    int nummer() const { return nummer_; }

    void schreiben(std::string_view bytes, const std::string& pfad) const {
        while (!bytes.empty()) {
            const ssize_t geschrieben = write(nummer_, bytes.data(), bytes.size());
            if (geschrieben < 0 && errno == EINTR) {
                continue;
            }
            if (geschrieben <= 0) {
                scheitern(geschrieben == 0 ? ENOSPC : errno, pfad);
            }
            bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
        }
    }

    void schliessen(const std::string& pfad) {
        if (close(std::exchange(nummer_, -1)) != 0) {
            scheitern(errno, pfad);
        }
    }

private:
    int nummer_;
};

/// Calls `weiter` with the bytes of each line until it answers false.
template <class Weiter> void zeilen_teilen(std::string_view inhalt, Weiter weiter) {
    while (!inhalt.empty()) {
        const std::size_t ende = inhalt.find('\n');
        std::string_view zeile = inhalt.substr(0, ende);
        inhalt.remove_prefix(ende == std::string_view::npos ? inhalt.size() : ende + 1);
        if (ende != std::string_view::npos && !zeile.empty() && zeile.back() == '\r') {
            zeile.remove_suffix(1);
        }
        if (!weiter(zeile)) {
            return;
        }
    }
}

/// The file that symbolic links lead to, even if it does not exist yet; else the path itself.
std::string wirkliches_ziel(std::string pfad) {
    constexpr int kVerweise = 40; // as many as the system follows
    for (int i = 0; i < kVerweise; ++i) {
        std::error_code kein_verweis;
        const std::filesystem::path ziel = std::filesystem::read_symlink(pfad, kein_verweis);
        if (kein_verweis) {
            return pfad;
        }
        pfad = (std::filesystem::path(pfad).parent_path() / ziel).string();
    }
    scheitern(ELOOP, pfad);
}

/// Makes sure that a renamed file stays where it is even if the machine stops now.
void ordner_sichern(const std::string& pfad) {
    const std::size_t ende = pfad.rfind('/');
    const std::string ordner = ende == std::string::npos ? "." : ende == 0 ? "/" : pfad.substr(0, ende);
    const int nummer = open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (nummer >= 0) {
        fsync(nummer);
        close(nummer);
    }
}

/// A file that did not exist before, in the folder of `ziel`: it takes nobody's place and follows no link.
struct NeueDatei {
    std::string pfad;
    int nummer;
};

NeueDatei neue_datei_neben(const std::string& ziel, mode_t rechte) {
    const std::string ordner = ziel.substr(0, ziel.rfind('/') + 1);
    for (int versuch = 0;; ++versuch) {
        std::string pfad =
            ordner + ".quittika-" + std::to_string(getpid()) + "-" + std::to_string(versuch) + ".neu";
        const int nummer = open(pfad.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, rechte);
        if (nummer >= 0) {
            return {std::move(pfad), nummer};
        }
        if (errno != EEXIST) {
            scheitern(errno, ziel);
        }
    }
}

void neben_der_alten_schreiben(const std::string& ziel, std::string_view bytes, mode_t rechte,
                               bool vorhanden) {
    const NeueDatei neu = neue_datei_neben(ziel, rechte);
    try {
        Datei datei(neu.nummer);
        datei.schreiben(bytes, ziel);
        if (vorhanden) {
            fchmod(datei.nummer(), rechte);
        }
        if (fsync(datei.nummer()) != 0) {
            scheitern(errno, ziel);
        }
        datei.schliessen(ziel);
        if (rename(neu.pfad.c_str(), ziel.c_str()) != 0) {
            scheitern(errno, ziel);
        }
    } catch (const Laufzeitfehler&) {
        unlink(neu.pfad.c_str());
        throw;
    }
    ordner_sichern(ziel);
}

void bytes_schreiben(const std::string& pfad, std::string_view bytes) {
    const std::string ziel = wirkliches_ziel(ort_von(pfad));
    struct stat auskunft {};
    const bool vorhanden = stat(ziel.c_str(), &auskunft) == 0;
    if (vorhanden && S_ISDIR(auskunft.st_mode)) {
        scheitern(EISDIR, ziel);
    }
    if (vorhanden && !S_ISREG(auskunft.st_mode)) {
        Datei geraet(ziel, O_WRONLY);
        geraet.schreiben(bytes, ziel);
        geraet.schliessen(ziel);
        return;
    }
    if (vorhanden && faccessat(AT_FDCWD, ziel.c_str(), W_OK, AT_EACCESS) != 0) {
        scheitern(errno, ziel);
    }
    neben_der_alten_schreiben(ziel, bytes, vorhanden ? auskunft.st_mode & 07777U : 0666, vorhanden);
}

void anhaengen(const std::string& ort, const std::string& bytes) {
    Datei datei(ort, O_RDWR | O_CREAT | O_APPEND);
    struct stat auskunft {};
    const off_t laenge =
        fstat(datei.nummer(), &auskunft) == 0 && S_ISREG(auskunft.st_mode) ? auskunft.st_size : 0;
    char letztes = '\n';
    if (laenge > 0 && pread(datei.nummer(), &letztes, 1, laenge - 1) != 1) {
        letztes = '\n';
    }
    try {
        datei.schreiben(letztes == '\n' ? bytes : "\r\n" + bytes, ort);
        datei.schliessen(ort);
    } catch (const Laufzeitfehler&) {
        if (S_ISREG(auskunft.st_mode) && truncate(ort.c_str(), laenge) != 0) {
            std::perror(ort.c_str());
        }
        throw;
    }
}

} // namespace

std::string bytes_lesen(const std::string& pfad) {
    const std::string ort = ort_von(pfad);
    const Datei datei(ort, O_RDONLY | O_NONBLOCK); // a pipe without a writer must not hold the program
    struct stat auskunft {};
    if (fstat(datei.nummer(), &auskunft) != 0 || !S_ISREG(auskunft.st_mode)) {
        scheitern(EISDIR, ort); // neither a folder nor a device nor a pipe is a text file
    }
    std::string inhalt;
    constexpr std::size_t kStueck = 65536;
    inhalt.resize(S_ISREG(auskunft.st_mode) ? static_cast<std::size_t>(auskunft.st_size) + 1 : kStueck);
    std::size_t laenge = 0;
    while (true) {
        if (laenge == inhalt.size()) {
            inhalt.resize(inhalt.size() * 2);
        }
        const ssize_t gelesen = read(datei.nummer(), inhalt.data() + laenge, inhalt.size() - laenge);
        if (gelesen < 0 && errno == EINTR) {
            continue;
        }
        if (gelesen < 0) {
            scheitern(errno, ort);
        }
        if (gelesen == 0) {
            break;
        }
        laenge += static_cast<std::size_t>(gelesen);
    }
    inhalt.resize(laenge);
    return inhalt;
}

void zeilen_durchgehen(std::string_view bytes, const std::function<bool(std::string_view zeile)>& weiter) {
    std::string puffer;
    zeilen_teilen(bytes, [&](std::string_view zeile) { return weiter(aus_ansi(zeile, puffer)); });
}

std::vector<std::string> lesen(const std::string& pfad, std::size_t hoechstens) {
    std::vector<std::string> zeilen;
    zeilen_durchgehen(bytes_lesen(pfad), [&](std::string_view zeile) {
        if (zeilen.size() == hoechstens) {
            return false;
        }
        zeilen.emplace_back(zeile);
        return true;
    });
    return zeilen;
}

void Textpuffer::zeile(std::string_view text) {
    ersetzt_ += ansi_anhaengen(bytes_, text);
    bytes_ += "\r\n";
}

void schreiben(const std::string& pfad, const Textpuffer& zeilen) {
    bytes_schreiben(pfad, zeilen.bytes());
}

std::size_t schreiben(const std::string& pfad, const std::vector<std::string>& zeilen) {
    Textpuffer puffer;
    for (const std::string& zeile : zeilen) {
        puffer.zeile(zeile);
    }
    schreiben(pfad, puffer);
    return puffer.ersetzt();
}

std::string DATEI_ERSTE_ZEILE(const std::string& pfad) {
    constexpr const char* kFehlt = "FEHLER";
    try {
        const std::vector<std::string> zeilen = lesen(pfad, 1);
        return zeilen.empty() ? kFehlt : zeilen.front();
    } catch (const Laufzeitfehler&) {
        return kFehlt;
    }
}

void DATEI_SCHREIBEN(const std::string& pfad, const std::string& text) {
    schreiben(pfad, {text});
}

Dateiergebnis ZEILE_ANHAENGEN(const std::string& pfad, const std::string& zeile) {
    try {
        const Ansi ansi = nach_ansi(zeile);
        anhaengen(ort_von(pfad), ansi.bytes + "\r\n");
        return {true, 0, ansi.ersetzt};
    } catch (const Laufzeitfehler& f) {
        return {false, f.nummer(), 0};
    }
}

std::string FELD_AUS_ZEILE(std::string_view zeile, std::string_view trenner, int index) {
    constexpr const char* kFehlt = "ERROR";
    if (zeile.empty() || trenner.empty() || index < 0) {
        return kFehlt;
    }
    for (int i = 0; i < index; ++i) {
        const std::size_t ende = zeile.find(trenner);
        if (ende == std::string_view::npos) {
            return kFehlt;
        }
        zeile.remove_prefix(ende + trenner.size());
    }
    return std::string(zeile.substr(0, zeile.find(trenner)));
}

} // namespace quittika
