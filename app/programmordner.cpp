#include "app/programmordner.hpp"

#include "platform/verzeichnis.hpp"

#include <system_error>

namespace quittika {

namespace fs = std::filesystem;

namespace {

bool mitgeliefert(const fs::path& datei) {
    const std::string endung = datei.extension().string();
    for (const char* bekannt : {".bmp", ".png", ".jpg", ".qk8", ".pdf", ".htm", ".html", ".txt"}) {
        if (endung == bekannt) {
            return true;
        }
    }
    return false;
}

} // namespace

void MITGELIEFERTES_KOPIEREN(const fs::path& von, const fs::path& nach) {
    std::error_code fehler;
    for (const fs::directory_entry& eintrag : fs::directory_iterator(von, fehler)) {
        const fs::path ziel = nach / eintrag.path().filename();
        if (eintrag.is_regular_file(fehler) && mitgeliefert(eintrag.path()) && !fs::exists(ziel, fehler)) {
            fs::copy_file(eintrag.path(), ziel, fehler);
        }
    }
}

fs::path PROGRAMMORDNER(const fs::path& programmdatei, const fs::path& datenordner) {
    fs::path ordner = programmdatei.parent_path();
    if (ordner_beschreibbar(ordner.string())) {
        return ordner;
    }
    std::error_code fehler;
    fs::create_directories(datenordner, fehler);
    MITGELIEFERTES_KOPIEREN(ordner, datenordner);
    return datenordner;
}

} // namespace quittika
