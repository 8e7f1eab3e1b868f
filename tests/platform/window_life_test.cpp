#include "tests/platform/window_life_cases.hpp"

#include "platform/script/script_desktop.hpp"
#include "platform/script/user.hpp"
#include "tests/sample_forms.hpp"

#include <algorithm>
#include <deque>

namespace quittika::test {

namespace {

/// Windows without a screen.
class ScriptStage {
public:
    ScriptStage() {
        desktop_.on_modal([this](const std::function<bool()>& open) {
            settle();
            while (open()) {
                const auto act = acts_.at(0);
                acts_.pop_front();
                act();
                settle();
            }
        });
    }

    Desktop& desktop() { return desktop_; }
    void click(Control& control) { User(desktop_).click(control); }
    void tick(Timer& timer) { desktop_.timers().tick(timer); }
    void close(Form& form) {
        try {
            form.Close();
        } catch (const std::runtime_error&) {
            settle();
        }
    }
    void settle() {
        while (const auto work = desktop_.take_work()) {
            work();
        }
    }
    void while_modal(std::function<void()> act) { acts_.push_back(std::move(act)); }
    void when_reported(const std::function<void()>& /*act*/) {} // nobody has to close the report
    bool is_open(const Form& form) const {
        const std::vector<Form*> open = desktop_.windows();
        return std::find(open.begin(), open.end(), &form) != open.end();
    }

private:
    ScriptClock clock_;
    ScriptDesktop desktop_{clock_};
    std::deque<std::function<void()>> acts_;
};

} // namespace

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

INSTANTIATE_TYPED_TEST_SUITE_P(Script, WindowLife, ScriptStage);

} // namespace quittika::test
