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
        {"Nguyễn Thị", "Nguy\xEAn Thi", 2},
        {"Ĳssel ŉ", "IJssel 'n", 2},
        {"Ǆamija ǌ",
         "D\x8E"
         "amija nj",
         2},
        {"Ǖ ǣ ſ", "\xDC \xE6 s", 3},
        {"Y\u0308", "\x9F", 0},
        {"7\u2034", "7'''", 1},
        {"a\u200Fb", "ab", 1},
        {"ƿ", "?", 1},
    };
    for (const Fall& f : faelle) {
        const Ansi ansi = nach_ansi(f.text);
        EXPECT_EQ(ansi.bytes, f.bytes) << f.text;
        EXPECT_EQ(ansi.ersetzt, f.ersetzt) << f.text;
    }
}

TEST(Text, KaputtesUtf8IstKeinAnderesZeichen) {
    struct Fall {
        const char* name;
        const char* bytes;
        std::size_t zeichen;
        const char* ansi;
    };
    const Fall faelle[] = {
        {"overlong slash", "\xE0\x80\xAF", 3, "???"},
        {"overlong NUL", "\xC0\x80", 2, "??"},
        {"surrogate", "\xED\xA0\x80", 3, "???"},
        {"beyond the last character", "\xF4\x90\x80\x80", 4, "????"},
        {"cut off", "a\xE2\x82", 3, "a??"},
        {"lone continuation", "\x80z", 2, "?z"},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(zeichenzahl(f.bytes), f.zeichen) << f.name;
        EXPECT_EQ(nach_ansi(f.bytes).bytes, f.ansi) << f.name;
        EXPECT_EQ(links(f.bytes, 1) + ab(f.bytes, 1), f.bytes) << f.name;
    }
}

} // namespace
} // namespace quittika
