#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/zahlen.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace quittika {
namespace {

std::string nullen(std::size_t anzahl) {
    return std::string(anzahl, '0');
}

TEST(Wertgrenzen, GroesseEntscheidetNichtDieSchreibweise) {
    struct Fall {
        const char* name;
        std::string text;
        int fehler;
        double wert;
    };
    const Fall faelle[] = {
        {"beyond a double", "1e400", 6, 0},
        {"beyond, behind leading zeros", "00" + std::string(400, '9'), 6, 0},
        {"beyond in spite of a negative exponent", "1" + nullen(400) + "e-50", 6, 0},
        {"within by a negative exponent", "1" + nullen(400) + "e-300", 0, 1e100},
        {"below in spite of a positive exponent", "0," + nullen(400) + "1e+5", 0, 0},
        {"below, without an exponent", "0," + nullen(400) + "1", 0, 0},
        {"exponent that no integer holds", "1e99999999999999999999", 6, 0},
        {"the same below", "1e-99999999999999999999", 0, 0},
        {"nothing, however large the exponent", "0e999", 0, 0},
        {"no number", "12a", 13, 0},
        {"longer than any number", nullen(600) + "1", 13, 0},
    };
    for (const Fall& f : faelle) {
        int fehler = 0;
        double wert = 0;
        try {
            wert = nach_double(f.text);
        } catch (const Laufzeitfehler& e) {
            fehler = e.nummer();
        }
        EXPECT_EQ(fehler, f.fehler) << f.name;
        EXPECT_EQ(wert, f.wert) << f.name;
        EXPECT_EQ(ist_numerisch(f.text), f.fehler == 0) << f.name;
    }
}

TEST(Wertgrenzen, BereinigenLaeuftUeberStattNullZuWerden) {
    EXPECT_THROW(dezimal_bereinigt(std::numeric_limits<double>::max()), Laufzeitfehler);
    EXPECT_THROW(dezimal_bereinigt(-std::numeric_limits<double>::max()), Laufzeitfehler);
    EXPECT_EQ(dezimal_bereinigt(1.7e308), 1.7e308);
    EXPECT_EQ(dezimal_bereinigt(5e-324), 5e-324);
}

TEST(Wertgrenzen, KaputtesUtf8IstKeinAnderesZeichen) {
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

TEST(Wertgrenzen, BuchstabenFernerAlphabete) {
    struct Fall {
        const char* text;
        const char* ansi;
    };
    const Fall faelle[] = {
        {"Nguyễn Thị", "Nguy\xEAn Thi"},
        {"Ĳssel ŉ", "IJssel 'n"},
        {"Ǆamija ǌ", "D\x8E"
                     "amija nj"},
        {"Ștefan Țară", "Stefan Tara"},
        {"Ǖ ǣ ſ", "\xDC \xE6 s"},
        {"Y\u0308", "\x9F"},
        {"7\u2034", "7'''"},
        {"a\u200Fb", "ab"},
        {"ƿ", "?"},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(nach_ansi(f.text).bytes, f.ansi) << f.text;
    }
}

} // namespace
} // namespace quittika
