#include "settings/designeraufruf.hpp"

#include "tests/einstellungsstand.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Designeraufruf, UebernimmtVorherAllesUndMeldetSichAmFuenfzehnten) {
    for (const int tag : {14, 15, 16}) {
        Einstellungsstand p;
        p.uhr.zeit.tag = tag;
        int geoeffnet = 0;
        const auto uebernehmen = [&p] { p.uebernahme.ALLEUEBERNEHMEN(false); };
        Designeraufruf aufruf(p.dialoge, p.uhr, uebernehmen, [&] {
            ++geoeffnet;
            EXPECT_EQ(p.werte.WAEHRUNG, "CHF") << "taken over before";
        });
        p.einstellungen.Show();
        p.einstellungen.Text_Waehrung.Text = "CHF";
        aufruf.CMD_DESIGNER_Click();
        EXPECT_EQ(geoeffnet, 1);
        EXPECT_TRUE(p.einstellungen.shown());
        const std::vector<std::string> hinweis{
            "box|Hinweis|ok|information|Der Designer wird ständig weiterentwickelt.\\r\\nVielen Dank!|ok"};
        EXPECT_EQ(p.dialoge.take_boxes(), tag == 15 ? hinweis : std::vector<std::string>()) << tag;
    }
}

} // namespace
} // namespace quittika
