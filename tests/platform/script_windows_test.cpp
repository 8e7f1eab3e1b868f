#include "platform/script/script_desktop.hpp"

#include <gtest/gtest.h>

namespace quittika::test {
namespace {

TEST(ScriptWindows, ComeToTheFrontAsFarAsNoModalOneIsThere) {
    ScriptClock clock;
    ScriptDesktop desktop(clock);
    Form first("first", "");
    Form second("second", "");
    Form modal("modal", "");
    for (Form* form : {&first, &second, &modal}) {
        desktop.adopt(*form);
    }
    first.Show();
    second.Show();
    first.ZOrder();
    EXPECT_EQ(desktop.windows(), (std::vector<Form*>{&second, &first}));
    desktop.on_modal([&](const std::function<bool()>& /*open*/) { second.ZOrder(); });
    modal.Show(Modality::Modal);
    EXPECT_EQ(desktop.windows(), (std::vector<Form*>{&second, &first, &modal}));
}

} // namespace
} // namespace quittika::test
