#include "designer/designdatei.hpp"

#include "invoice/programmname.hpp"
#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"

namespace quittika {

namespace {

constexpr std::size_t kHoechstbytes = 1U << 20U;

std::string pfad(const Programmverzeichnis& verzeichnis) {
    return verzeichnis.pfad("\\design.dsg");
}

} // namespace

std::string DESIGN_WERT(const Programmverzeichnis& verzeichnis, std::string_view schluessel) {
    std::string gefunden;
    try {
        designzeilen_durchgehen(bytes_lesen(pfad(verzeichnis), kHoechstbytes),
                                [&](const std::string& name, const std::string& wert) {
                                    if (name == schluessel) {
                                        gefunden = wert;
                                    }
                                    return name != schluessel;
                                });
    } catch (const Laufzeitfehler&) {
        return "ERROR";
    }
    return gefunden;
}

void Designdatei::DESIGN_LADEN() {
    geladen_ = true;
    try {
        const Designlesung lesung = DESIGN_LESEN(bytes_lesen(pfad(verzeichnis_), kHoechstbytes));
        design = lesung.design;
        if (lesung.fehlen > 0) {
            hinweise_.melden("In design.dsg fehlen Zeilen: " + std::to_string(lesung.fehlen) + ", zuerst " +
                             lesung.fehlt + "; sie gelten als 0.");
        }
        if (design.LIST_OPTION < 0 || design.LIST_OPTION >= kTabellendesigns) {
            hinweise_.melden("Das Tabellendesign " + std::to_string(design.LIST_OPTION) +
                             " in design.dsg gibt es nicht: gedruckt wird das erste, 0.");
        }
    } catch (const Laufzeitfehler&) {
        DESIGN_STANDARD();
        hinweise_.melden(" Problem beim öffnen der Designdatei >design.dsg<");
        dialogs_.message(
            {"Es konnte die gespeicherte Designvorlage nicht geöffnet werden! Das ist normal, wenn "
             "Sie noch kein Design erstellt und gespeichert haben. Es wird nun ein "
             "Standard-Design geladen.",
             kProgrammname});
    }
}

void Designdatei::DESIGN_SPEICHERN() const {
    const Designtext text = DESIGN_SCHREIBEN(design);
    datei_ersetzen(pfad(verzeichnis_), text.bytes);
    if (!text.verloren.empty()) {
        hinweise_.melden(
            "Der Bildpfad " + text.verloren +
            " enthält Zeichen, die in design.dsg nicht stehen können: bitte die Datei umbenennen "
            "und das Bild neu wählen.");
    }
}

} // namespace quittika
