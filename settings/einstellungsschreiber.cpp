#include "settings/einstellungsschreiber.hpp"

#include "invoice/zeichenersatz.hpp"
#include "platform/datei.hpp"
#include "platform/text.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quittika {

namespace {

constexpr std::size_t kDateizeilen = 1001;
constexpr const char* kFuellzeile = "#*§*#";

} // namespace

std::string EINSTELLUNGSPFAD(const Programmverzeichnis& verzeichnis) {
    return verzeichnis.pfad("\\prog_n.cfg");
}

std::vector<std::string> ZEILENTEXTE(const Einstellungstabelle& tabelle) {
    std::vector<std::string> texte;
    texte.reserve(tabelle.size());
    std::transform(tabelle.begin(), tabelle.end(), std::back_inserter(texte), ZEILENTEXT);
    return texte;
}

Textpuffer EINSTELLUNGSTEXT(const std::vector<std::string>& texte) {
    Textpuffer datei;
    for (const std::string& text : texte) {
        datei.zeile(einzeilig(text));
    }
    for (std::size_t n = texte.size(); n < kDateizeilen; ++n) {
        datei.zeile(kFuellzeile);
    }
    return datei;
}

void Einstellungsschreiber::EINSTELLUNGEN_SPEICHERN() {
    if (SPEICHERN_GESPERRT) {
        return;
    }
    const Textpuffer datei = EINSTELLUNGSTEXT(InKraft());
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

std::vector<std::string> Einstellungsschreiber::InKraft() const {
    std::vector<std::string> texte = ZEILENTEXTE(tabelle_);
    for (std::size_t n = 0; n < texte.size(); ++n) {
        const auto stand = in_kraft_.find(tabelle_[n].fenster);
        if (stand != in_kraft_.end()) {
            texte[n] = stand->second[n];
        }
    }
    return texte;
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
