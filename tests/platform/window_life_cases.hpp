#pragma once

#include "platform/forms/opened_window.hpp"
#include "print/form_lieferschein_opt.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace quittika::test {

/// A window with a few controls, whatever they are called elsewhere.
struct Note : Form_Lieferschein_opt {
    CommandButton& Button = CMD_weiter;
    CheckBox& Tick = Check_LIEFERSCH_PREISE;
    Timer Clock{*this, "Clock", 1, false};
};

/// Works on a note; what a test does in its handlers comes from outside.
struct NoteModule {
    NoteModule(Note& form, int& count) : form_(form), count_(count) { ++count_; }
    NoteModule(const NoteModule&) = delete;
    NoteModule& operator=(const NoteModule&) = delete;
    ~NoteModule() { --count_; }
    void work() { text += form_.Button.Caption(); } ///< touches what would be gone too early

    Note& form_;
    int& count_;
    std::string text = "long enough to stand on the heap: ";
};

/// A stage has a `desktop`; it clicks a control, closes a window by its frame, plays what was put off, plays
/// acts one by one while a modal window is open, and tells whether a form's window is open.
template <class Stage> class WindowLife : public ::testing::Test {
protected:
    Note& opened() {
        note.open();
        return note.module()->form_;
    }

    Stage stage;
    int count = 0; ///< of the modules that live
    std::function<void(Note&, NoteModule&)> wire = [](Note&, NoteModule&) {};
    OpenedWindow<Note, NoteModule> note{stage.desktop(), [this](Note& form) {
                                            auto module = std::make_unique<NoteModule>(form, count);
                                            wire(form, *module);
                                            return module;
                                        }};
    Form_Lieferschein_opt modal; ///< a window to wait for
};

TYPED_TEST_SUITE_P(WindowLife);

TYPED_TEST_P(WindowLife, OneWindowFromOpeningToClosing) {
    EXPECT_EQ(this->note.module(), nullptr);
    Note& first = this->opened();
    EXPECT_TRUE(this->stage.is_open(first));
    first.Tick.Value = 1;
    first.Hide();
    EXPECT_EQ(&this->opened(), &first) << "hidden is not closed";
    EXPECT_TRUE(this->stage.is_open(first));
    EXPECT_EQ(this->count, 1);
    this->stage.close(first);
    EXPECT_EQ(this->note.module(), nullptr);
    this->stage.settle();
    EXPECT_EQ(this->count, 0);
    EXPECT_EQ(this->opened().Tick.Value(), 0) << "a new one";
    EXPECT_EQ(this->count, 1); // and the fixture goes with the window open
}

TYPED_TEST_P(WindowLife, HandlerClosesItsWindowAndOpensItAgain) {
    this->wire = [this](Note& form, NoteModule& module) {
        form.Button.Click = [this, &form, &module] {
            form.Close();
            this->note.open();
            EXPECT_EQ(this->count, 2);
            EXPECT_NE(&this->note.module()->form_, &form);
            module.work();
        };
    };
    Note& first = this->opened();
    this->stage.click(first.Button);
    this->stage.settle();
    EXPECT_EQ(this->count, 1);
    EXPECT_TRUE(this->stage.is_open(this->note.module()->form_));
}

TYPED_TEST_P(WindowLife, HandlersWaitingForAModalWindowKeepTheirs) {
    this->stage.desktop().adopt(this->modal);
    int back = 0;
    this->wire = [&](Note& form, NoteModule& module) {
        form.Tick.Click = [&] { // within the click that sets the button's caption
            this->modal.Show(Modality::Modal);
            module.work();
            ++back;
        };
        form.Button.Click = [&] {
            form.Close();
            form.Tick.Value = 1;
            module.work();
        };
    };
    Note& first = this->opened();
    this->stage.while_modal([&] { EXPECT_EQ(this->count, 1) << "destroyed under its handlers"; });
    this->stage.while_modal([&] { this->modal.Hide(); });
    this->stage.click(first.Button);
    this->stage.settle();
    EXPECT_EQ(back, 1);
    EXPECT_EQ(this->count, 0);
}

TYPED_TEST_P(WindowLife, TimerClosesTheWindowOfAWaitingHandler) {
    this->stage.desktop().adopt(this->modal);
    this->wire = [&](Note& form, NoteModule& module) {
        form.Clock.Tick = [&] { form.Close(); };
        form.Button.Click = [&] {
            form.Clock.Enabled = true;
            this->modal.Show(Modality::Modal);
            module.work();
        };
    };
    Note& first = this->opened();
    this->stage.while_modal([&] { this->stage.tick(first.Clock); });
    this->stage.while_modal([&] {
        EXPECT_FALSE(first.loaded());
        this->modal.Hide();
    });
    this->stage.click(first.Button);
    this->stage.settle();
    EXPECT_EQ(this->count, 0);
}

TYPED_TEST_P(WindowLife, LoadingMayCloseOrFail) {
    this->wire = [](Note& form, NoteModule& module) {
        form.Load = [&] {
            form.Close();
            module.work();
        };
    };
    this->note.open();
    EXPECT_EQ(this->note.module(), nullptr);
    this->stage.settle();
    EXPECT_EQ(this->count, 0);
    this->wire = [](Note& form, NoteModule&) { form.Load = [] { throw std::runtime_error("no"); }; };
    EXPECT_THROW(this->note.open(), std::runtime_error);
    EXPECT_EQ(this->count, 0);
    this->wire = [](Note&, NoteModule&) { throw std::runtime_error("no"); };
    EXPECT_THROW(this->note.open(), std::runtime_error);
    EXPECT_EQ(this->count, 0);
}

TYPED_TEST_P(WindowLife, UnloadMayFailAndQueryRefuse) {
    bool refuse = true;
    this->wire = [&](Note& form, NoteModule& module) {
        form.QueryUnload = [&](bool& cancel) { cancel = refuse; };
        form.Unload = [&] {
            module.work();
            throw std::runtime_error("no");
        };
    };
    Note& first = this->opened();
    this->stage.close(first);
    this->stage.settle();
    EXPECT_TRUE(this->stage.is_open(first));
    refuse = false;
    this->stage.when_reported([&] { EXPECT_EQ(this->count, 1) << "destroyed under the report"; });
    this->stage.close(first);
    this->stage.settle();
    EXPECT_EQ(this->count, 0);
}

TYPED_TEST_P(WindowLife, WorkPutOffAndTheEndOfTheProgram) {
    std::string order;
    this->wire = [&](Note& form, NoteModule& module) {
        form.Button.Click = [&] {
            form.Close();
            this->stage.desktop().later([&] {
                module.work();
                order += "later ";
            });
        };
        form.Tick.Click = [&] {
            this->stage.desktop().end();
            form.Close();
            module.work();
        };
    };
    this->stage.click(this->opened().Button);
    this->stage.settle();
    EXPECT_EQ(order, "later ");
    EXPECT_EQ(this->count, 0);
    this->stage.click(this->opened().Tick);
    EXPECT_EQ(this->count, 1) << "goes with the program";
}

REGISTER_TYPED_TEST_SUITE_P(WindowLife, OneWindowFromOpeningToClosing, HandlerClosesItsWindowAndOpensItAgain,
                            HandlersWaitingForAModalWindowKeepTheirs, TimerClosesTheWindowOfAWaitingHandler,
                            LoadingMayCloseOrFail, UnloadMayFailAndQueryRefuse,
                            WorkPutOffAndTheEndOfTheProgram);

} // namespace quittika::test
