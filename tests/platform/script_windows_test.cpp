#include "platform/script/script_desktop.hpp"
#include "platform/script/user.hpp"
#include "tests/sample_forms.hpp"

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

TEST(ScriptWindows, PlacesAreThoseOfTheForm) {
    ScriptClock clock;
    ScriptDesktop desktop(clock);
    SampleForm form;
    const SampleModule module(form);
    desktop.adopt(form);
    form.Show();
    EXPECT_EQ(module.factor(), 30) << "from what the form says, while it loads";
    User user(desktop);
    user.mouse(form.Block, "down", {MouseButton::Left, 40, 50});
    user.mouse(form.Block, "move", {MouseButton::Left, 41, 30});
    EXPECT_EQ(form.Block.Left(), 101);
    EXPECT_EQ(form.Block.Top(), 180);
    user.mouse(form.Block, "down", {MouseButton::Right, 40, 50});
    EXPECT_EQ(form.Choice.Left(), 30 + 101);
    EXPECT_EQ(form.Choice.Top(), 30 + 180 - 1000);
    EXPECT_THROW(user.select(form.Data, -1), std::runtime_error) << "nobody sees it";
}

} // namespace

} // namespace quittika::test
