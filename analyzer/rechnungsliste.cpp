#include "analyzer/rechnungsliste.hpp"

#include "platform/laufzeitfehler.hpp"

#include <utility>

namespace quittika {

namespace {

std::string grund_von(const Laufzeitfehler& fehler) {
    const bool unverstanden =
        fehler.nummer() == fehler::kFalscherTyp || fehler.nummer() == fehler::kUeberlauf;
    return unverstanden ? "Status, Mahnstufe oder ein Betrag ist keine Zahl" : fehlertext(fehler.nummer());
}

} // namespace

void Rechnungsliste::Dateien_einlesen(const std::string& ordner, const std::vector<std::string>& namen,
                                      ProgressDisplay& fortschritt) {
    zeilen.reserve(namen.size());
    dateien.reserve(namen.size());
    for (auto& spalte : rohdaten) {
        spalte.reserve(namen.size());
    }
    std::size_t gelesen = 0;
    for (const std::string& name : namen) {
        try {
            Rechnungen_einlesen(ordner + "/" + name, name);
        } catch (const Laufzeitfehler& fehler) {
            ausgelassen.push_back({name, grund_von(fehler)});
        }
        fortschritt.update(++gelesen, namen.size(), name);
        if (gelesen < namen.size() && fortschritt.aborted()) {
            abgebrochen = true;
            return;
        }
    }
}

void Rechnungsliste::Rechnungen_einlesen(const std::string& ort, const std::string& name) {
    leser_.lesen(ort, [this](std::string_view bytes) { return ZEILEN.lesen(bytes); });
    Rechnungsauszug auszug = AUSZUG_LESEN(ZEILEN);
    zeilen.push_back(TABELLENZEILE(auszug.werte));
    dateien.push_back(name);
    for (std::size_t i = 0; i < rohdaten.size(); ++i) {
        rohdaten.at(i).push_back(std::move(auszug.werte.at(i)));
    }
    alte_version = alte_version || auszug.alte_version;
}

} // namespace quittika
