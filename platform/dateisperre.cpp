#include "platform/dateisperre.hpp"

#include "platform/dateizugriff.hpp"

#include <array>
#include <cerrno>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <unistd.h>

namespace quittika {

struct Dateisperre::Griff {
    explicit Griff(std::string ort)
        : datei(ort, O_RDWR | O_CREAT | O_NOFOLLOW, S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH), pfad(ort) {}
    Griff(const Griff&) = delete;
    Griff& operator=(const Griff&) = delete;
    ~Griff() {
        if (gehalten) {
            unlink(pfad.c_str());
        }
    }
    /// Whether the path still leads to this file: who held it before may have taken it away meanwhile.
    bool liegt_am_platz() const {
        struct stat am_platz {};
        const struct stat eigene = datei.auskunft();
        return stat(pfad.c_str(), &am_platz) == 0 && am_platz.st_ino == eigene.st_ino &&
               am_platz.st_dev == eigene.st_dev;
    }

    Datei datei;
    std::string pfad;
    bool gehalten = false;
};

std::optional<Dateisperre> Dateisperre::NEHMEN(const std::string& pfad, std::chrono::milliseconds geduld) {
    constexpr std::chrono::milliseconds kPause{10};
    const auto ende = std::chrono::steady_clock::now() + geduld;
    while (true) {
        auto griff = std::make_shared<Griff>(ort_von(pfad));
        if (flock(griff->datei.nummer(), LOCK_EX | LOCK_NB) == 0) {
            if (griff->liegt_am_platz()) {
                griff->gehalten = true;
                return Dateisperre(std::move(griff));
            }
            continue;
        }
        if (errno != EWOULDBLOCK && errno != EINTR) {
            scheitern(errno, pfad);
        }
        if (std::chrono::steady_clock::now() >= ende) {
            return std::nullopt;
        }
        std::this_thread::sleep_for(kPause);
    }
}

bool Dateisperre::GEHALTEN(const std::string& pfad) {
    const int nummer = open(ort_von(pfad).c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (nummer < 0) {
        return false;
    }
    const Datei datei(nummer, pfad);
    return flock(nummer, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

const std::string& Dateisperre::pfad() const {
    return griff_->pfad;
}

void Dateisperre::beschriften(std::string_view bytes) {
    griff_->datei.ueberschreiben(bytes);
}

std::string RECHNERNAME() {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : std::string();
}

std::string BENUTZERNAME() {
    const passwd* const eintrag = getpwuid(geteuid());
    return eintrag != nullptr ? eintrag->pw_name : std::to_string(geteuid());
}

std::string PROZESSNUMMER() {
    return std::to_string(getpid());
}

} // namespace quittika
