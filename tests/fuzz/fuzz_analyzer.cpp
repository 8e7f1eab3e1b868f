#include "analyzer/rechnungsauszug.hpp"
#include "analyzer/zusammenfassung.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "tests/fuzz/verlangen.hpp"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quittika {
namespace {

std::optional<Rechnungsauszug> auszug(std::string_view bytes) {
    try {
        Rechnungszeilen ZEILEN;
        ZEILEN.lesen(bytes);
        return AUSZUG_LESEN(ZEILEN);
    } catch (const Laufzeitfehler& fehler) {
        verlangen(fehler.nummer() == fehler::kFalscherTyp || fehler.nummer() == fehler::kUeberlauf);
        return std::nullopt;
    }
}

/// The lines of a file, found one byte after the other, at the place that they have in `ZEILEN`.
std::vector<std::string> zeilen_von(std::string_view bytes) {
    std::vector<std::string> zeilen(1);
    for (const char c : bytes) {
        if (c != '\n') {
            zeilen.back() += c;
            continue;
        }
        if (!zeilen.back().empty() && zeilen.back().back() == '\r') {
            zeilen.back().pop_back();
        }
        zeilen.emplace_back();
    }
    if (zeilen.front() != "qk8") {
        zeilen.insert(zeilen.begin(), "");
    }
    for (std::string& zeile : zeilen) {
        if (zeile.rfind("#qk8LIST#", 0) == 0) {
            zeile.clear();
        }
    }
    zeilen.resize(std::max<std::size_t>(zeilen.size(), 221));
    return zeilen;
}

bool ist_betrag(const std::string& text) {
    const std::size_t ziffern = text.find_first_not_of('-');
    return text.size() >= 4 && ziffern <= 1 && text[text.size() - 3] == ',' &&
           text.find_first_not_of("0123456789,", ziffern) == std::string::npos;
}

void pruefen(const std::string& bytes) {
    const std::optional<Rechnungsauszug> gelesen = auszug(bytes);
    if (Rechnungszeilen().lesen(bytes)) { // then what comes behind changes nothing
        const auto mit_mehr = auszug(bytes + "7\r\n#qk8LIST#");
        verlangen(mit_mehr.has_value() == gelesen.has_value() &&
                  (!gelesen || mit_mehr->werte == gelesen->werte));
    }
    if (!gelesen) {
        return;
    }
    const auto zeilen = zeilen_von(bytes);
    const std::size_t quellen[] = {2, 1, 80, 7, 3};
    for (std::size_t i = 0; i < std::size(quellen); ++i) {
        verlangen(gelesen->werte.at(i) == aus_ansi(zeilen[quellen[i]]));
    }
    verlangen(gelesen->werte[rohdatum::kNotiz] == aus_ansi(zeilen[218]));
    verlangen(zeichenzahl(TABELLENZEILE(gelesen->werte)) == 128);
    const std::vector<std::string> offen(3, kNein);
    const Gesamtwerte summen = GESAMTWERTE(offen, std::vector(3, gelesen->werte[rohdatum::kNetto]),
                                           std::vector(3, gelesen->werte[rohdatum::kMwSt]),
                                           std::vector(3, gelesen->werte[rohdatum::kBrutto]));
    for (const Betragsgruppe& gruppe : {summen.brutto, summen.netto, summen.mwst}) {
        verlangen(ist_betrag(gruppe.erwartet) && gruppe.nicht_bezahlt == gruppe.erwartet &&
                  gruppe.bezahlt == "0,00");
    }
}

} // namespace
} // namespace quittika

/// Whatever bytes an invoice holds that the analyzer reads: as they are, and in the lines behind 52, where
/// its numbers stand.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zeiger, std::size_t anzahl) {
    const std::string bytes(reinterpret_cast<const char*>(zeiger), anzahl);
    quittika::pruefen(bytes);
    std::string rechnung = "qk8\r\n";
    for (int i = 1; i <= 220; ++i) {
        rechnung += "1,5\r\n";
    }
    std::size_t stelle = 0;
    for (int i = 0; i < 53; ++i) {
        stelle = rechnung.find('\n', stelle) + 1;
    }
    std::size_t ende = stelle;
    for (const char c : bytes) {
        ende = c == '\n' ? std::min(rechnung.find('\n', ende) + 1, rechnung.size()) : ende;
    }
    quittika::pruefen(rechnung.replace(stelle, ende - stelle, bytes));
    return 0;
}
