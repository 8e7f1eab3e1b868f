#include "designer/designdatei.hpp"

#include "invoice/programmname.hpp"
#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/schluesselzeilen.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr std::size_t kHoechstbytes = 1U << 20U;

std::string pfad(const Programmverzeichnis& verzeichnis) {
    return verzeichnis.pfad("\\design.dsg");
}

/// Value of the first line with that key; empty where no line has it.
std::string gelesener_wert(std::string_view bytes, std::string_view schluessel) {
    std::string gefunden;
    SCHLUESSELZEILEN_DURCHGEHEN(bytes, [&](const std::string& name, const std::string& wert) {
        if (name == schluessel) {
            gefunden = wert;
        }
        return name != schluessel;
    });
    return gefunden;
}

/// The bytes of the file, or those of the standard design where there is none.
std::string vorhandene_bytes(const Programmverzeichnis& verzeichnis) {
    try {
        return bytes_lesen(pfad(verzeichnis), kHoechstbytes);
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kDateiFehlt) {
            throw;
        }
        return DESIGN_SCHREIBEN(DESIGN_STANDARD(verzeichnis)).bytes;
    }
}

/// The same bytes with another value behind the key; a line more where no line has it.
std::string mit_wert(const std::string& bytes, std::string_view schluessel, std::string_view wert) {
    const std::string neuer_wert = nach_ansi(wert).bytes;
    for (std::size_t anfang = 0; anfang < bytes.size();) {
        const std::size_t zeilenende = std::min(bytes.find('\n', anfang), bytes.size());
        const std::size_t mitte = bytes.find(':', anfang);
        if (mitte < zeilenende && grossbuchstaben(bytes.substr(anfang, mitte - anfang)) == schluessel) {
            const std::size_t ende = zeilenende - (bytes[zeilenende - 1] == '\r' ? 1 : 0);
            const std::size_t schluss = std::min(bytes.find(';', mitte), ende);
            return bytes.substr(0, mitte + 1) + neuer_wert + (schluss == ende ? ";" : "") +
                   bytes.substr(schluss);
        }
        anfang = zeilenende + 1;
    }
    const bool offen = !bytes.empty() && bytes.back() != '\n';
    return bytes + (offen ? "\r\n" : "") + std::string(schluessel) + ":" + neuer_wert + ";\r\n";
}

} // namespace

std::string DESIGN_WERT(const Programmverzeichnis& verzeichnis, std::string_view schluessel) {
    try {
        return gelesener_wert(bytes_lesen(pfad(verzeichnis), kHoechstbytes), schluessel);
    } catch (const Laufzeitfehler&) {
        return "ERROR";
    }
}

Designlesung DESIGN_EINLESEN(const Programmverzeichnis& verzeichnis) {
    return DESIGN_LESEN(bytes_lesen(pfad(verzeichnis), kHoechstbytes));
}

void DESIGN_WERT_SETZEN(const Programmverzeichnis& verzeichnis, std::string_view schluessel,
                        std::string_view wert) {
    const std::string bytes = vorhandene_bytes(verzeichnis);
    const std::string neu = mit_wert(bytes, schluessel, wert);
    if (gelesener_wert(neu, schluessel) != wert) {
        throw Laufzeitfehler(fehler::kDateiname, std::string(wert));
    }
    datei_ersetzen(pfad(verzeichnis), neu);
}

void Designdatei::DESIGN_LADEN() {
    geladen_ = true;
    try {
        const Designlesung lesung = DESIGN_EINLESEN(verzeichnis_);
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
