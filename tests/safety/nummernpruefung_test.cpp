#include "safety/nummernpruefung.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quittika {
namespace {

using testing::ElementsAre;

TEST(Nummernpruefung, numbers_are_read_as_people_write_them) {
    struct Fall {
        const char* titel;
        const char* nummer;
        const char* reihe; ///< null for no number
        std::int64_t zahl;
        const char* zusatz;
    };
    for (const Fall& fall : std::vector<Fall>{
             {"RECHNUNG", "0042", "", 42, ""},
             {"RECHNUNG 2026-", "0042", "2026", 42, ""},
             {"RECHNUNG", "2026/03/0042", "2026-03", 42, ""},
             {"RECHNUNG", " RE 17a ", "", 17, "a"},
             {"GUTSCHRIFT", "17B", "", 17, "b"},
             {"Rechnung Nr. 9", "", "", 9, ""},
             {"Rechnung 7", "#**#", "", 7, ""},
             {"RECHNUNG", "0000", nullptr, 0, ""},
             {"RECHNUNG", "", nullptr, 0, ""},
             {"RECHNUNG", "1234567890123456789", nullptr, 0, ""},
         }) {
        const auto nummer = RECHNUNGSNUMMER_LESEN(fall.titel, fall.nummer);
        ASSERT_EQ(nummer.has_value(), fall.reihe != nullptr) << fall.titel << fall.nummer;
        if (nummer) {
            EXPECT_EQ(nummer->reihe, fall.reihe) << fall.titel << fall.nummer;
            EXPECT_EQ(nummer->zahl, fall.zahl) << fall.titel << fall.nummer;
            EXPECT_EQ(nummer->zusatz, fall.zusatz) << fall.titel << fall.nummer;
        }
    }
}

struct Fall {
    std::vector<const char*> nummern;
    std::optional<std::int64_t> zaehler;
    std::vector<std::string> luecken;
    std::vector<std::string> doppelte;
    bool naechste_vergeben = false;
};

TEST(Nummernpruefung, gaps_and_doubles_of_each_series) {
    for (const Fall& fall : std::vector<Fall>{
             {{}, 5, {}, {}},
             {{"3", "1", "2"}, std::nullopt, {}, {}},
             {{"0001", "0003", "0004", "0008"}, std::nullopt, {"0002", "0005 bis 0007 (3 Nummern)"}, {}},
             {{"7", "7", "8", "7"}, std::nullopt, {}, {"7"}},
             {{"7", "007"}, std::nullopt, {}, {"007"}},
             {{"17", "17a", "18"}, std::nullopt, {}, {}},
             {{"17a", "17A"}, std::nullopt, {}, {"17a"}},
             {{"2025-3", "2026-1", "2026-3"}, std::nullopt, {"2026-2"}, {}},
             {{"2025-3", "2026-3"}, 2, {}, {}}, // the counter's numbers have nothing in front
             {{"5", "6"}, 7, {}, {}},
             {{"5", "6"}, 6, {}, {}, true},
             {{"5", "8"}, 7, {"6 bis 7 (2 Nummern)"}, {}},
             {{"5", "6"}, 9, {"7 bis 8 (2 Nummern)"}, {}}, // given, but never saved
             {{"999999999999999998", "999999999999999999"}, std::nullopt, {}, {}},
         }) {
        std::vector<Nummernzeile> zeilen;
        for (const char* nummer : fall.nummern) {
            zeilen.push_back({"x.qk8", "RECHNUNG", nummer, "", ""});
        }
        const Nummernbefund befund = NUMMERN_PRUEFEN(zeilen, fall.zaehler);
        std::vector<std::string> luecken;
        for (const Nummernluecke& luecke : befund.luecken) {
            luecken.push_back(LUECKENTEXT(luecke));
        }
        std::vector<std::string> doppelte;
        for (const Nummerndoppel& doppel : befund.doppelte) {
            doppelte.push_back(doppel.nummer);
        }
        const std::string name = testing::PrintToString(fall.nummern);
        EXPECT_EQ(luecken, fall.luecken) << name;
        EXPECT_EQ(doppelte, fall.doppelte) << name;
        EXPECT_EQ(befund.naechste_vergeben.has_value(), fall.naechste_vergeben) << name;
    }
}

} // namespace
} // namespace quittika
