#include "platform/datum.hpp"

#include "platform/text.hpp"

#include <array>
#include <chrono>
#include <cstdio>
#include <vector>

namespace quittika {

namespace {

constexpr std::array<std::string_view, 12> kMonate{"JANUAR",    "FEBRUAR", "MÄRZ",     "APRIL",
                                                   "MAI",       "JUNI",    "JULI",     "AUGUST",
                                                   "SEPTEMBER", "OKTOBER", "NOVEMBER", "DEZEMBER"};

bool ziffer(char c) {
    return c >= '0' && c <= '9';
}

/// A number of at most four digits at `i`, which moves behind it; -1 if none stands there.
int zahl(std::string_view text, std::size_t& i) {
    int wert = 0;
    const std::size_t anfang = i;
    while (i < text.size() && ziffer(text[i]) && i - anfang < 5) {
        wert = wert * 10 + (text[i++] - '0');
    }
    return i == anfang || i - anfang > 4 ? -1 : wert;
}

/// Two digits mean a year of this century up to 29, else of the last one.
int volles_jahr(int jahr, std::size_t stellen) {
    if (stellen > 2) {
        return jahr;
    }
    return jahr < 30 ? 2000 + jahr : 1900 + jahr;
}

std::optional<Zeitpunkt> mit_tag(int jahr, int monat, int tag) {
    if (!datum_gueltig(jahr, monat, tag)) {
        return std::nullopt;
    }
    return Zeitpunkt{jahr, monat, tag, 0, 0, 0};
}

/// Month of a German name, or of its first three letters; 0 for another word.
int monat_von(std::string_view wort) {
    const std::string gross = grossbuchstaben(wort);
    for (std::size_t m = 0; m < kMonate.size(); ++m) {
        if (gross == kMonate[m] || gross == links(kMonate[m], 3) ||
            (m == 2 && (gross == "MAERZ" || gross == "MRZ"))) {
            return static_cast<int>(m) + 1;
        }
    }
    return 0;
}

void blanks(std::string_view text, std::size_t& i) {
    while (i < text.size() && text[i] == ' ') {
        ++i;
    }
}

/// Place behind the separator at `i`, and behind the blanks that follow a point.
std::size_t hinter_trenner(std::string_view text, std::size_t i) {
    const bool punkt = text[i++] == '.';
    if (punkt) {
        blanks(text, i);
    }
    return i;
}

/// Hours and minutes, and seconds if they stand there, up to the end of the text.
bool zeit_lesen(std::string_view text, std::size_t i, Zeitpunkt& z) {
    blanks(text, i);
    if (i == text.size()) {
        return true;
    }
    std::array<int, 3> teile{0, 0, 0};
    for (std::size_t k = 0; k < 3; ++k) {
        teile[k] = zahl(text, i);
        if (teile[k] < 0) {
            return false;
        }
        if (i == text.size() && k > 0) {
            break;
        }
        if (k < 2 && (i >= text.size() || text[i++] != ':')) {
            return false;
        }
    }
    z.stunde = teile[0];
    z.minute = teile[1];
    z.sekunde = teile[2];
    return i == text.size() && z.stunde < 24 && z.minute < 60 && z.sekunde < 60;
}

/// "1. Februar 2008": day, name, year; `i` stands behind the day.
std::optional<Zeitpunkt> mit_monatsnamen(std::string_view text, int tag, std::size_t& i) {
    if (i < text.size() && text[i] == '.') {
        ++i;
    }
    blanks(text, i);
    const std::size_t anfang = i;
    while (i < text.size() && text[i] != ' ' && text[i] != '.' && !ziffer(text[i])) {
        ++i;
    }
    const int monat = monat_von(text.substr(anfang, i - anfang));
    if (i < text.size() && text[i] == '.') {
        ++i;
    }
    blanks(text, i);
    const std::size_t jahr_anfang = i;
    const int jahr = zahl(text, i);
    return monat == 0 || jahr < 0 ? std::nullopt : mit_tag(volles_jahr(jahr, i - jahr_anfang), monat, tag);
}

} // namespace

bool datum_gueltig(int jahr, int monat, int tag) {
    if (jahr < 100 || jahr > 9999 || monat < 1 || monat > 12 || tag < 1) {
        return false;
    }
    const std::chrono::year_month_day d{std::chrono::year(jahr),
                                        std::chrono::month(static_cast<unsigned>(monat)),
                                        std::chrono::day(static_cast<unsigned>(tag))};
    return tag <= 31 && d.ok();
}

std::optional<Zeitpunkt> datum_lesen(std::string_view text) {
    const std::string ohne_rand = gekuerzt(text);
    const std::string_view t = ohne_rand;
    std::size_t i = 0;
    const int erste = zahl(t, i);
    const std::size_t stellen = i;
    if (erste < 0 || i >= t.size()) {
        return std::nullopt;
    }
    const char trenner = t[i];
    std::optional<Zeitpunkt> ergebnis;
    const std::size_t hinter = hinter_trenner(t, i);
    const bool ziffern_folgen = hinter < t.size() && ziffer(t[hinter]);
    if ((trenner == '.' || trenner == '/' || trenner == '-') && ziffern_folgen) {
        i = hinter;
        const int zweite = zahl(t, i);
        if (i >= t.size() || t[i] != trenner) {
            return std::nullopt;
        }
        i = hinter_trenner(t, i);
        const std::size_t jahr_anfang = i;
        const int dritte = zahl(t, i);
        if (zweite < 0 || dritte < 0) {
            return std::nullopt;
        }
        ergebnis = stellen == 4 ? mit_tag(erste, zweite, dritte)
                                : mit_tag(volles_jahr(dritte, i - jahr_anfang), zweite, erste);
    } else {
        ergebnis = mit_monatsnamen(t, erste, i);
    }
    if (!ergebnis || !zeit_lesen(t, i, *ergebnis)) {
        return std::nullopt;
    }
    return ergebnis;
}

std::string datum_text(const Zeitpunkt& z) {
    std::array<char, 48> puffer{};
    std::snprintf(puffer.data(), puffer.size(), "%02d.%02d.%04d", z.tag, z.monat, z.jahr);
    return puffer.data();
}

std::string zeit_text(const Zeitpunkt& z) {
    std::array<char, 48> puffer{};
    std::snprintf(puffer.data(), puffer.size(), "%02d:%02d:%02d", z.stunde, z.minute, z.sekunde);
    return puffer.data();
}

std::string datum_zeit_text(const Zeitpunkt& z) {
    return datum_text(z) + " " + zeit_text(z);
}

std::optional<Zeitpunkt> iso_lesen(std::string_view text) {
    constexpr std::string_view kMuster = "0000-00-00T00:00:00";
    if (text.size() != kMuster.size()) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (kMuster[i] == '0' ? !ziffer(text[i]) : text[i] != kMuster[i]) {
            return std::nullopt;
        }
    }
    const auto wert = [&](std::size_t stelle, std::size_t laenge) {
        int ergebnis = 0;
        for (const char c : text.substr(stelle, laenge)) {
            ergebnis = ergebnis * 10 + (c - '0');
        }
        return ergebnis;
    };
    const Zeitpunkt z{wert(0, 4), wert(5, 2), wert(8, 2), wert(11, 2), wert(14, 2), wert(17, 2)};
    const bool gueltig =
        datum_gueltig(z.jahr, z.monat, z.tag) && z.stunde < 24 && z.minute < 60 && z.sekunde < 60;
    return gueltig ? std::optional(z) : std::nullopt;
}

std::int64_t sekunden_aus(const Zeitpunkt& z) {
    const std::chrono::sys_days tag = std::chrono::year_month_day{
        std::chrono::year(z.jahr), std::chrono::month(static_cast<unsigned>(z.monat)),
        std::chrono::day(static_cast<unsigned>(z.tag))};
    constexpr std::int64_t kStunde = 3600;
    constexpr std::int64_t kTag = 24 * kStunde;
    return tag.time_since_epoch().count() * kTag + z.stunde * kStunde + z.minute * std::int64_t{60} +
           z.sekunde;
}

Zeitpunkt zeitpunkt_aus(std::int64_t sekunden) {
    const std::chrono::sys_seconds zeit{std::chrono::seconds(sekunden)};
    const auto tag = std::chrono::floor<std::chrono::days>(zeit);
    const std::chrono::year_month_day d{tag};
    const std::chrono::hh_mm_ss uhr{zeit - tag};
    return {static_cast<int>(d.year()),
            static_cast<int>(static_cast<unsigned>(d.month())),
            static_cast<int>(static_cast<unsigned>(d.day())),
            static_cast<int>(uhr.hours().count()),
            static_cast<int>(uhr.minutes().count()),
            static_cast<int>(uhr.seconds().count())};
}

} // namespace quittika
