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
    struct Fall {
        const char* text;
        const char* bytes;
        std::size_t ersetzt;
    };
    const Fall faelle[] = {
        {"Łódź",
         "L\xF3"
         "dz",
         2},
        {"a\u0308", "\xE4", 0},
        {"c\u0323", "c", 1},
        {"\u201Ezitat\u201C \u2013", "\x84zitat\x93 \x96", 0},
        {"ﬁx", "fix", 1},
        {"漢字", "??", 2},
        {"\xFFx", "?x", 1},
        {"5\u202F€", "5 \x80", 1},
    };
    for (const Fall& f : faelle) {
        const Ansi ansi = nach_ansi(f.text);
        EXPECT_EQ(ansi.bytes, f.bytes) << f.text;
        EXPECT_EQ(ansi.ersetzt, f.ersetzt) << f.text;
    }
}

TEST(Datum, WirdGelesenWieManEsTippt) {
    const std::pair<const char*, const char*> faelle[] = {
        {"05.03.2008", "05.03.2008"},       {" 5.3.08 ", "05.03.2008"}, {"1.1.30", "01.01.1930"},
        {"2008-03-05", "05.03.2008"},       {"5/3/2008", "05.03.2008"}, {"5-3-2008", "05.03.2008"},
        {"5. März 2008", "05.03.2008"},     {"5 dez 99", "05.12.1999"}, {"29.02.2008", "29.02.2008"},
        {"05.03.2008 10:20", "05.03.2008"},
    };
    for (const auto& [text, erwartet] : faelle) {
        const auto datum = datum_lesen(text);
        ASSERT_TRUE(datum) << text;
        EXPECT_EQ(datum_text(*datum), erwartet) << text;
    }
    for (const char* keines :
         {"", "31.02.2008", "29.02.2007", "morgen", "5.3", "5.3.", "0.1.2008", "1.13.2008", "5.3.20080",
          "5.3-2008", "5.3.2008 25:00", "5.3.2008x", "99999999999.1.2008", "5. Quark 2008"}) {
        EXPECT_FALSE(datum_lesen(keines)) << keines;
    }
}

TEST(Datum, SekundenHinUndZurueck) {
    const auto z = iso_lesen("2008-12-31T23:59:59");
    ASSERT_TRUE(z);
    EXPECT_EQ(datum_zeit_text(zeitpunkt_aus(sekunden_aus(*z) + 1)), "01.01.2009 00:00:00");
    EXPECT_EQ(sekunden_aus(*iso_lesen("1970-01-02T00:00:01")), 86401);
    EXPECT_FALSE(iso_lesen("2008-02-30T00:00:00"));
    EXPECT_FALSE(iso_lesen("2008-02-03 00:00:00"));
}

} // namespace
} // namespace quittika
