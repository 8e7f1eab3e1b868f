#include "safety/sicherungsmerker.hpp"

#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "safety/datensicherung.hpp"
#include "safety/sicherungsnamen.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr std::size_t kHoechstens = 1U << 20U; // bytes
constexpr std::string_view kLetzte = "Letzte Datensicherung: ";
constexpr std::string_view kErinnert = "Erinnert: ";
constexpr std::string_view kZiel = "Zielordner: ";
constexpr std::string_view kOrdner = "Rechnungsordner: ";

void zeile_lesen(Sicherungsmerker& merker, std::string_view zeile) {
    const auto wert = [zeile](std::string_view anfang) { return zeile.substr(anfang.size()); };
    if (beginnt_mit(zeile, kLetzte)) {
        merker.letzte = iso_lesen(wert(kLetzte));
    } else if (beginnt_mit(zeile, kErinnert)) {
        merker.erinnert = iso_lesen(wert(kErinnert));
    } else if (beginnt_mit(zeile, kZiel)) {
        merker.ziel = NAME_LESEN(wert(kZiel));
    } else if (beginnt_mit(zeile, kOrdner)) {
        merker.ordner.push_back(NAME_LESEN(wert(kOrdner)));
    }
}

} // namespace

Sicherungsmerker Sicherungsmerker::LESEN(const Programmverzeichnis& verzeichnis) {
    Sicherungsmerker merker;
    try {
        zeilen_teilen(bytes_lesen(verzeichnis.pfad(std::string("\\") + kMerkerdatei), kHoechstens),
                      [&merker](std::string_view zeile) {
                          zeile_lesen(merker, zeile);
                          return true;
                      });
        merker.vorhanden = true;
    } catch (const Laufzeitfehler&) {
        merker.vorhanden = datei_vorhanden(verzeichnis.pfad(std::string("\\") + kMerkerdatei));
    }
    return merker;
}

void Sicherungsmerker::SCHREIBEN(const Programmverzeichnis& verzeichnis) const {
    std::string text;
    const auto zeile = [&text](std::string_view anfang, const std::string& wert) {
        text.append(anfang).append(wert).append("\r\n");
    };
    if (letzte) {
        zeile(kLetzte, ISO_TEXT(*letzte));
    }
    if (erinnert) {
        zeile(kErinnert, ISO_TEXT(*erinnert));
    }
    if (!ziel.empty()) {
        zeile(kZiel, NAME_SCHREIBEN(ziel));
    }
    for (const std::string& pfad : ordner) {
        zeile(kOrdner, NAME_SCHREIBEN(pfad));
    }
    datei_ersetzen(verzeichnis.pfad(std::string("\\") + kMerkerdatei), text);
}

std::string SICHERUNGSERINNERUNG(const Programmverzeichnis& verzeichnis, const Zeitpunkt& jetzt) {
    constexpr std::int64_t kFrist = 30LL * 24 * 60 * 60; // seconds
    Sicherungsmerker merker = Sicherungsmerker::LESEN(verzeichnis);
    const bool benutzt = datei_vorhanden(verzeichnis.pfad("\\prog_n.cfg"));
    if (!merker.vorhanden && !benutzt) {
        return {};
    }
    const auto seit = std::max(merker.letzte, merker.erinnert); // nothing is less than any time
    if (seit && sekunden_aus(jetzt) - sekunden_aus(*seit) <= kFrist) {
        return {};
    }
    merker.erinnert = jetzt;
    try {
        merker.SCHREIBEN(verzeichnis);
    } catch (const Laufzeitfehler&) {
        return {}; // else the same would be told at each start
    }
    if (!seit) {
        return {}; // from now on the days are counted
    }
    return merker.letzte ? "Die letzte Datensicherung ist vom " + datum_text(*merker.letzte) +
                               ": bitte sichern Sie wieder (Menü Extras)."
                         : "Es gibt noch keine Datensicherung: bitte sichern Sie Ihre Daten (Menü Extras).";
}

} // namespace quittika
