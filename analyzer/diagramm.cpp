#include "analyzer/diagramm.hpp"

#include "platform/datum.hpp"
#include "platform/zahlen.hpp"

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

namespace quittika {

namespace {

constexpr int kMonate = 12;
constexpr int kLueckenlos = 20 * kMonate;

void aufnehmen(Saeule& saeule, const Rechnungstabelle& daten, int zeile) {
    Diagrammteil& teil = daten.bezahlt(zeile) ? saeule.bezahlt : saeule.unbezahlt;
    const std::string& brutto = daten.text(rohdatum::kBrutto, zeile);
    if (BETRAG_LESEN(brutto)) {
        teil.summe.dazu(brutto);
    }
    teil.rechnungen.push_back(zeile);
}

/// Months since the year 0.
std::optional<int> monatszahl(std::string_view datum) {
    const auto tag = datum_lesen(datum);
    return tag ? std::optional(tag->jahr * kMonate + tag->monat - 1) : std::nullopt;
}

std::string monatsname(int monat) {
    const std::string nummer = std::to_string(monat % kMonate + 1);
    return (nummer.size() < 2 ? "0" : "") + nummer + "." + std::to_string(monat / kMonate);
}

void luecken_fuellen(std::map<int, Saeule>& monate) {
    if (monate.empty() || monate.rbegin()->first - monate.begin()->first > kLueckenlos) {
        return;
    }
    const int letzter = monate.rbegin()->first;
    for (int monat = monate.begin()->first; monat < letzter; ++monat) {
        monate.try_emplace(monat);
    }
}

constexpr int kUngemahnt = -1;
constexpr int kUnbekannt = 100;

int mahnstufe(const Rechnungstabelle& daten, int zeile) {
    if (!daten.abgemahnt(zeile)) {
        return kUngemahnt;
    }
    const auto stufe = double_versuch(daten.text(rohdatum::kMahnstufe, zeile));
    return stufe && *stufe >= 0 && *stufe < kUnbekannt ? static_cast<int>(*stufe) : kUnbekannt;
}

std::string stufenname(int stufe) {
    switch (stufe) {
    case kUngemahnt:
        return "nicht gemahnt";
    case 0:
        return "erinnert";
    case kUnbekannt:
        return "Stufe unbekannt";
    default:
        return std::to_string(stufe) + ". Mahnung";
    }
}

} // namespace

Monatsbild NACH_MONATEN(const Rechnungstabelle& daten) {
    std::map<int, Saeule> monate;
    Saeule ohne_datum{"ohne Datum", {}, {}};
    Monatsbild bild;
    for (int zeile = 0; zeile < daten.anzahl(); ++zeile) {
        const auto monat = monatszahl(daten.text(rohdatum::kDatum, zeile));
        aufnehmen(monat ? monate[*monat] : ohne_datum, daten, zeile);
        bild.ohne_datum += monat ? 0 : 1;
    }
    luecken_fuellen(monate);
    for (auto& [monat, saeule] : monate) {
        saeule.name = monatsname(monat);
        bild.saeulen.push_back(std::move(saeule));
    }
    if (bild.ohne_datum > 0) {
        bild.saeulen.push_back(std::move(ohne_datum));
    }
    return bild;
}

std::vector<Saeule> NACH_MAHNSTUFEN(const Rechnungstabelle& daten) {
    std::map<int, Saeule> stufen;
    for (int zeile = 0; zeile < daten.anzahl(); ++zeile) {
        if (!daten.bezahlt(zeile)) {
            aufnehmen(stufen[mahnstufe(daten, zeile)], daten, zeile);
        }
    }
    std::vector<Saeule> saeulen;
    for (auto& [stufe, saeule] : stufen) {
        saeule.name = stufenname(stufe);
        saeulen.push_back(std::move(saeule));
    }
    return saeulen;
}

} // namespace quittika
