#include "app/programmordner.hpp"

#include "platform/verzeichnis.hpp"

#include <system_error>

namespace quittika {

namespace fs = std::filesystem;

namespace {

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

/// Names of the shipped files that could not be copied, parted by ", ".
std::string mitgeliefertes_kopieren(const fs::path& von, const fs::path& nach) {
    std::string fehlend;
    for (const fs::path& name : MITGELIEFERTE_DATEIEN()) {
        if (!kopieren(von / name, nach / name)) {
            fehlend += (fehlend.empty() ? "" : ", ") + name.string();
        }
    }
    return fehlend;
}

} // namespace

Programmordner PROGRAMMORDNER(const fs::path& programmdatei, const fs::path& datenordner) {
    const fs::path ordner = programmdatei.parent_path();
    if (ordner_beschreibbar(ordner.string())) {
        return {ordner, {}};
    }
    std::error_code fehler;
    if (!fs::create_directories(datenordner, fehler)) {
        return {datenordner,
                fehler ? "Der Ordner >>" + datenordner.string() +
                             "<< lässt sich nicht anlegen. Nummern, Kunden und Einstellungen können "
                             "nicht gespeichert werden, bis er da ist."
                       : std::string()};
    }
    const std::string fehlend = mitgeliefertes_kopieren(ordner, datenordner);
    return {datenordner, fehlend.empty() ? std::string()
                                         : "Diese mitgelieferten Dateien ließen sich nicht nach >>" +
                                               datenordner.string() + "<< kopieren: " + fehlend +
                                               ". Bitte von Hand nachholen."};
}

} // namespace quittika
