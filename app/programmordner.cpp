#include "app/programmordner.hpp"

#include "platform/verzeichnis.hpp"

#include <system_error>

namespace quittika {

namespace fs = std::filesystem;

namespace {

constexpr const char* kHandbuecher[] = {"startbenutzerhandbuch.htm", "Benutzerhandbuch - Quittika 2008.pdf",
                                        "DIE_ERSTE_RECHNUNG.pdf"};

bool kopieren(const fs::path& von, const fs::path& nach) {
    std::error_code fehler;
    fs::create_directories(nach.parent_path(), fehler);
    if (!fs::copy_file(von, nach, fehler)) {
        return false;
    }
    fs::permissions(nach, fs::perms::owner_write, fs::perm_options::add,
                    fehler); // the user's own from here on
    return !fehler;
}

/// Copies the files that are not there yet; adds the names of those that cannot be to `fehlend`, each with
/// ", " before it.
void nachlegen(const std::vector<fs::path>& namen, const fs::path& von, const fs::path& nach,
               std::string& fehlend) {
    for (const fs::path& name : namen) {
        if (!datei_vorhanden((nach / name).string()) && !kopieren(von / name, nach / name)) {
            fehlend += ", " + name.string();
        }
    }
}

/// Nobody writes into a manual: the one of this version replaces that of another. A program without one is as
/// good; the command that opens it says so.
void handbuecher_mitnehmen(const fs::path& von, const fs::path& nach) {
    for (const char* name : kHandbuecher) {
        std::error_code fehler;
        const auto stand = fs::last_write_time(von / name, fehler);
        if (fehler || fs::last_write_time(nach / name, fehler) == stand) {
            continue;
        }
        if (fs::copy_file(von / name, nach / name, fs::copy_options::overwrite_existing, fehler)) {
            fs::permissions(nach / name, fs::perms::owner_write, fs::perm_options::add, fehler);
            fs::last_write_time(nach / name, stand, fehler);
        }
    }
}

} // namespace

Programmordner PROGRAMMORDNER(const fs::path& programmdatei, const fs::path& datenordner) {
    const fs::path ordner = programmdatei.parent_path();
    const fs::path installiert = INSTALLIERTE_DATEIEN(ordner);
    if (installiert.empty() && ordner_beschreibbar(ordner.string())) {
        return {ordner, {}};
    }
    const fs::path quelle = installiert.empty() ? ordner : installiert;
    std::error_code fehler;
    const bool neu = fs::create_directories(datenordner, fehler);
    if (fehler) {
        return {datenordner, "Der Ordner >>" + datenordner.string() +
                                 "<< lässt sich nicht anlegen. Nummern, Kunden und Einstellungen können "
                                 "nicht gespeichert werden, bis er da ist."};
    }
    std::string fehlend;
    nachlegen(MITGELIEFERTE_BILDER(), quelle, datenordner, fehlend);
    handbuecher_mitnehmen(quelle, datenordner);
    if (!neu) {
        return {datenordner, {}}; // without a picture the program still runs
    }
    nachlegen(MITGELIEFERTE_BEISPIELE(), quelle, datenordner, fehlend);
    return {datenordner, fehlend.empty() ? std::string()
                                         : "Diese mitgelieferten Dateien ließen sich nicht nach >>" +
                                               datenordner.string() + "<< kopieren: " + fehlend.substr(2) +
                                               ". Bitte von Hand nachholen."};
}

} // namespace quittika
