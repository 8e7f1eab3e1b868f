#include "platform/datei.hpp"
#include "platform/dateizugriff.hpp"
#include "platform/verzeichnis.hpp"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace quittika {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kAnfang = ".quittika-"; ///< of a name beside the target: process, "-", count
constexpr std::string_view kEnde = ".neu";

/// The process that a file beside its target belongs to; nothing for every other name.
std::optional<pid_t> schreiber_von(std::string_view name) {
    if (name.substr(0, kAnfang.size()) != kAnfang || name.size() < kAnfang.size() + kEnde.size() ||
        name.substr(name.size() - kEnde.size()) != kEnde) {
        return std::nullopt;
    }
    name.remove_prefix(kAnfang.size());
    pid_t prozess = 0;
    const auto [rest, fehler] = std::from_chars(name.data(), name.data() + name.size(), prozess);
    return fehler == std::errc() && prozess > 0 && *rest == '-' ? std::optional(prozess) : std::nullopt;
}

bool eigene_datei(const std::string& pfad) {
    struct stat auskunft {};
    return lstat(pfad.c_str(), &auskunft) == 0 && S_ISREG(auskunft.st_mode) && auskunft.st_uid == geteuid();
}

bool beendet(pid_t prozess) {
    return kill(prozess, 0) != 0 && errno == ESRCH;
}

void verwaiste_entfernen(const std::string& ordner) {
    std::error_code fehler;
    for (fs::directory_iterator i(ordner, fehler), ende; !fehler && i != ende; i.increment(fehler)) {
        const std::string pfad = i->path().string();
        const auto prozess = schreiber_von(i->path().filename().string());
        if (prozess && beendet(*prozess) && eigene_datei(pfad)) {
            unlink(pfad.c_str());
        }
    }
}

/// The file that symbolic links lead to, even if it does not exist yet; else the path itself.
std::string wirkliches_ziel(std::string pfad) {
    constexpr int kVerweise = 40; // as many as the system follows
    for (int i = 0; i < kVerweise; ++i) {
        std::error_code kein_verweis;
        const fs::path ziel = fs::read_symlink(pfad, kein_verweis);
        if (kein_verweis) {
            return pfad;
        }
        pfad = (fs::path(pfad).parent_path() / ziel).string();
    }
    scheitern(ELOOP, pfad);
}

/// A file that did not exist before: it takes nobody's place and follows no link.
struct NeueDatei {
    std::string pfad;
    int nummer;
};

/// The first file of `ordner` that can be created under `name`(1), `name`(2) and so on.
template <class Name> NeueDatei neue_datei(const std::string& ordner, mode_t rechte, Name name) {
    for (int versuch = 1;; ++versuch) {
        std::string pfad = ordner + name(std::to_string(versuch));
        const int nummer = open(pfad.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, rechte);
        if (nummer >= 0) {
            return {std::move(pfad), nummer};
        }
        if (errno != EEXIST) {
            scheitern(errno, ordner);
        }
    }
}

using Inhalt = std::function<void(const Datei&)>;

Inhalt inhalt_aus(std::string_view bytes) {
    return [bytes](const Datei& datei) { datei.schreiben(bytes); };
}

/// The file that a path leads to. Throws where it cannot be replaced.
struct Ersatzziel {
    explicit Ersatzziel(const std::string& wunsch) : pfad(wirkliches_ziel(ort_von(wunsch))) {
        struct stat auskunft {};
        vorhanden = stat(pfad.c_str(), &auskunft) == 0;
        art = auskunft.st_mode;
        if (vorhanden && S_ISDIR(art)) {
            scheitern(EISDIR, pfad);
        }
        if (vorhanden && S_ISREG(art) && faccessat(AT_FDCWD, pfad.c_str(), W_OK, AT_EACCESS) != 0) {
            scheitern(errno, errno == EROFS ? ordner_von(pfad) : pfad);
        }
    }
    bool geraet() const { return vorhanden && !S_ISREG(art); }
    std::optional<mode_t> rechte() const {
        return vorhanden ? std::optional<mode_t>(art & 07777U) : std::nullopt;
    }

    std::string pfad;
    bool vorhanden = false;
    mode_t art = 0;
};

void auf_geraet_schreiben(const std::string& pfad, const Inhalt& inhalt) {
    Datei geraet(pfad, O_WRONLY | O_NONBLOCK); // a pipe without a reader must not hold the program
    inhalt(geraet);
    geraet.schliessen();
}

/// `rechte`: those of the file that is replaced; none for a new file.
void daneben_schreiben(const std::string& ziel, const Inhalt& inhalt, std::optional<mode_t> rechte,
                       void (*an_den_platz)(const std::string& alt, const std::string& neu)) {
    const std::string ordner = ordner_von(ziel);
    verwaiste_entfernen(ordner);
    const NeueDatei neu = neue_datei(ordner, rechte.value_or(0666), [](const std::string& n) {
        return std::string(kAnfang) + std::to_string(getpid()) + "-" + n + std::string(kEnde);
    });
    try {
        Datei datei(neu.nummer, ziel);
        inhalt(datei);
        if (rechte) {
            fchmod(datei.nummer(), *rechte);
        }
        datei.sichern();
        datei.schliessen();
        if (rechte) {
            abgang_melden(ziel, Abgang::Ersetzt);
        }
        an_den_platz(neu.pfad, ziel);
    } catch (...) {
        unlink(neu.pfad.c_str());
        throw;
    }
    ordner_sichern(ordner);
}

void ersetzen(const Ersatzziel& ziel, const Inhalt& inhalt) {
    if (ziel.geraet()) {
        auf_geraet_schreiben(ziel.pfad, inhalt);
    } else {
        daneben_schreiben(ziel.pfad, inhalt, ziel.rechte(), umbenennen);
    }
}

/// Puts a content aside under a name that says what it is; returns its path.
std::string beiseite_legen(const std::string& ordner, const std::string& name, std::string_view inhalt) {
    const NeueDatei neu = neue_datei(ordner, S_IRUSR | S_IWUSR, [&name](const std::string& n) {
        return "Sicherung " + n + " von " + name;
    });
    try {
        Datei datei(neu.nummer, neu.pfad);
        datei.schreiben(inhalt);
        datei.sichern();
        datei.schliessen();
        ordner_sichern(ordner);
    } catch (const Laufzeitfehler&) {
        unlink(neu.pfad.c_str());
        throw;
    }
    return neu.pfad;
}

[[noreturn]] void wiederherstellen(const std::string& ziel, const std::string& alt,
                                   const std::string& beiseite, const Laufzeitfehler& ursache) {
    try {
        Datei datei(ziel, O_WRONLY);
        datei.ueberschreiben(alt);
        datei.schliessen();
    } catch (const Laufzeitfehler&) {
        throw Dateischaden(ursache, beiseite);
    }
    unlink(beiseite.c_str());
    throw ursache;
}

std::string am_ort_schreiben(const std::string& ziel, std::string_view bytes, const std::string& ordner) {
    Datei datei(ziel, O_RDWR);
    const std::string alt = datei.lesen(kUnbegrenzt);
    const std::string name = ziel.substr(ordner_von(ziel).size());
    const std::string beiseite = beiseite_legen(ordner + "/", name, alt);
    abgang_melden(ziel, Abgang::AmOrt);
    try {
        datei.ueberschreiben(bytes);
        datei.schliessen();
    } catch (const Laufzeitfehler& ursache) {
        wiederherstellen(ziel, alt, beiseite, ursache);
    }
    // Only the copy made by a save that succeeded gives way to the next one.
    const std::string bleibt = ordner + "/Sicherung von " + name;
    return rename(beiseite.c_str(), bleibt.c_str()) == 0 ? bleibt : beiseite;
}

} // namespace

void datei_ersetzen(const std::string& pfad, const std::function<void(const Bytesenke&)>& schreiben) {
    ersetzen(Ersatzziel(pfad), [&schreiben](const Datei& datei) {
        schreiben([&datei](std::string_view bytes) { datei.schreiben(bytes); });
    });
}

void datei_ersetzen_am_stueck(const std::string& pfad, const std::function<void(const Datei&)>& schreiben) {
    ersetzen(Ersatzziel(pfad), schreiben);
}

std::string datei_ersetzen(const std::string& pfad, std::string_view bytes,
                           const std::string& ausweichordner) {
    const Ersatzziel ziel(pfad);
    try {
        ersetzen(ziel, inhalt_aus(bytes));
        return {};
    } catch (const Laufzeitfehler& f) {
        if (f.nummer() != fehler::kZugriffVerweigert || !ziel.vorhanden || ziel.geraet() ||
            ausweichordner.empty()) {
            throw;
        }
    }
    return am_ort_schreiben(ziel.pfad, bytes, ausweichordner);
}

void datei_anlegen(const std::string& pfad, std::string_view bytes) {
    const std::string ziel = wirkliches_ziel(ort_von(pfad));
    struct stat auskunft {};
    if (stat(ziel.c_str(), &auskunft) == 0) {
        scheitern(S_ISDIR(auskunft.st_mode) ? EISDIR : EEXIST, ziel);
    }
    daneben_schreiben(ziel, inhalt_aus(bytes), std::nullopt, umbenennen_ohne_ersatz);
}

} // namespace quittika
