#pragma once

#include "masterdata/artikel.hpp"
#include "platform/text.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace quittika {

/// Field `index` of a line of bytes, counted separator by separator.
inline std::string Modellfeld(const std::string& zeile, const std::string& trenner, int index) {
    std::vector<std::string> felder(zeile.empty() || trenner.empty() ? 0 : 1);
    for (std::size_t i = 0; i < zeile.size() && !felder.empty();) {
        if (zeile.compare(i, trenner.size(), trenner) == 0) {
            felder.emplace_back();
            i += trenner.size();
        } else {
            felder.back() += zeile[i++];
        }
    }
    const auto n = static_cast<std::size_t>(index);
    return n < felder.size() ? felder[n] : "ERROR";
}

/// What the table makes of the bytes of an article list, against a reading byte by byte; empty if all is
/// well.
inline std::string Artikelbefund(const Artikeltabelle& ARTIKEL, const std::string& bytes) {
    std::vector<std::string> zeilen;
    for (std::size_t i = 0; i < bytes.size() && zeilen.size() < 12000;) {
        const std::size_t ende = std::min(bytes.find('\n', i), bytes.size());
        const bool cr = ende < bytes.size() && ende > i && bytes[ende - 1] == '\r';
        zeilen.push_back(bytes.substr(i, ende - i - (cr ? 1 : 0)));
        i = ende + 1;
    }
    zeilen.erase(std::find(zeilen.begin(), zeilen.end(), "EOF"), zeilen.end());
    if (ARTIKEL.Anzahl() != static_cast<int>(zeilen.size())) {
        return std::to_string(ARTIKEL.Anzahl()) + " statt " + std::to_string(zeilen.size());
    }
    for (int n = 1; n <= ARTIKEL.Anzahl(); ++n) {
        const Artikel& satz = ARTIKEL[n];
        const std::string& zeile = zeilen[static_cast<std::size_t>(n) - 1];
        const bool kurz = zeile.size() < 3;
        const std::string trenner = kurz ? zeile : zeile.substr(zeile.size() - 3);
        const auto feld = [&](int i) { return kurz ? std::string() : Modellfeld(zeile, trenner, i); };
        const std::array<std::string, 5> erwartet{zeile, trenner, feld(0), feld(1), feld(2)};
        const std::array<std::string_view, 5> gelesen{satz.Zeile, satz.Trenner, satz.Leistung, satz.Preis,
                                                      satz.Barcode};
        for (std::size_t i = 0; i < erwartet.size(); ++i) {
            if (nach_ansi(gelesen[i]).bytes != erwartet[i]) {
                return "Satz " + satz.Nummer + ", Text " + std::to_string(i) + ": \"" +
                       std::string(gelesen[i]) + "\"";
            }
        }
    }
    const bool ende = ARTIKEL.Anzahl() == 12000 || ARTIKEL[ARTIKEL.Anzahl() + 1].Zeile == "EOF";
    return ende ? "" : "kein Ende";
}

} // namespace quittika
