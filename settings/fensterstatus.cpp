#include "settings/fensterstatus.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/textdatei.hpp"
#include "platform/zahlen.hpp"

#include <string>

namespace quittika {

namespace {

constexpr const char* kDatei = "\\prog_WS.cfg";
constexpr const char* kFeldgrenze = "#§#";

} // namespace

void FENSTERSTATUS_LADEN(Form& fenster, const Programmverzeichnis& verzeichnis) {
    const std::string zeile = DATEI_ERSTE_ZEILE(verzeichnis.pfad(kDatei));
    const auto zustand = double_versuch(FELD_AUS_ZEILE(zeile, kFeldgrenze, 1));
    if (!zustand) {
        return;
    }
    if (*zustand == window_state::kMinimised || *zustand == window_state::kMaximised) {
        fenster.WindowState = window_state::kMaximised;
    } else if (*zustand == window_state::kNormal) {
        fenster.WindowState = window_state::kNormal;
    }
}

void FENSTERSTATUS_SPEICHERN(const Form& fenster, const Programmverzeichnis& verzeichnis) {
    try {
        DATEI_SCHREIBEN(verzeichnis.pfad(kDatei), std::string("KONFIGURATION_PROGRAM_WINSTATE") +
                                                      kFeldgrenze + fenster.WindowState.as_text() +
                                                      kFeldgrenze);
    } catch (const Laufzeitfehler&) {
        // The window then opens as it did before.
    }
}

} // namespace quittika
