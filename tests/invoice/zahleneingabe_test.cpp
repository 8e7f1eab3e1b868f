#include "invoice/zahleneingabe.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Zahleneingabe, PunkteVorDemKommaSindTausender) {
    struct Fall {
        const char* getippt;
        std::optional<double> wert;
        bool wie_tausender;
    };
    const Fall faelle[] = {
        {"1.999,99", 1999.99, false},
        {"12.345.678,90", 12345678.9, false},
        {" -1.234,5 ", -1234.5, false},
        {"1.234,5-", -1234.5, false},
        {"1.000,", 1000, false},
        {"1.200", 1.2, true},
        {"-120.000", -120, true},
        {"0.500", 0.5, false},
        {"1200.000", 1200, false},
        {"1.25", 1.25, false},
        {"12", 12, false},
        {",5", 0.5, false},
        {"1.2.3,4", {}, false},
        {"1234.567,8", {}, false},
        {"12.34,5", {}, false},
        {".123,4", {}, false},
        {"1..234,5", {}, false},
        {"1.23a,5", {}, false},
        {"1,234.56", {}, false},
        {"1.234.567", {}, false},
        {"1,2,3", {}, false},
        {"", {}, false},
        {".", {}, false},
    };
    for (const Fall& f : faelle) {
        SCOPED_TRACE(f.getippt);
        const auto zahl = ZAHL_LESEN(f.getippt);
        EXPECT_EQ(zahl ? std::optional(zahl->wert) : std::nullopt, f.wert);
        EXPECT_EQ(zahl && zahl->wie_tausender, f.wie_tausender);
    }
}

} // namespace
} // namespace quittika
