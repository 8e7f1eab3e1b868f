#include "invoice/file/befund.hpp"

#include "platform/zahlen.hpp"

namespace quittika {

namespace {

// Numbers that no control shows as they stand in the file.
constexpr int kWeitereZahlen[] = {dateizeile::kMahnung, dateizeile::kMwStSatz, dateizeile::kVersandMwSt,
                                  dateizeile::kVersandNetto};

bool gesetzt(const std::string& text) {
    return !text.empty() && text != kNichtGesetzt;
}

std::string anzahl(int n, const std::string& eines, const std::string& mehrere) {
    return n == 1 ? "1 " + eines : std::to_string(n) + " " + mehrere;
}

void anfuegen(std::string& liste, const std::string& text) {
    liste += (liste.empty() ? "" : ", ") + text;
}

} // namespace

std::string BEFUND_MELDUNG(const Befund& befund) {
    std::string schaden;
    if (befund.abgeschnitten) {
        anfuegen(schaden, "zu viele Zeilen (es fehlen Positionen)");
    }
    if (befund.gekuerzt) {
        anfuegen(schaden, "kürzer als üblich");
    }
    if (befund.positionen > 0) {
        anfuegen(schaden, anzahl(befund.positionen, "Positionszeile", "Positionszeilen") + " beschädigt");
    }
    if (befund.werte > 0) {
        anfuegen(schaden, anzahl(befund.werte, "Wert", "Werte") + " nicht verstanden");
    }
    return schaden.empty() ? schaden
                           : "Achtung, Datei beschädigt: " + schaden + ". Bitte vor dem Speichern prüfen.";
}

bool POSITION_HEIL(const Positionszeile& zeile) {
    const auto& [nummer, art, menge, leistung, preis, gesamtpreis] = zeile.werte;
    const bool heil =
        art == "K" || art == "T" ||
        (art == "-" && ist_numerisch(menge) && ist_numerisch(preis) && ist_numerisch(gesamtpreis));
    return zeile.vollzaehlig && heil;
}

int UNVERSTANDENE_WERTE(const Dateizeilen& zeilen, const std::vector<Dateifeld>& felder) {
    int anzahl = 0;
    for (const Dateifeld& feld : felder) {
        const std::string& text = zeilen[feld.zeile];
        anzahl += feld.lesart != Lesart::Nie && gesetzt(text) && !FELD_VERSTANDEN(feld, text) ? 1 : 0;
    }
    for (const int zeile : kWeitereZahlen) {
        anzahl += gesetzt(zeilen[zeile]) && !IST_DATEIZAHL(zeilen[zeile]) ? 1 : 0;
    }
    return anzahl;
}

} // namespace quittika
