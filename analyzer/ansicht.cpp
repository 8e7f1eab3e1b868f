#include "analyzer/ansicht.hpp"

#include "analyzer/cent.hpp"
#include "platform/datum.hpp"
#include "platform/suchtext.hpp"
#include "platform/text.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace quittika {

namespace {

bool ist_ziffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

/// The digits at the front, taken away, without leading zeros.
std::string_view ziffern_nehmen(std::string_view& text) {
    std::size_t ende = 0;
    while (ende < text.size() && ist_ziffer(text[ende])) {
        ++ende;
    }
    std::string_view ziffern = text.substr(0, ende);
    text.remove_prefix(ende);
    ziffern.remove_prefix(std::min(ziffern.find_first_not_of('0'), ziffern.size()));
    return ziffern;
}

/// Whether `a` comes before `b`: digits in them count as numbers.
bool textfolge(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        if (ist_ziffer(a.front()) && ist_ziffer(b.front())) {
            const std::string_view zahl_a = ziffern_nehmen(a);
            const std::string_view zahl_b = ziffern_nehmen(b);
            if (zahl_a != zahl_b) {
                return zahl_a.size() != zahl_b.size() ? zahl_a.size() < zahl_b.size() : zahl_a < zahl_b;
            }
        } else if (a.front() != b.front()) {
            return static_cast<unsigned char>(a.front()) < static_cast<unsigned char>(b.front());
        } else {
            a.remove_prefix(1);
            b.remove_prefix(1);
        }
    }
    return a.empty() && !b.empty();
}

std::string spaltentext(const Rechnungstabelle& daten, const Tabellenspalte& spalte, int zeile) {
    return spalte.rohspalte == rohdatum::kNummer ? daten.nummer(zeile) : daten.text(spalte.rohspalte, zeile);
}

std::optional<std::int64_t> zahlwert(Wertart art, std::string_view text) {
    if (art == Wertart::Betrag) {
        return CENT(text);
    }
    const auto tag = datum_lesen(text);
    return tag ? std::optional(sekunden_aus(*tag)) : std::nullopt;
}

/// Sorts by a key of each invoice; those without one stay behind the others.
template <class Schluessel, class Vorher>
void sortieren(std::vector<int>& zeilen, bool absteigend, const Schluessel& schluessel, Vorher vorher) {
    using Wert = decltype(schluessel(0));
    std::vector<std::pair<int, Wert>> werte;
    werte.reserve(zeilen.size());
    for (const int zeile : zeilen) {
        werte.emplace_back(zeile, schluessel(zeile));
    }
    std::stable_sort(werte.begin(), werte.end(), [&](const auto& a, const auto& b) {
        if (!a.second || !b.second) {
            return a.second.has_value() && !b.second.has_value();
        }
        return absteigend ? vorher(*b.second, *a.second) : vorher(*a.second, *b.second);
    });
    std::transform(werte.begin(), werte.end(), zeilen.begin(), [](const auto& wert) { return wert.first; });
}

void nach_spalte_sortieren(std::vector<int>& zeilen, const Rechnungstabelle& daten,
                           const Tabellenspalte& spalte, bool absteigend) {
    if (spalte.art != Wertart::Text) {
        const auto wert = [&](int zeile) {
            return zahlwert(spalte.art, daten.text(spalte.rohspalte, zeile));
        };
        sortieren(zeilen, absteigend, wert, std::less<>());
        return;
    }
    const auto wert = [&](int zeile) {
        std::string text = SUCHTEXT(gekuerzt(spaltentext(daten, spalte, zeile)));
        return text.empty() ? std::nullopt : std::optional(std::move(text));
    };
    sortieren(zeilen, absteigend, wert, textfolge);
}

std::vector<std::string> woerter(std::string_view gesucht) {
    std::vector<std::string> alle;
    const std::string text = SUCHTEXT(gesucht);
    for (std::size_t anfang = text.find_first_not_of(' '); anfang != std::string::npos;) {
        const std::size_t ende = std::min(text.find(' ', anfang), text.size());
        alle.push_back(text.substr(anfang, ende - anfang));
        anfang = text.find_first_not_of(' ', ende);
    }
    return alle;
}

} // namespace

std::vector<std::string> SUCHTEXTE(const Rechnungstabelle& daten) {
    std::vector<std::string> texte(static_cast<std::size_t>(daten.anzahl()));
    for (int zeile = 0; zeile < daten.anzahl(); ++zeile) {
        std::string& text = texte[static_cast<std::size_t>(zeile)];
        suchtext_anfuegen(text, daten.nummer(zeile));
        for (const std::size_t spalte : {rohdatum::kDatum, rohdatum::kKundennummer, rohdatum::kKundenname}) {
            text += '\n';
            suchtext_anfuegen(text, daten.text(spalte, zeile));
        }
        text += '\n';
        suchtext_anfuegen(text, daten.notiz(zeile));
    }
    return texte;
}

std::vector<int> ANSICHT(const Rechnungstabelle& daten, const std::vector<std::string>& suchtexte,
                         const Ansichtswunsch& wunsch) {
    const std::vector<std::string> gesucht = woerter(wunsch.gesucht);
    std::vector<int> zeilen;
    for (int zeile = 0; zeile < daten.anzahl(); ++zeile) {
        const bool gefunden = std::all_of(gesucht.begin(), gesucht.end(), [&](const std::string& wort) {
            return suchtexte.at(static_cast<std::size_t>(zeile)).find(wort) != std::string::npos;
        });
        const bool gewaehlt =
            !wunsch.auswahl || std::binary_search(wunsch.auswahl->begin(), wunsch.auswahl->end(), zeile);
        if (gefunden && gewaehlt && !(wunsch.nur_unbezahlte && daten.bezahlt(zeile))) {
            zeilen.push_back(zeile);
        }
    }
    if (wunsch.spalte >= 0) {
        nach_spalte_sortieren(zeilen, daten, kTabellenspalten.at(static_cast<std::size_t>(wunsch.spalte)),
                              wunsch.absteigend);
    }
    return zeilen;
}

} // namespace quittika
