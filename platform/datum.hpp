#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quittika {

/// A local date and time of day.
struct Zeitpunkt {
    int jahr = 1899;
    int monat = 12;
    int tag = 30;
    int stunde = 0;
    int minute = 0;
    int sekunde = 0;
    auto operator<=>(const Zeitpunkt&) const = default;
};

/// Whether there is such a day (years 100 to 9999).
bool datum_gueltig(int jahr, int monat, int tag);

/// Reads a date as people type it: 1.2.2008, 1. 2. 2008, 01.02.08 (00 to 29 is 20xx), 2008-02-01, 1/2/2008,
/// 1-2-2008, "1. Februar 2008", with blanks around and a time behind it. Nothing for everything else.
std::optional<Zeitpunkt> datum_lesen(std::string_view text);

std::string datum_text(const Zeitpunkt& z);      ///< "22.11.2008"
std::string zeit_text(const Zeitpunkt& z);       ///< "21:45:00"
std::string datum_zeit_text(const Zeitpunkt& z); ///< "22.11.2008 21:45:00"

/// Reads "2008-11-22T21:45:00".
std::optional<Zeitpunkt> iso_lesen(std::string_view text);

/// Seconds since 1 January 1970, 00:00:00 of the same local time, and back.
std::int64_t sekunden_aus(const Zeitpunkt& z);
Zeitpunkt zeitpunkt_aus(std::int64_t sekunden);

} // namespace quittika
