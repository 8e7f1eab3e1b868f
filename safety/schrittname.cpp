#include "safety/schrittname.hpp"

#include <algorithm>
#include <string_view>

namespace quittika {

namespace {

struct Artname {
    std::string_view art; ///< of the row
    const char* dazu;
    const char* weg;
    const char* anders;
};

constexpr Artname kArtnamen[] = {
    {"-", "Zeile hinzufügen", "Zeile löschen", "Zeile ändern"},
    {"K", "Kommentar hinzufügen", "Kommentar löschen", "Kommentar ändern"},
    {"T", "Seitenumbruch einfügen", "Seitenumbruch löschen", "Seitenumbruch ändern"},
};

const Artname& artname(std::string_view art) {
    for (const Artname& name : kArtnamen) {
        if (name.art == art) {
            return name;
        }
    }
    return kArtnamen[0];
}

bool vertauscht(const Zeilentausch& tausch, const Zeilenspalten& frueher, const Zeilenspalten& jetzt) {
    if (tausch.frueher != 2 || tausch.jetzt != 2) {
        return false;
    }
    for (std::size_t s = 0; s < jetzt.size(); ++s) {
        const std::vector<std::string>& spalte = jetzt.at(s);
        if (frueher.at(s)[0] != spalte[tausch.ab + 1] || frueher.at(s)[1] != spalte[tausch.ab]) {
            return false;
        }
    }
    return true;
}

const char* zeilenname(const Zeilentausch& tausch, const Rechnungsstand& jetzt) {
    constexpr const char* kMehrere = "Zeilen ändern";
    if (tausch.frueher > 2 || tausch.jetzt > 2) {
        return kMehrere;
    }
    const Zeilenspalten frueher = FRUEHERE_ZEILEN(tausch);
    if (vertauscht(tausch, frueher, jetzt.zeilen)) {
        return "Zeile verschieben";
    }
    if (tausch.frueher > 1 || tausch.jetzt > 1) {
        return kMehrere;
    }
    const Artname& name =
        artname(tausch.jetzt == 1 ? jetzt.zeilen.front()[tausch.ab] : frueher.front().front());
    return tausch.frueher == 0 ? name.dazu : tausch.jetzt == 0 ? name.weg : name.anders;
}

const char* gruppenname(Feldart art) {
    switch (art) {
    case Feldart::Kunde:
        return "Kunde übernehmen";
    case Feldart::Eingabe:
        return "Artikel übernehmen";
    default:
        return "Angaben ändern";
    }
}

/// Of fields of several kinds the first kind counts: the others follow it.
const char* feldname(const Schritt& zurueck, const std::vector<Standfeld>& felder) {
    const Standfeld* erstes = nullptr;
    bool eines = true;
    for (const auto& [index, text] : zurueck.felder) {
        const Standfeld& feld = felder[index];
        if (erstes == nullptr || feld.art < erstes->art) {
            erstes = &feld;
            eines = true;
        } else if (feld.art == erstes->art) {
            eines = eines && std::string_view(feld.schritt) == erstes->schritt;
        }
    }
    return eines ? erstes->schritt : gruppenname(erstes->art);
}

/// The input line was emptied, or a row fetched over what was typed there.
bool eingabe_verworfen(const Schritt& zurueck, const Rechnungsstand& jetzt,
                       const std::vector<Standfeld>& felder) {
    return std::all_of(zurueck.felder.begin(), zurueck.felder.end(), [&](const auto& feld) {
        return felder[feld.first].art == Feldart::Eingabe && jetzt.felder[feld.first].empty();
    });
}

} // namespace

const char* SCHRITTNAME(const Schritt& zurueck, const Rechnungsstand& jetzt,
                        const std::vector<Standfeld>& felder) {
    if (zurueck.beleg) {
        return jetzt.beleg.ist_datei ? "Rechnung öffnen" : "Neue Rechnung";
    }
    if (!zurueck.zeilen.leer()) {
        return zeilenname(zurueck.zeilen, jetzt);
    }
    return eingabe_verworfen(zurueck, jetzt, felder) ? "Eingabezeile leeren" : feldname(zurueck, felder);
}

} // namespace quittika
