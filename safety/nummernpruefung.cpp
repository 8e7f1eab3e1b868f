#include "safety/nummernpruefung.hpp"

#include "analyzer/rechnungsauszug.hpp"
#include "invoice/file/dateifelder.hpp"
#include "platform/datei.hpp"
#include "platform/dateianfang.hpp"
#include "platform/dateisuche.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/verzeichnis.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <map>
#include <set>
#include <system_error>
#include <tuple>
#include <utility>

namespace quittika {

namespace {

bool ist_ziffer(char c) {
    return c >= '0' && c <= '9';
}

/// The runs of digits of a text.
std::vector<std::string> zifferngruppen(std::string_view text) {
    std::vector<std::string> gruppen;
    bool darin = false;
    for (const char c : text) {
        if (ist_ziffer(c)) {
            if (!darin) {
                gruppen.emplace_back();
            }
            gruppen.back() += c;
        }
        darin = ist_ziffer(c);
    }
    return gruppen;
}

std::string verbunden(const std::vector<std::string>& gruppen) {
    std::string text;
    for (const std::string& gruppe : gruppen) {
        text += (text.empty() ? "" : "-") + gruppe;
    }
    return text;
}

/// What stands behind the last digit, small and without blanks; other marks than letters tell nothing.
std::string zusatz_von(std::string_view text) {
    std::string zusatz;
    for (const char c : text.substr(text.find_last_of("0123456789") + 1)) {
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) {
            zusatz += static_cast<char>(c | 0x20);
        }
    }
    return zusatz;
}

std::string mit_stellen(std::int64_t zahl, std::size_t stellen) {
    std::string ziffern = std::to_string(zahl);
    return std::string(stellen - std::min(stellen, ziffern.size()), '0') + ziffern;
}

std::string mit_reihe(const std::string& reihe, const std::string& zahl) {
    return reihe.empty() ? zahl : reihe + "-" + zahl;
}

/// A series with the invoices of each of its numbers.
struct Reihe {
    std::map<std::int64_t, std::vector<std::size_t>> zahlen;
    std::size_t stellen = 1;
};

void luecken_suchen(const std::string& name, const Reihe& reihe, std::vector<Nummernluecke>& luecken) {
    std::int64_t erwartet = reihe.zahlen.begin()->first;
    for (const auto& [zahl, rechnungen] : reihe.zahlen) {
        if (zahl > erwartet) {
            luecken.push_back({name, erwartet, zahl - 1, reihe.stellen});
        }
        erwartet = zahl + 1;
    }
}

std::vector<std::string> dateien_mit_unterordnern(const std::string& ordner, const std::string& ohne) {
    std::vector<std::string> dateien = DATEIEN_SUCHEN(ordner, "*.qk8");
    std::set<std::string> unterordner;
    std::error_code fehler;
    const auto darf = std::filesystem::directory_options::skip_permission_denied;
    for (std::filesystem::recursive_directory_iterator i(ordner, darf, fehler), ende; !fehler && i != ende;
         i.increment(fehler)) {
        std::error_code egal;
        const bool darunter = i->is_directory(egal) && !i->is_symlink(egal);
        if (i->path().filename().string().front() == '.' ||
            (darunter && IST_DIESELBE_DATEI(i->path().string(), ohne))) {
            i.disable_recursion_pending();
        } else if (darunter) {
            unterordner.insert(i->path().string().substr(ordner.size() + (ordner.back() == '/' ? 0 : 1)));
        }
    }
    for (const std::string& name : unterordner) {
        try {
            for (const std::string& datei : DATEIEN_SUCHEN(ordner + "/" + name, "*.qk8")) {
                dateien.push_back(name + "/" + datei);
            }
        } catch (const Laufzeitfehler&) {
            dateien.push_back(name); // told among what cannot be read
        }
    }
    return dateien;
}

Nummernzeile zeile_lesen(Dateianfang& leser, const std::string& ordner, const std::string& datei) {
    constexpr int kTitel = 1;
    constexpr int kDatum = 2;
    constexpr int kKundenname = 3;
    Rechnungszeilen ZEILEN;
    leser.lesen(ordner + "/" + datei, [&ZEILEN](std::string_view bytes) { return ZEILEN.lesen(bytes); });
    return {datei, aus_ansi(ZEILEN[kTitel]), aus_ansi(ZEILEN[dateizeile::kNummer]), aus_ansi(ZEILEN[kDatum]),
            aus_ansi(ZEILEN[kKundenname])};
}

} // namespace

std::optional<Rechnungsnummer> RECHNUNGSNUMMER_LESEN(std::string_view titel, std::string_view nummer) {
    constexpr std::size_t kLaengste = 18; // digits of a number of 64 bits
    std::vector<std::string> gruppen = zifferngruppen(titel);
    std::string_view quelle = titel;
    if (const auto eigene = zifferngruppen(nummer); !eigene.empty()) {
        gruppen.insert(gruppen.end(), eigene.begin(), eigene.end());
        quelle = nummer;
    }
    if (gruppen.empty() || gruppen.back().size() > kLaengste) {
        return std::nullopt;
    }
    const std::string ziffern = gruppen.back();
    gruppen.pop_back();
    std::int64_t zahl = 0;
    std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl);
    if (zahl == 0) {
        return std::nullopt;
    }
    return Rechnungsnummer{verbunden(gruppen), zahl, zusatz_von(quelle), ziffern.size()};
}

Nummernbefund NUMMERN_PRUEFEN(const std::vector<Nummernzeile>& zeilen, std::optional<std::int64_t> zaehler) {
    using Schluessel = std::tuple<std::string, std::int64_t, std::string>;
    Nummernbefund befund;
    std::map<std::string, Reihe> reihen;
    std::map<Schluessel, Nummerndoppel> gleiche;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const auto nummer = RECHNUNGSNUMMER_LESEN(zeilen[i].titel, zeilen[i].nummer);
        if (!nummer) {
            befund.ohne_nummer.push_back(i);
            continue;
        }
        Reihe& reihe = reihen[nummer->reihe];
        reihe.zahlen[nummer->zahl].push_back(i);
        reihe.stellen = std::max(reihe.stellen, nummer->stellen);
        Nummerndoppel& doppel = gleiche[{nummer->reihe, nummer->zahl, nummer->zusatz}];
        doppel.nummer = mit_reihe(nummer->reihe, mit_stellen(nummer->zahl, nummer->stellen)) + nummer->zusatz;
        doppel.rechnungen.push_back(i);
    }
    for (const auto& [name, reihe] : reihen) {
        luecken_suchen(name, reihe, befund.luecken);
    }
    for (auto& [schluessel, doppel] : gleiche) {
        if (doppel.rechnungen.size() > 1) {
            befund.doppelte.push_back(std::move(doppel));
        }
    }
    const auto gezaehlt = reihen.find("");
    if (gezaehlt == reihen.end()) {
        return befund;
    }
    const auto& zahlen = gezaehlt->second.zahlen;
    befund.hoechste = zahlen.rbegin()->first;
    if (!zaehler) {
        return befund;
    }
    if (const auto vergeben = zahlen.find(*zaehler); vergeben != zahlen.end()) {
        befund.naechste_vergeben = vergeben->second.front();
    }
    if (*zaehler > *befund.hoechste + 1) {
        befund.luecken.push_back({"", *befund.hoechste + 1, *zaehler - 1, gezaehlt->second.stellen});
    }
    return befund;
}

std::string LUECKENTEXT(const Nummernluecke& luecke) {
    const std::string von = mit_reihe(luecke.reihe, mit_stellen(luecke.von, luecke.stellen));
    if (luecke.von == luecke.bis) {
        return von;
    }
    return von + " bis " + mit_reihe(luecke.reihe, mit_stellen(luecke.bis, luecke.stellen)) + " (" +
           std::to_string(luecke.bis - luecke.von + 1) + " Nummern)";
}

Nummernliste NUMMERN_EINLESEN(const std::string& ordner, bool mit_unterordnern, const std::string& ohne,
                              ProgressDisplay& fortschritt) {
    const std::string ort = systempfad(ordner);
    const std::vector<std::string> dateien =
        mit_unterordnern ? dateien_mit_unterordnern(ort, ohne) : DATEIEN_SUCHEN(ort, "*.qk8");
    Nummernliste liste;
    Dateianfang leser;
    std::size_t gelesen = 0;
    for (const std::string& datei : dateien) {
        try {
            liste.zeilen.push_back(zeile_lesen(leser, ort, datei));
        } catch (const Laufzeitfehler& fehler) {
            liste.unlesbar.push_back(datei + ": " + fehlertext(fehler.nummer()));
        }
        fortschritt.update(++gelesen, dateien.size(), datei);
        if (gelesen < dateien.size() && fortschritt.aborted()) {
            liste.abgebrochen = true;
            break;
        }
    }
    return liste;
}

} // namespace quittika
