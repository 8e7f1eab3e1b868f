#include "app/programmordner.hpp"

#include "platform/verzeichnis.hpp"

#include <algorithm>
#include <iterator>
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

/// The shipped files that a data folder is to be given: all for a new one, else those of subfolders that were
/// not shipped when it was made.
std::vector<fs::path> zu_kopieren(const fs::path& nach, bool neu) {
    std::vector<fs::path> namen;
    std::copy_if(MITGELIEFERTE_DATEIEN().begin(), MITGELIEFERTE_DATEIEN().end(), std::back_inserter(namen),
                 [&](const fs::path& name) {
                     std::error_code egal;
                     return neu || (name.has_parent_path() && !fs::exists(nach / name.parent_path(), egal));
                 });
    return namen;
}

/// Names of the files that could not be copied, parted by ", ".
std::string mitgeliefertes_kopieren(const fs::path& von, const fs::path& nach,
                                    const std::vector<fs::path>& namen) {
    std::string fehlend;
    for (const fs::path& name : namen) {
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
    const bool neu = fs::create_directories(datenordner, fehler);
    if (fehler) {
        return {datenordner, "Der Ordner >>" + datenordner.string() +
                                 "<< lässt sich nicht anlegen. Nummern, Kunden und Einstellungen können "
                                 "nicht gespeichert werden, bis er da ist."};
    }
    const std::string fehlend = mitgeliefertes_kopieren(ordner, datenordner, zu_kopieren(datenordner, neu));
    return {datenordner, fehlend.empty() ? std::string()
                                         : "Diese mitgelieferten Dateien ließen sich nicht nach >>" +
                                               datenordner.string() + "<< kopieren: " + fehlend +
                                               ". Bitte von Hand nachholen."};
}

} // namespace quittika
