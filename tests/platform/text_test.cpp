#include "platform/datum.hpp"
#include "platform/text.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Text, ZaehltZeichenUndNichtBytes) {
    EXPECT_EQ(zeichenzahl("Größe €"), 7U);
    EXPECT_EQ(zeichenzahl("\xFF\xC3"), 2U) << "bytes that are no text count one each";
    EXPECT_EQ(links("Größe", 3), "Grö");
    EXPECT_EQ(rechts("Größe", 2), "ße");
    EXPECT_EQ(ab("Größe", 2), "öße");
    EXPECT_EQ(links("ab", 5), "ab");
    EXPECT_EQ(rechtsbuendig("ü", 3), "  ü");
    EXPECT_EQ(linksbuendig("lang", 2), "lang");
    EXPECT_EQ(gekuerzt("  a b "), "a b");
    EXPECT_EQ(grossbuchstaben("straße äöü÷"), "STRAßE ÄÖÜ÷");
    EXPECT_EQ(ZEICHENERSETZEN("1.234.5", ".", ","), "1,234,5");
    EXPECT_EQ(ersetzen("a#$§$#b#$§$#", "#$§$#", "\r\n"), "a\r\nb\r\n");
}

TEST(Ansi, JedesByteKommtZurueck) {
    std::string alle;
    for (int i = 0; i < 256; ++i) {
        alle += static_cast<char>(i);
    }
    const Ansi zurueck = nach_ansi(aus_ansi(alle));
    EXPECT_EQ(zurueck.bytes, alle);
    EXPECT_EQ(zurueck.ersetzt, 0U);
    EXPECT_EQ(aus_ansi("\x80\xE4"), "€ä");
}

TEST(Ansi, WasFehltWirdDasNaechste) {
    const struct {
        const char* text;
        const char* bytes;
        std::size_t ersetzt;
    } faelle[] = {
        {"Łódź", "L\363dz", 2},
        {"a\u0308", "\xE4", 0},
        {"c\u0323", "c", 1},
        {"\u201Ezitat\u201C \u2013", "\x84zitat\x93 \x96", 0},
        {"ﬁx", "fix", 1},
        {"漢字", "??", 2},
        {"\xFFx", "?x", 1},
        {"5\u202F€", "5 \x80", 1},
        {"Nguyễn Thị", "Nguy\xEAn Thi", 2},
        {"Ĳssel ŉ", "IJssel 'n", 2},
        {"Ǆamija ǌ", "D\216amija nj", 2},
        {"Ǖ ǣ ſ", "\xDC \xE6 s", 3},
        {"Y\u0308", "\x9F", 0},
        {"7\u2034", "7'''", 1},
        {"a\u200Fb", "ab", 1},
        {"ƿ", "?", 1},
    };
    for (const auto& f : faelle) {
        const Ansi ansi = nach_ansi(f.text);
        EXPECT_EQ(ansi.bytes, f.bytes) << f.text;
        EXPECT_EQ(ansi.ersetzt, f.ersetzt) << f.text;
    }
}

TEST(Text, KaputtesUtf8IstKeinAnderesZeichen) {
    const struct {
        const char* name;
        const char* bytes;
        std::size_t zeichen;
        const char* ansi;
    } faelle[] = {
        {"overlong slash", "\xE0\x80\xAF", 3, "???"},
        {"overlong NUL", "\xC0\x80", 2, "??"},
        {"surrogate", "\xED\xA0\x80", 3, "???"},
        {"beyond the last character", "\xF4\x90\x80\x80", 4, "????"},
        {"cut off", "a\xE2\x82", 3, "a??"},
        {"lone continuation", "\x80z", 2, "?z"},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(zeichenzahl(f.bytes), f.zeichen) << f.name;
        EXPECT_EQ(nach_ansi(f.bytes).bytes, f.ansi) << f.name;
        EXPECT_EQ(links(f.bytes, 1) + ab(f.bytes, 1), f.bytes) << f.name;
    }
}

TEST(Datum, WirdGelesenWieManEsTippt) {
    const std::pair<const char*, const char*> faelle[] = {
        {"05.03.2008", "05.03.2008 00:00:00"},        {" 5.3.08 ", "05.03.2008 00:00:00"},
        {"31.12.29", "31.12.2029 00:00:00"},          {"01.01.30", "01.01.1930 00:00:00"},
        {"2008-03-05", "05.03.2008 00:00:00"},        {"5/3/2008", "05.03.2008 00:00:00"},
        {"5-3-2008", "05.03.2008 00:00:00"},          {"5. 3. 2008 21:45:07", "05.03.2008 21:45:07"},
        {"5.3. 08", "05.03.2008 00:00:00"},           {"1. MÄRZ 2008", "01.03.2008 00:00:00"},
        {"1. märz 2008 7:05", "01.03.2008 07:05:00"}, {"5 dez 99", "05.12.1999 00:00:00"},
        {"1. Jan. 2008", "01.01.2008 00:00:00"},      {"29.02.2008", "29.02.2008 00:00:00"},
        {"29.02.2000", "29.02.2000 00:00:00"},
    };
    for (const auto& [text, erwartet] : faelle) {
        const auto datum = datum_lesen(text);
        ASSERT_TRUE(datum) << text;
        EXPECT_EQ(datum_zeit_text(*datum), erwartet);
    }
    const char* const keine[] = {"29.02.1900",   "29.02.2007", "31.04.2008",      "0.1.2008",
                                 "1.13.2008",    "2008-13-01", "5.3.20080",       "5.3-2008",
                                 "5- 3-2008",    "5.3.2008x",  "5.3.2008 25:00",  "5.3.2008 10:60",
                                 "5.3.2008 10:", "5. 10:20",   "99999999999.1.8", "1. Quark 2008"};
    for (const char* keines : keine) {
        EXPECT_FALSE(datum_lesen(keines)) << keines;
    }
    for (const char* keines : {"5.3.", "morgen", "5.   ", ".", ""}) {
        EXPECT_FALSE(datum_lesen(keines)) << keines;
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
