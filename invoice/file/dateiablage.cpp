#include "invoice/file/dateiablage.hpp"

#include "invoice/file/hindernis.hpp"
#include "invoice/zeichenersatz.hpp"

namespace quittika {

Dateiablage::Dateiablage(Hinweiszeile& hinweise, const Programmverzeichnis& verzeichnis, Dialogs& dialogs)
    : hinweise_(hinweise), verzeichnis_(verzeichnis), dialogs_(dialogs) {}

bool Dateiablage::Ablegen(const std::string& pfad, const Textpuffer& datei) {
    try {
        const std::string beiseite = datei_ersetzen(pfad, datei.bytes(), verzeichnis_.ordner());
        meldung_.clear();
        Melden(ZEICHENERSATZ_MELDUNG(datei.ersetzt()));
        if (!beiseite.empty()) {
            Melden("Der Ordner nimmt keine neue Datei an: am alten Platz gespeichert, der alte "
                   "Inhalt liegt in >>" +
                   beiseite + "<<.");
        }
        return true;
    } catch (const Laufzeitfehler& fehler) {
        FehlerMelden(fehler);
        return false;
    }
}

void Dateiablage::Melden(const std::string& text) {
    hinweise_.melden(text);
    meldung_ += (meldung_.empty() || text.empty() ? "" : "\r\n") + text;
}

void Dateiablage::FehlerMelden(const Laufzeitfehler& fehler) {
    hinweise_.melden(SPEICHERHINDERNIS(fehler));
    dialogs_.message({"Fehler beim speichern", kSpeicherfehler});
    if (const auto* schaden = dynamic_cast<const Dateischaden*>(&fehler)) {
        dialogs_.message({"Die Datei >>" + schaden->ort() +
                              "<< wurde nur zum Teil geschrieben. Ihr alter Inhalt "
                              "liegt in >>" +
                              schaden->beiseite() + "<<.",
                          "Achtung!", Buttons::Ok, Symbol::Exclamation});
    }
}

bool UEBERSCHREIBEN_FRAGEN(const std::string& pfad, Dialogs& dialogs) {
    return dialogs.message({"Soll die vorhandene Datei: >" + pfad + "< überschrieben werden?",
                            "Datei überschreiben?", Buttons::YesNo}) == Answer::Yes;
}

} // namespace quittika
