#include "platform/laufzeitfehler.hpp"

#include <array>
#include <utility>

namespace quittika {

namespace {

struct Text {
    int nummer;
    const char* text;
};

constexpr std::array<Text, 19> kTexte{{
    {fehler::kUngueltigerAufruf, "Ungültiger Aufruf"},
    {fehler::kUeberlauf, "Überlauf"},
    {fehler::kSpeicher, "Nicht genügend Speicher"},
    {fehler::kIndex, "Index außerhalb des gültigen Bereichs"},
    {fehler::kDivisionDurchNull, "Division durch Null"},
    {fehler::kFalscherTyp, "Typen unverträglich"},
    {fehler::kDateiname, "Dateiname ungültig"},
    {fehler::kDateiFehlt, "Datei nicht gefunden"},
    {fehler::kGeraet, "Fehler beim Lesen oder Schreiben"},
    {fehler::kDateiVorhanden, "Datei existiert bereits"},
    {fehler::kDatentraegerVoll, "Datenträger voll"},
    {fehler::kZugriffVerweigert, "Zugriff verweigert"},
    {fehler::kDatentraegerFehlt, "Datenträger nicht bereit"},
    {fehler::kPfadZugriff, "Fehler beim Zugriff auf Pfad oder Datei"},
    {fehler::kPfadFehlt, "Pfad nicht gefunden"},
    {fehler::kEigenschaft, "Ungültiger Eigenschaftswert"},
    {fehler::kBild, "Ungültiges Bild"},
    {fehler::kDrucker, "Druckerfehler"},
    {fehler::kDialogAbgebrochen, "Dialog abgebrochen"},
}};

std::string beschreibung(int nummer, const std::string& ort) {
    std::string text = fehlertext(nummer);
    return ort.empty() ? text : text + ": " + ort;
}

} // namespace

const char* fehlertext(int nummer) {
    for (const Text& t : kTexte) {
        if (t.nummer == nummer) {
            return t.text;
        }
    }
    return "Laufzeitfehler";
}

Laufzeitfehler::Laufzeitfehler(int nummer, std::string ort)
    : std::runtime_error(beschreibung(nummer, ort)), nummer_(nummer), ort_(std::move(ort)) {}

} // namespace quittika
