#include "app/form_ueber_quittika.hpp"
#include "platform/forms/opened_window.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/widget_view.hpp"
#include "print/form_lieferschein_opt.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace quittika::test {
namespace {

/// A window with a few controls, whatever they are called elsewhere.
struct Note : Form_Lieferschein_opt {
    CommandButton& Button = CMD_weiter;
    CheckBox& Tick = Check_LIEFERSCH_PREISE;
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

/// The desktop, and a user who plays acts one by one while a modal window is open.
class Stage : public ::testing::Test {
protected:
    Stage() {
        desktop.adopt(other_);
        other_.Show();
        QObject::connect(&look_, &QTimer::timeout, [this] { play(); });
        look_.start(1);
    }
    ~Stage() override {
        // A program that was ended lets no later one wait for anything.
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    }

    static void click(Control& control) {
        auto& widget = dynamic_cast<WidgetView&>(*control.view()).widget();
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
    }
    void close(Form& form) { desktop.window(form)->close(); }
    void settle() {
        bool done = false;
        desktop.later([&done] { done = true; });
        EXPECT_TRUE(QTest::qWaitFor([&done] { return done; }));
    }
    void while_modal(std::function<void()> act) { acts_.push_back(std::move(act)); }
    bool is_open(Form& form) { return desktop.window(form)->isVisible(); }

    QtDesktop desktop;

private:
    void play() {
        if (QApplication::activeModalWidget() != nullptr && !acts_.empty()) {
            const auto act = std::move(acts_.front());
            acts_.pop_front();
            look_.stop(); // an act may wait for something
            act();
            look_.start(1);
        }
    }

    Form_ueber_QUITTIKA other_; ///< with the last window the program would end
    QTimer look_;
    std::deque<std::function<void()>> acts_;
};

class WindowLife : public Stage {
protected:
    Note& opened() {
        note.open();
        return note.module()->form_;
    }

    int count = 0; ///< of the modules that live
    std::function<void(Note&, NoteModule&)> wire = [](Note&, NoteModule&) {};
    OpenedWindow<Note, NoteModule> note{desktop, [this](Note& form) {
                                            auto module = std::make_unique<NoteModule>(form, count);
                                            wire(form, *module);
                                            return module;
                                        }};
    Form_Lieferschein_opt modal; ///< a window to wait for
};

TEST_F(WindowLife, OneWindowFromOpeningToClosing) {
    EXPECT_EQ(note.module(), nullptr);
    Note& first = opened();
    EXPECT_TRUE(is_open(first));
    first.Tick.Value = 1;
    first.Hide();
    EXPECT_EQ(&opened(), &first) << "hidden is not closed";
    EXPECT_TRUE(is_open(first));
    EXPECT_EQ(count, 1);
    close(first);
    EXPECT_EQ(note.module(), nullptr);
    settle();
    EXPECT_EQ(count, 0);
    EXPECT_EQ(opened().Tick.Value(), 0) << "a new one";
    EXPECT_EQ(count, 1); // and the fixture goes with the window open
}

TEST_F(WindowLife, HandlerClosesItsWindowAndOpensItAgain) {
    wire = [this](Note& form, NoteModule& module) {
        form.Button.Click = [this, &form, &module] {
            form.Close();
            note.open();
            EXPECT_EQ(count, 2);
            EXPECT_NE(&note.module()->form_, &form);
            module.work();
        };
    };
    Note& first = opened();
    click(first.Button);
    settle();
    EXPECT_EQ(count, 1);
    EXPECT_TRUE(is_open(note.module()->form_));
}

TEST_F(WindowLife, HandlersWaitingForAModalWindowKeepTheirs) {
    desktop.adopt(modal);
    int back = 0;
    wire = [&](Note& form, NoteModule& module) {
        form.Tick.Click = [&] { // within the click that sets the button's caption
            modal.Show(Modality::Modal);
            module.work();
            ++back;
        };
        form.Button.Click = [&] {
            form.Close();
            form.Tick.Value = 1;
            module.work();
        };
    };
    Note& first = opened();
    while_modal([&] { EXPECT_EQ(count, 1) << "destroyed under its handlers"; });
    while_modal([&] { modal.Hide(); });
    click(first.Button);
    settle();
    EXPECT_EQ(back, 1);
    EXPECT_EQ(count, 0);
}

TEST_F(WindowLife, LoadingMayCloseOrFail) {
    wire = [](Note& form, NoteModule& module) {
        form.Load = [&] {
            form.Close();
            module.work();
        };
    };
    note.open();
    EXPECT_EQ(note.module(), nullptr);
    settle();
    EXPECT_EQ(count, 0);
    wire = [](Note& form, NoteModule&) { form.Load = [] { throw std::runtime_error("no"); }; };
    EXPECT_THROW(note.open(), std::runtime_error);
    EXPECT_EQ(count, 0);
    wire = [](Note&, NoteModule&) { throw std::runtime_error("no"); };
    EXPECT_THROW(note.open(), std::runtime_error);
    EXPECT_EQ(count, 0);
}

TEST_F(WindowLife, UnloadMayFailAndQueryRefuse) {
    bool refuse = true;
    wire = [&](Note& form, NoteModule& module) {
        form.QueryUnload = [&](bool& cancel) { cancel = refuse; };
        form.Unload = [&] {
            module.work();
            throw std::runtime_error("no");
        };
    };
    Note& first = opened();
    close(first);
    settle();
    EXPECT_TRUE(is_open(first));
    refuse = false;
    while_modal([&] {
        EXPECT_EQ(count, 1) << "destroyed under the report";
        QApplication::activeModalWidget()->close();
    });
    close(first);
    settle();
    EXPECT_EQ(count, 0);
}

TEST_F(WindowLife, WorkPutOffAndTheEndOfTheProgram) {
    std::string order;
    wire = [&](Note& form, NoteModule& module) {
        form.Button.Click = [&] {
            form.Close();
            desktop.later([&] {
                module.work();
                order += "later ";
            });
        };
        form.Tick.Click = [&] {
            desktop.end();
            form.Close();
            module.work();
        };
    };
    click(opened().Button);
    settle();
    EXPECT_EQ(order, "later ");
    EXPECT_EQ(count, 0);
    click(opened().Tick);
    EXPECT_EQ(count, 1) << "goes with the program";
}

} // namespace
} // namespace quittika::test
