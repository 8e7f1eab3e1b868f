#include "settings/einstellungsleser.hpp"

#include "platform/datei.hpp"
#include "platform/textdatei.hpp"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quittika {

namespace {

constexpr std::size_t kMarke = 1;            ///< number of the line, or field, with the mark
constexpr std::size_t kGroesste = 4'000'000; ///< bytes; no settings file is larger
constexpr std::string_view kFeldgrenze = "#§#";

/// The bytes of a settings file; nothing where it cannot be read.
std::optional<std::string> inhalt(const std::string& pfad) {
    try {
        return bytes_lesen(pfad, kGroesste);
    } catch (const Laufzeitfehler&) {
        return std::nullopt;
    }
}

/// As many lines as the table has.
std::vector<std::string> zeilen(std::string_view bytes, std::size_t hoechstens) {
    std::vector<std::string> texte;
    zeilen_durchgehen(bytes, [&](std::string_view zeile) {
        texte.emplace_back(zeile);
        return texte.size() < hoechstens;
    });
    return texte;
}

std::vector<std::string> felder(std::string_view zeile, std::size_t hoechstens) {
    std::vector<std::string> texte;
    for (std::size_t grenze = 0; grenze != std::string_view::npos && texte.size() < hoechstens;) {
        grenze = zeile.find(kFeldgrenze);
        texte.emplace_back(zeile.substr(0, grenze));
        if (grenze != std::string_view::npos) {
            zeile.remove_prefix(grenze + kFeldgrenze.size());
        }
    }
    return texte;
}

bool gueltig(const std::vector<std::string>& texte) {
    return texte.size() > kMarke && !texte.front().empty() && texte[kMarke] == kZweiterStart;
}

} // namespace

void Einstellungsleser::EINSTELLUNGEN_LADEN() {
    constexpr const char* kFehlt = "FEHLER";
    const bool alte = DATEI_ERSTE_ZEILE(verzeichnis_.pfad("\\prog.cfg")) != kFehlt;
    const bool neue = DATEI_ERSTE_ZEILE(EINSTELLUNGSPFAD(verzeichnis_)) != kFehlt;
    if (alte && !neue) {
        ALTE_EINSTELLUNGEN_LADEN();
        uebernahme_.ALLEUEBERNEHMEN(true);
    } else {
        LETZTE_EINSTELLUNGEN_LADEN();
    }
}

void Einstellungsleser::LETZTE_EINSTELLUNGEN_LADEN() {
    std::optional<std::string> bytes = inhalt(EINSTELLUNGSPFAD(verzeichnis_));
    if (LETZTE_EINSTELLUNGEN_UEBERNEHMEN(bytes.value_or("")) && bytes) {
        schreiber_.GELESEN_MERKEN(std::move(*bytes));
    }
}

bool Einstellungsleser::LETZTE_EINSTELLUNGEN_UEBERNEHMEN(std::string_view bytes) {
    const std::vector<std::string> texte = zeilen(bytes, tabelle_.size());
    const bool ganz = Verteilen(texte, Einstellungsquelle::prog_n_cfg) == tabelle_.size();
    if (gueltig(texte)) {
        folgeschritte_.ausfuehren();
    }
    return ganz;
}

void Einstellungsleser::ALTE_EINSTELLUNGEN_LADEN() {
    ALTE_EINSTELLUNGEN_UEBERNEHMEN(inhalt(verzeichnis_.pfad("\\prog.cfg")).value_or(""));
}

void Einstellungsleser::ALTE_EINSTELLUNGEN_UEBERNEHMEN(std::string_view bytes) {
    const std::vector<std::string> erste = zeilen(bytes, 1);
    const std::vector<std::string> texte = felder(erste.empty() ? "" : erste.front(), tabelle_.size());
    if (texte.size() <= kMarke || texte[kMarke] != kZweiterStart) {
        return;
    }
    Verteilen(texte, Einstellungsquelle::prog_cfg);
    if (gueltig(texte)) {
        folgeschritte_.ausfuehren();
    }
}

std::size_t Einstellungsleser::Verteilen(const std::vector<std::string>& texte, Einstellungsquelle quelle) {
    const std::size_t genommen = EINSTELLUNGEN_VERTEILEN(tabelle_, texte, quelle);
    folgeschritte_.PreiskoepfeZeigen();
    return genommen;
}

} // namespace quittika
