#include "invoice/file/hindernis.hpp"

namespace quittika {

namespace {

struct Grund {
    int nummer;
    const char* text;
};

constexpr Grund kSpeichern[] = {
    {fehler::kFalscherTyp, "Das Rechnungsdatum ist kein Datum: bitte als TT.MM.JJJJ eingeben."},
    {fehler::kDateiname, "Der Dateiname ist ungültig: bitte unter einem anderen Namen speichern."},
    {fehler::kDateiFehlt, "Den Ordner gibt es nicht: bitte in einem anderen speichern."},
    {fehler::kPfadFehlt, "Den Ordner gibt es nicht: bitte in einem anderen speichern."},
    {fehler::kGeraet, "Der Datenträger meldet einen Fehler: bitte prüfen oder auf einem anderen speichern."},
    {fehler::kDatentraegerVoll,
     "Der Datenträger ist voll: bitte Platz schaffen oder auf einem anderen speichern."},
    {fehler::kZugriffVerweigert,
     "Die Datei ist schreibgeschützt: bitte unter einem anderen Namen speichern."},
    {fehler::kDatentraegerFehlt,
     "Der Datenträger ist nicht erreichbar: bitte prüfen oder auf einem anderen speichern."},
    {fehler::kPfadZugriff,
     "Das ist ein Ordner, oder der Name ist zu lang: bitte unter einem anderen Namen speichern."},
};

constexpr Grund kOeffnen[] = {
    {fehler::kSpeicher, "Die Datei ist größer als 50 MB: eine Rechnung ist das nicht."},
    {fehler::kDateiname, "Der Dateiname ist ungültig: bitte eine andere Datei wählen."},
    {fehler::kDateiFehlt,
     "Die Datei gibt es nicht mehr: bitte prüfen, ob sie umbenannt oder verschoben wurde."},
    {fehler::kPfadFehlt,
     "Den Ordner gibt es nicht mehr: bitte prüfen, ob der Datenträger angeschlossen ist."},
    {fehler::kGeraet, "Der Datenträger meldet einen Fehler: bitte prüfen, ob er angeschlossen ist."},
    {fehler::kZugriffVerweigert, "Die Datei darf nicht gelesen werden: bitte ihre Rechte prüfen."},
    {fehler::kDatentraegerFehlt,
     "Der Datenträger ist nicht erreichbar: bitte prüfen, ob er angeschlossen ist."},
    {fehler::kPfadZugriff, "Das ist keine Datei: bitte eine andere wählen."},
};

template <std::size_t n> std::string grund(const Grund (&gruende)[n], const Laufzeitfehler& fehler) {
    for (const Grund& g : gruende) {
        if (g.nummer == fehler.nummer()) {
            return g.text;
        }
    }
    return fehler.what();
}

bool am_ordner(const Laufzeitfehler& fehler) {
    return !fehler.ort().empty() && fehler.ort().back() == '/';
}

} // namespace

std::string SPEICHERHINDERNIS(const Laufzeitfehler& fehler) {
    if (fehler.nummer() == fehler::kZugriffVerweigert && am_ordner(fehler)) {
        return "Der Ordner ist schreibgeschützt: bitte in einem anderen speichern.";
    }
    return grund(kSpeichern, fehler);
}

std::string OEFFNUNGSHINDERNIS(const Laufzeitfehler& fehler) {
    return grund(kOeffnen, fehler);
}

} // namespace quittika
