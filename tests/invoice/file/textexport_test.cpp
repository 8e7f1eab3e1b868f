#include "invoice/file/exporttext.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Textexport, EineSpalteFuelltKuerztUndZaehltZeichen) {
    struct Fall {
        Spaltenart art;
        const char* text;
        std::size_t breite;
        const char* spalte;
    };
    const Fall faelle[] = {
        {Spaltenart::Links, "ab", 5, "ab   "},     {Spaltenart::Rechts, "Größe", 7, "  Größe"},
        {Spaltenart::Mitte, "abc", 6, " abc  "},   {Spaltenart::Mitte, "7", 3, " 7 "},
        {Spaltenart::Zahl, "7", 3, "007"},         {Spaltenart::Zahl, "x", 3, " x "},
        {Spaltenart::Rechts, "Größe", 5, "Größe"}, {Spaltenart::Rechts, "Größen", 5, "Grö.."},
        {Spaltenart::Links, "abcdef", 2, ".."},    {Spaltenart::Mitte, "", 2, "  "},
        {Spaltenart::Zahl, "1234567", 4, "12.."},
    };
    for (const Fall& f : faelle) {
        EXPECT_EQ(ExportSpalte(f.art, f.text, f.breite), f.spalte) << f.text << " " << f.breite;
    }
}

} // namespace
} // namespace quittika
