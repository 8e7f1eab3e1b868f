#include "platform/dateizugriff.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/verzeichnis.hpp"

#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
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
    case EEXIST:
        return fehler::kDateiVorhanden;
    case EISDIR:
    case ENAMETOOLONG:
    case ELOOP:
        return fehler::kPfadZugriff;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return fehler::kDatentraegerVoll;
    case ENODEV:
    case ENXIO:
    case ESTALE:
    case ENOTCONN:
    case ETIMEDOUT:
        return fehler::kDatentraegerFehlt;
    default:
        return fehler::kGeraet;
    }
}

} // namespace

void scheitern(int system, const std::string& pfad) {
    int nummer = nummer_von(system);
    if (nummer == fehler::kDateiFehlt && !datei_vorhanden(ordner_von(pfad))) {
        nummer = fehler::kPfadFehlt;
    }
    throw Laufzeitfehler(nummer, pfad);
}

std::string ort_von(const std::string& pfad) {
    if (pfad.find('\0') != std::string::npos) {
        throw Laufzeitfehler(fehler::kDateiname, pfad);
    }
    return systempfad(pfad);
}

std::string ordner_von(const std::string& ort) {
    const std::size_t ende = ort.rfind('/');
    return ende == std::string::npos ? "./" : ort.substr(0, ende + 1);
}

void ordner_sichern(const std::string& ordner) {
    const int nummer = open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (nummer < 0) {
        return; // a folder that may be written but not read
    }
    const Datei offen(nummer, ordner);
    if (fsync(nummer) != 0 && errno != EINVAL) { // not every file system can
        scheitern(errno, ordner);
    }
}

namespace {

Abgangswache*& wache() {
    static Abgangswache* jetzige = nullptr;
    return jetzige;
}

} // namespace

Abgangswache::Abgangswache(Vorher vorher)
    : vorher_(std::move(vorher)), bisher_(std::exchange(wache(), this)) {}

Abgangswache::~Abgangswache() {
    wache() = bisher_;
}

void abgang_melden(const std::string& ort, Abgang abgang) {
    if (wache() != nullptr) {
        wache()->vorher_(ort, abgang);
    }
}

void umbenennen(const std::string& alt, const std::string& neu) {
    if (rename(alt.c_str(), neu.c_str()) != 0) {
        scheitern(errno, neu);
    }
}

void umbenennen_ohne_ersatz(const std::string& alt, const std::string& neu) {
    if (renameat2(AT_FDCWD, alt.c_str(), AT_FDCWD, neu.c_str(), RENAME_NOREPLACE) == 0) {
        return;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        scheitern(errno, neu);
    }
    if (datei_vorhanden(neu)) { // not every file system can tell by itself
        scheitern(EEXIST, neu);
    }
    umbenennen(alt, neu);
}

Datei::Datei(std::string pfad, int art, mode_t rechte)
    : pfad_(std::move(pfad)), nummer_(open(pfad_.c_str(), art | O_CLOEXEC, rechte)) {
    if (nummer_ < 0) {
        scheitern(errno, pfad_);
    }
}

Datei::~Datei() {
    if (nummer_ >= 0) {
        close(nummer_);
    }
}

struct stat Datei::auskunft() const {
    struct stat ergebnis {};
    if (fstat(nummer_, &ergebnis) != 0) {
        scheitern(errno, pfad_);
    }
    return ergebnis;
}

std::string Datei::lesen(std::size_t hoechstens) const {
    std::string inhalt;
    inhalt.resize(static_cast<std::size_t>(auskunft().st_size) + 1);
    std::size_t laenge = 0;
    while (true) {
        if (inhalt.size() - 1 > hoechstens) {
            throw Laufzeitfehler(fehler::kSpeicher, pfad_);
        }
        const ssize_t gelesen = read(nummer_, inhalt.data() + laenge, inhalt.size() - laenge);
        if (gelesen < 0 && errno == EINTR) {
            continue;
        }
        if (gelesen < 0) {
            scheitern(errno, pfad_);
        }
        if (gelesen == 0) {
            break;
        }
        laenge += static_cast<std::size_t>(gelesen);
        if (laenge == inhalt.size()) {
            inhalt.resize(inhalt.size() * 2);
        }
    }
    inhalt.resize(laenge);
    return inhalt;
}

void Datei::schreiben(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t geschrieben = write(nummer_, bytes.data(), bytes.size());
        if (geschrieben < 0 && errno == EINTR) {
            continue;
        }
        if (geschrieben <= 0) {
            scheitern(geschrieben == 0 ? ENOSPC : errno, pfad_);
        }
        bytes.remove_prefix(static_cast<std::size_t>(geschrieben));
    }
}

std::size_t Datei::lesen_ab(std::uint64_t stelle, char* ziel, std::size_t hoechstens) const {
    ssize_t gelesen = -1;
    do {
        gelesen = pread(nummer_, ziel, hoechstens, static_cast<off_t>(stelle));
    } while (gelesen < 0 && errno == EINTR);
    if (gelesen < 0) {
        scheitern(errno, pfad_);
    }
    return static_cast<std::size_t>(gelesen);
}

void Datei::schreiben_ab(std::uint64_t stelle, std::string_view bytes) const {
    if (lseek(nummer_, static_cast<off_t>(stelle), SEEK_SET) < 0) {
        scheitern(errno, pfad_);
    }
    schreiben(bytes);
}

void Datei::ueberschreiben(std::string_view bytes) const {
    if (lseek(nummer_, 0, SEEK_SET) != 0) {
        scheitern(errno, pfad_);
    }
    schreiben(bytes);
    if (ftruncate(nummer_, static_cast<off_t>(bytes.size())) != 0) {
        scheitern(errno, pfad_);
    }
    sichern();
}

void Datei::sichern() const {
    if (fsync(nummer_) != 0) {
        scheitern(errno, pfad_);
    }
}

void Datei::schliessen() {
    if (close(std::exchange(nummer_, -1)) != 0) {
        scheitern(errno, pfad_);
    }
}

} // namespace quittika
