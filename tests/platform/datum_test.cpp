#include "platform/datum.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace quittika {
namespace {

TEST(Datumsgrenzen, JahrhundertUndBlanks) {
    struct Fall {
        const char* name;
        const char* text;
        std::optional<Zeitpunkt> erwartet;
    };
    const Fall faelle[] = {
        {"last year of this century", "31.12.29", Zeitpunkt{2029, 12, 31, 0, 0, 0}},
        {"first year of the last century", "01.01.30", Zeitpunkt{1930, 1, 1, 0, 0, 0}},
        {"blanks behind the points", "5. 3. 2008", Zeitpunkt{2008, 3, 5, 0, 0, 0}},
        {"a blank before the year only", "5.3. 08", Zeitpunkt{2008, 3, 5, 0, 0, 0}},
        {"time behind a date with blanks", "5. 3. 2008 21:45:07", Zeitpunkt{2008, 3, 5, 21, 45, 7}},
        {"month name in capitals", "1. MÄRZ 2008", Zeitpunkt{2008, 3, 1, 0, 0, 0}},
        {"a month there is not", "1. Quark 2008", std::nullopt},
        {"abbreviated month", "1 Jan 2008", Zeitpunkt{2008, 1, 1, 0, 0, 0}},
        {"abbreviated month with a point", "1. Jan. 2008", Zeitpunkt{2008, 1, 1, 0, 0, 0}},
        {"name with an umlaut", "1. märz 2008 7:05", Zeitpunkt{2008, 3, 1, 7, 5, 0}},
        {"leap day of a full century", "29.02.2000", Zeitpunkt{2000, 2, 29, 0, 0, 0}},
        {"no leap day in 1900", "29.02.1900", std::nullopt},
        {"April has 30 days", "31.04.2008", std::nullopt},
        {"year first, month out of range", "2008-13-01", std::nullopt},
        {"blanks around dashes", "5- 3-2008", std::nullopt},
        {"day and time without a year", "5. 10:20", std::nullopt},
        {"minute out of range", "5.3.2008 10:60", std::nullopt},
        {"time that stops at the mark", "5.3.2008 10:", std::nullopt},
        {"only a point", ".", std::nullopt},
        {"point and blanks", "5.   ", std::nullopt},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(datum_lesen(f.text), f.erwartet) << f.name << ": " << f.text;
    }
}

TEST(Datumsgrenzen, SekundenVorUndNachDerEpoche) {
    const std::pair<const char*, std::int64_t> faelle[] = {
        {"1970-01-01T00:00:00", 0},
        {"1969-12-31T23:59:59", -1},
        {"2000-02-29T12:00:00", 951825600},
        {"2008-11-22T21:45:00", 1227390300},
    };
    for (const auto& [text, sekunden] : faelle) {
        const auto z = iso_lesen(text);
        ASSERT_TRUE(z) << text;
        EXPECT_EQ(sekunden_aus(*z), sekunden) << text;
        EXPECT_EQ(zeitpunkt_aus(sekunden), *z) << text;
    }
    EXPECT_LT(*iso_lesen("2008-11-22T21:44:59"), *iso_lesen("2008-11-22T21:45:00"));
    EXPECT_EQ(zeit_text(*iso_lesen("2008-11-22T01:05:09")), "01:05:09");
}

} // namespace
} // namespace quittika
