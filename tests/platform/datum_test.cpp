#include "platform/datum.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace quittika {
namespace {

TEST(Datum, WirdGelesenWieManEsTippt) {
    // the date, and the time where there is one; nothing where the text is no date
    const std::pair<const char*, const char*> faelle[] = {
        {"05.03.2008", "05.03.2008 00:00:00"},
        {" 5.3.08 ", "05.03.2008 00:00:00"},
        {"31.12.29", "31.12.2029 00:00:00"},
        {"01.01.30", "01.01.1930 00:00:00"},
        {"2008-03-05", "05.03.2008 00:00:00"},
        {"5/3/2008", "05.03.2008 00:00:00"},
        {"5-3-2008", "05.03.2008 00:00:00"},
        {"5. 3. 2008 21:45:07", "05.03.2008 21:45:07"},
        {"5.3. 08", "05.03.2008 00:00:00"},
        {"1. MÄRZ 2008", "01.03.2008 00:00:00"},
        {"1. märz 2008 7:05", "01.03.2008 07:05:00"},
        {"5 dez 99", "05.12.1999 00:00:00"},
        {"1. Jan. 2008", "01.01.2008 00:00:00"},
        {"29.02.2008", "29.02.2008 00:00:00"},
        {"29.02.2000", "29.02.2000 00:00:00"},
        {"29.02.1900", ""},
        {"29.02.2007", ""},
        {"31.04.2008", ""},
        {"0.1.2008", ""},
        {"1.13.2008", ""},
        {"2008-13-01", ""},
        {"99999999999.1.2008", ""},
        {"5.3.20080", ""},
        {"5.3-2008", ""},
        {"5- 3-2008", ""},
        {"1. Quark 2008", ""},
        {"5.3.", ""},
        {"5. 10:20", ""},
        {"5.3.2008 25:00", ""},
        {"5.3.2008 10:60", ""},
        {"5.3.2008 10:", ""},
        {"5.3.2008x", ""},
        {"morgen", ""},
        {"5.   ", ""},
        {".", ""},
        {"", ""},
    };
    for (const auto& [text, erwartet] : faelle) {
        const auto datum = datum_lesen(text);
        EXPECT_EQ(datum ? datum_zeit_text(*datum) : "", erwartet) << "»" << text << "«";
    }
    EXPECT_EQ(datum_text(*datum_lesen("5.3.2008")), "05.03.2008");
}

TEST(Datum, SekundenVorUndNachDerEpoche) {
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
    EXPECT_FALSE(iso_lesen("2008-02-30T00:00:00"));
    EXPECT_FALSE(iso_lesen("2008-02-03 00:00:00"));
}

} // namespace
} // namespace quittika
