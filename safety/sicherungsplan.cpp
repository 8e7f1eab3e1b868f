#include "safety/sicherungsplan.hpp"

#include "platform/datei.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "platform/verzeichnis.hpp"
#include "safety/entwurf.hpp"
#include "safety/sicherungsnamen.hpp"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <set>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

namespace quittika {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kKennzeile = "Datensicherung von Quittika 2008";
constexpr std::string_view kZeitzeile = "Zeit: ";

/// Gathers the files of a plan.
class Sammler {
public:
    Sammler(Sicherungsplan& plan, std::string ziel) : plan_(plan), ziel_(std::move(ziel)) {}

    /// The files below a folder that `gewollt` accepts by their path in there, under `kennung` in the backup.
    void ordner(const std::string& kennung, const std::string& ort,
                const std::function<bool(const std::string& pfad)>& gewollt) {
        std::vector<std::string> funde;
        std::error_code fehler;
        fs::recursive_directory_iterator i(ort, fehler);
        if (fehler) {
            plan_.unlesbar.push_back(ort);
            return;
        }
        while (i != fs::recursive_directory_iterator()) {
            const std::string pfad = i->path().string().substr(ort.size() + (ort.back() == '/' ? 0 : 1));
            if (IST_AUSGENOMMEN(i->path().filename().string())) {
                i.disable_recursion_pending();
            } else if (unterordner(*i)) {
                if (access(i->path().c_str(), R_OK | X_OK) != 0) {
                    plan_.unlesbar.push_back(i->path().string());
                    i.disable_recursion_pending();
                }
            } else if (gewollt(pfad)) {
                funde.push_back(pfad);
            }
            i.increment(fehler);
            if (fehler) {
                plan_.unlesbar.push_back(ort);
                break;
            }
        }
        std::sort(funde.begin(), funde.end());
        for (const std::string& pfad : funde) {
            datei(kennung + "/" + pfad, (fs::path(ort) / pfad).string());
        }
    }

    void datei(const std::string& pfad, const std::string& ort) {
        struct stat auskunft {};
        if (stat(ort.c_str(), &auskunft) != 0 || !S_ISREG(auskunft.st_mode)) {
            if (!S_ISDIR(auskunft.st_mode)) {
                plan_.unlesbar.push_back(ort);
            }
            return;
        }
        if (!ziel_.empty() && IST_DIESELBE_DATEI(ort, ziel_)) {
            return;
        }
        if (access(ort.c_str(), R_OK) != 0) {
            plan_.unlesbar.push_back(ort);
            return;
        }
        if (plan_.dateien.size() + 1 >= kZipHoechstens) {
            throw Sicherungsfehler("In den gewählten Ordnern liegen zu viele Dateien: eine Datensicherung "
                                   "fasst höchstens 100.000.");
        }
        const auto groesse = static_cast<std::uint64_t>(auskunft.st_size);
        plan_.dateien.push_back({eindeutig(NAME_SCHREIBEN(pfad)), ort, {}, groesse, auskunft.st_mtime});
        plan_.bytes += groesse;
    }

private:
    static bool unterordner(const fs::directory_entry& eintrag) {
        std::error_code fehler;
        return eintrag.is_directory(fehler) && !eintrag.is_symlink(fehler);
    }

    /// Names that differ in case alone are one name elsewhere.
    std::string eindeutig(std::string name) {
        if (!namen_.insert(grossbuchstaben(name)).second) {
            name = NAME_AUSWEICHEN(name);
            namen_.insert(grossbuchstaben(name));
        }
        return name;
    }

    Sicherungsplan& plan_;
    std::string ziel_;
    std::set<std::string> namen_;
};

/// Without "..", links and "/" at the end; as it stands where it does not exist.
std::string wirklich(const std::string& pfad) {
    std::error_code fehler;
    const fs::path ergebnis = fs::canonical(systempfad(pfad), fehler);
    return fehler ? systempfad(pfad) : ergebnis.string();
}

bool liegt_in(const std::string& pfad, const std::string& ordner) {
    return pfad == ordner || beginnt_mit(pfad, ordner == "/" ? ordner : ordner + "/");
}

bool gleich(std::string_view text, std::string_view anfang, std::string_view& rest) {
    if (!beginnt_mit(text, anfang)) {
        return false;
    }
    rest = text.substr(anfang.size());
    return true;
}

} // namespace

Sicherungsplan SICHERUNG_PLANEN(const std::string& programmordner, const std::vector<std::string>& ordner,
                                const std::vector<std::string>& bilder, const std::string& ziel) {
    Sicherungsplan plan;
    Sammler sammler(plan, ziel);
    const std::string programm = wirklich(programmordner);
    const auto programmdatei = [](const std::string& pfad) { return PROGRAMMGRUPPE(pfad).has_value(); };
    for (fs::directory_iterator i(programm), ende; i != ende; ++i) {
        const std::string name = i->path().filename().string();
        if (i->is_directory() && PROGRAMMGRUPPE(name + "/x.png")) {
            sammler.ordner(kProgrammteil + ("/" + name), i->path().string(), [&](const std::string& pfad) {
                return programmdatei(name + "/" + pfad) &&
                       !IST_ENTWURF_IN_ARBEIT(i->path().string() + "/" + pfad);
            });
        } else if (!i->is_directory() && programmdatei(name) && !IST_AUSGENOMMEN(name)) {
            sammler.datei(kProgrammteil + ("/" + name), i->path().string());
        }
    }
    std::sort(plan.dateien.begin(), plan.dateien.end(),
              [](const Zipquelle& a, const Zipquelle& b) { return a.name < b.name; });

    const auto neuer_ordner = [&plan](const std::string& art, const std::string& pfad) {
        plan.ordner.push_back({art + " " + std::to_string(plan.ordner.size() + 1), pfad});
        return plan.ordner.back().kennung;
    };
    const auto schon_dabei = [&plan](const std::string& pfad) {
        return std::any_of(plan.ordner.begin(), plan.ordner.end(),
                           [&](const Sicherungsordner& o) { return liegt_in(pfad, o.pfad); });
    };
    std::vector<std::string> wirkliche;
    for (const std::string& pfad : ordner) {
        wirkliche.push_back(wirklich(pfad));
    }
    std::sort(wirkliche.begin(), wirkliche.end()); // an outer folder before those inside
    for (const std::string& pfad : wirkliche) {
        if (schon_dabei(pfad)) {
            continue;
        }
        sammler.ordner(neuer_ordner("Rechnungen", pfad), pfad, [&](const std::string& name) {
            const std::string ort = (fs::path(pfad) / name).string();
            if (!liegt_in(ort, programm)) {
                return true;
            }
            const std::string innen = ort.substr(programm.size() + 1);
            return innen.find('/') != std::string::npos && !programmdatei(innen);
        });
    }
    for (const std::string& bild : bilder) {
        const fs::path pfad = wirklich(bild);
        const std::string elternordner = pfad.parent_path().string();
        if (!IST_BILDNAME(bild) || !datei_vorhanden(bild) || elternordner == programm ||
            schon_dabei(pfad.string())) {
            continue;
        }
        sammler.datei(neuer_ordner("Bilder", elternordner) + "/" + pfad.filename().string(), pfad.string());
    }
    return plan;
}

std::string INHALT_SCHREIBEN(const std::string& zeit, const std::vector<Sicherungsordner>& ordner) {
    std::string text(kKennzeile);
    text += "\r\n" + std::string(kZeitzeile) + zeit + "\r\n";
    for (const Sicherungsordner& o : ordner) {
        text += o.kennung + ": " + NAME_SCHREIBEN(o.pfad) + "\r\n";
    }
    return text;
}

Sicherungskopf INHALT_LESEN(const std::string& text) {
    Sicherungskopf kopf;
    int nummer = 0;
    bool richtig = true;
    zeilen_teilen(text, [&](std::string_view zeile) {
        std::string_view rest;
        if (++nummer == 1) {
            richtig = zeile == kKennzeile;
        } else if (nummer == 2) {
            richtig = gleich(zeile, kZeitzeile, rest);
            kopf.zeit = rest;
        } else if (!zeile.empty()) {
            const std::size_t grenze = zeile.find(": ");
            const std::string kennung(zeile.substr(0, grenze));
            const std::string pfad =
                grenze == std::string_view::npos ? "" : NAME_LESEN(zeile.substr(grenze + 2));
            std::string_view art;
            richtig = (gleich(kennung, "Rechnungen ", art) || gleich(kennung, "Bilder ", art)) &&
                      FUEHRT_HINEIN(kennung) && beginnt_mit(pfad, "/") &&
                      fs::path(pfad).lexically_normal() == fs::path(pfad);
            kopf.ordner.push_back({kennung, pfad});
        }
        return richtig;
    });
    if (!richtig || nummer < 2) {
        throw Sicherungsfehler("Die Datei ist keine Datensicherung von Quittika oder beschädigt.");
    }
    return kopf;
}

} // namespace quittika
