#include "settings/einstellungsschreiber.hpp"

#include "invoice/zeichenersatz.hpp"
#include "platform/datei.hpp"
#include "platform/text.hpp"

#include <utility>

namespace quittika {

namespace {

constexpr std::size_t kDateizeilen = 1001;
constexpr const char* kFuellzeile = "#*§*#";

} // namespace

std::string EINSTELLUNGSPFAD(const Programmverzeichnis& verzeichnis) {
    return verzeichnis.pfad("\\prog_n.cfg");
}

Textpuffer EINSTELLUNGSTEXT(const Einstellungstabelle& tabelle) {
    Textpuffer datei;
    for (const Einstellungszeile& zeile : tabelle) {
        datei.zeile(einzeilig(ZEILENTEXT(zeile)));
    }
    for (std::size_t n = tabelle.size(); n < kDateizeilen; ++n) {
        datei.zeile(kFuellzeile);
    }
    return datei;
}

void Einstellungsschreiber::EINSTELLUNGEN_SPEICHERN() {
    if (SPEICHERN_GESPERRT) {
        return;
    }
    const Textpuffer datei = EINSTELLUNGSTEXT(tabelle_);
    try {
        FremdesBeiseiteLegen();
        datei_ersetzen(EINSTELLUNGSPFAD(verzeichnis_), datei.bytes());
        GELESEN_MERKEN(datei.bytes());
        form1_.Hinweise.melden(ZEICHENERSATZ_MELDUNG(datei.ersetzt()));
    } catch (const Laufzeitfehler& fehler) {
        form1_.Hinweise.melden("FEHLER BEIM EINSTELLUNGEN SPEICHERN");
        dialogs_.message({"Fehler beim EINSTELLUNGEN_SPEICHERN. Fehlernr.: " +
                              std::to_string(fehler.nummer()) + "\r\n" + fehlertext(fehler.nummer()),
                          "Achtung!", Buttons::Ok, Symbol::Exclamation});
    }
}

void Einstellungsschreiber::FremdesBeiseiteLegen() {
    const std::string pfad = EINSTELLUNGSPFAD(verzeichnis_);
    const std::string vorher = datei_vorhanden(pfad) ? bytes_lesen(pfad) : std::string();
    if (vorher.empty() || vorher == stand_) {
        return;
    }
    const std::string beiseite = verzeichnis_.pfad("\\Sicherung von prog_n.cfg");
    DATEI_KOPIEREN(pfad, beiseite);
    form1_.Hinweise.melden(
        "prog_n.cfg war anderswo geändert oder nicht ganz lesbar: der alte Inhalt liegt in >>" +
        systempfad(beiseite) + "<<.");
}

} // namespace quittika
