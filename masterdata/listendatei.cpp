#include "masterdata/listendatei.hpp"

#include "platform/datei.hpp"
#include "platform/fehlertitel.hpp"
#include "platform/laufzeitfehler.hpp"
#include "settings/exportfehler.hpp"

#include <utility>

namespace quittika {

namespace {

constexpr const char* kTitel = "Quittika";
constexpr const char* kAchtung = "Achtung!";

/// Copies a file's present content; without a file there is nothing to copy.
void sichern(const std::string& pfad, const std::string& sicherung) {
    std::string alt;
    try {
        alt = bytes_lesen(pfad);
    } catch (const Laufzeitfehler& f) {
        if (f.nummer() == fehler::kDateiFehlt) {
            return;
        }
        throw; // what cannot be read must not be replaced by what was read of it
    }
    try {
        datei_ersetzen(sicherung, alt);
    } catch (const Laufzeitfehler&) {
        return;
    }
}

void entfernen(const std::string& pfad) {
    try {
        DATEI_LOESCHEN(pfad);
    } catch (const Laufzeitfehler& f) {
        if (f.nummer() != fehler::kDateiFehlt) {
            throw;
        }
    }
}

} // namespace

void LISTE_NEU_SCHREIBEN(const std::string& pfad, const std::string& sicherung, const Textpuffer& zeilen) {
    sichern(pfad, sicherung);
    if (zeilen.bytes().empty()) {
        entfernen(pfad);
    } else {
        datei_ersetzen(pfad, zeilen.bytes());
    }
}

Listentransfer::Listentransfer(Form1& form1, Artikelzustand& zustand, Dialogs& dialogs, std::string name,
                               std::string pfad, Importtitel importtitel)
    : form1_(form1),
      zustand_(zustand),
      dialogs_(dialogs),
      name_(std::move(name)),
      pfad_(std::move(pfad)),
      importtitel_(importtitel) {}

void Listentransfer::Exportieren() {
    std::string ziel;
    try {
        FileDialog dialog{"Bitte Zielverzeichnis angeben...  |", name_ + ".txt", {}};
        dialog.must_exist = false;
        ziel = dialogs_.open_file(dialog);
        form1_.StatusBar1[2].Caption = "Exportiere aktuelle " + name_ + " nach: " + ziel;
        DATEI_KOPIEREN(pfad_, ziel);
        dialogs_.message(
            {name_ + " wurde erfolgreich exportiert!", kTitel, Buttons::Ok, Symbol::Information});
    } catch (const Laufzeitfehler& f) {
        ExportfehlerMelden(f.nummer(), ziel);
    }
}

void Listentransfer::ExportfehlerMelden(int nummer, const std::string& ziel) {
    form1_.StatusBar1[2].Caption = "FEHLER BEIM EXPORTIEREN VON: " + ziel;
    dialogs_.message(EXPORTFEHLER(nummer, nummer == fehler::kZugriffVerweigert));
}

bool Listentransfer::Importieren() {
    const std::string frage =
        "Achtung! Der Import löscht die aktuelle " + name_ + ". Möchten sie fortfahren?";
    if (dialogs_.message({frage, kAchtung, Buttons::YesNo, Symbol::Exclamation, Answer::No}) != Answer::Yes) {
        return false;
    }
    std::string quelle;
    try {
        quelle = dialogs_.open_file(
            {name_ + " QK2007 QK2008  Dateien (" + name_ + ".txt)|" + name_ + ".txt", "", ""});
        form1_.StatusBar1[2].Caption = "Importiere " + name_ + ": " + quelle;
        DATEI_KOPIEREN(quelle, pfad_);
    } catch (const Laufzeitfehler& f) {
        if (f.nummer() != fehler::kDialogAbgebrochen) {
            ImportfehlerMelden(f.nummer(), quelle);
        }
        return false;
    }
    dialogs_.message({name_ + " wurde erfolgreich importiert!", kTitel, Buttons::Ok, Symbol::Information});
    zustand_.ArtikelAuswahlAbgebrochen = true;
    return true;
}

void Listentransfer::ImportfehlerMelden(int nummer, const std::string& quelle) {
    form1_.StatusBar1[2].Caption = "FEHLER BEIM IMPORTIEREN VON: " + quelle;
    dialogs_.message({"Fehler beim Import dieser Datei.",
                      importtitel_ == Importtitel::Einfach ? kAchtung : FEHLERTITEL(nummer), Buttons::Ok,
                      Symbol::Stop});
}

} // namespace quittika
