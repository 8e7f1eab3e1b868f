#include "tools/updatecheck.hpp"

#include "invoice/programmname.hpp"
#include "platform/fluechtige_datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/textdatei.hpp"
#include "platform/zahlen.hpp"
#include "tools/internetseiten.hpp"

#include <algorithm>
#include <limits>
#include <optional>

namespace quittika {

namespace {

constexpr const char* kDatei = "\\prgaufruf.lld";
constexpr const char* kFehlgeschlagen = "Es gab ein Problem beim Suchen nach einer neuen Version.";

} // namespace

std::int16_t VERSIONSNUMMER(int haupt, int neben, int revision) {
    constexpr int kHaupt = 1000;
    constexpr int kNeben = 100;
    return nach_int16(1.0 * haupt * kHaupt + 1.0 * neben * kNeben + revision);
}

int STARTZAEHLER(std::string_view zeile) {
    using Grenzen = std::numeric_limits<std::int16_t>;
    const std::optional<double> wert = double_versuch(zeile);
    return nach_int16(std::clamp<double>(wert.value_or(0), Grenzen::min(), Grenzen::max()));
}

int NAECHSTER_START(int zaehler) {
    constexpr int kVoll = 32000;
    constexpr int kWeiter = 1001;
    return zaehler >= kVoll ? kWeiter : zaehler + 1;
}

Updatecheck::Updatecheck(Form1& form1, const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Shell& shell,
                         const Clock& uhr)
    : form1_(form1), pfad_(verzeichnis.pfad(kDatei)), dialogs_(dialogs), shell_(shell), uhr_(uhr) {}

void Updatecheck::Updatecheck_Start() {
    constexpr int kFragealle = 30;
    const std::string zeile = DATEI_ERSTE_ZEILE(pfad_);
    if (!ist_numerisch(zeile)) {
        zaehler_schreiben(0);
    }
    const int zaehler = STARTZAEHLER(zeile);
    if (zaehler % kFragealle == 0) {
        Updatecheck_Frage(VERSIONSNUMMER(version::kHaupt, version::kNeben, version::kRevision));
    }
    zaehler_schreiben(NAECHSTER_START(zaehler));
    Neujahr();
}

void Updatecheck::m_updatesuchen_Click() {
    Updatecheck_Frage(VERSIONSNUMMER(version::kHaupt, version::kNeben, version::kRevision));
}

void Updatecheck::Updatecheck_Frage(std::int16_t nummer) {
    try {
        if (dialogs_.message(
                {"Ihre aktuelle Version ist  >>QUITTIKA 2008 - " + std::to_string(nummer) +
                     "<<. Soll im Internet nach einer neuen Version von Quittika gesucht werden?",
                 "Updatecheck", Buttons::YesNo, Symbol::Question}) != Answer::Yes) {
            return;
        }
        form1_.StatusBar1[2].Caption = "Suche nach neuer Version...";
        updateinfohtm();
    } catch (const Laufzeitfehler&) {
        dialogs_.message(
            {std::string(kFehlgeschlagen) + " Bitte schauen Sie selbst unter " + kHauptseite + " nach.",
             "Updatecheck: Fehler beim Update suchen!", Buttons::Ok, Symbol::Exclamation});
        form1_.StatusBar1[2].Caption = kFehlgeschlagen;
    }
}

void Updatecheck::updateinfohtm() {
    shell_.open(UPDATEINFO_URL);
}

void Updatecheck::Neujahr() {
    const Zeitpunkt heute = uhr_.now();
    if (heute.monat == 1 && heute.tag == 1) {
        dialogs_.message({"DAS QUITTIKA - TEAM WÜNSCHT IHNEN EIN FROHES UND ERFOLGREICHES NEUES JAHR " +
                              std::to_string(heute.jahr) + "!",
                          "Frohes neues Jahr", Buttons::Ok, Symbol::Information});
    }
}

void Updatecheck::zaehler_schreiben(int zaehler) const {
    try {
        DATEI_FLUECHTIG_SCHREIBEN(pfad_, std::to_string(zaehler));
    } catch (const Laufzeitfehler&) {
        return; // the reminder comes by chance then
    }
}

} // namespace quittika
