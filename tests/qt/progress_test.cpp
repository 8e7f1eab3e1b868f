#include "invoice/form1.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/qt_progress.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

constexpr int kSteps = 300;
constexpr int kStep = 5; ///< milliseconds

struct Patch : QWidget {
    using QWidget::QWidget;
    int painted = 0;
    void paintEvent(QPaintEvent* /*event*/) override { ++painted; }
};

class ProgressTest : public ::testing::Test {
protected:
    ProgressTest() {
        desktop.adopt(form1);
        form1.Timer_blink.Interval = 5;
        form1.Timer_blink.Tick = [this] { happened += "tick "; };
        form1.Cmd_Add_To_list.Click = [this] { happened += "click "; };
        form1.Show();
        QCoreApplication::processEvents();
        happened.clear();
    }
    QWidget& main_window() { return *desktop.window(form1); }
    void click_main_window() {
        const auto& button = *main_window().findChild<QWidget*>("Cmd_Add_To_list");
        QTest::mouseClick(main_window().windowHandle(), Qt::LeftButton, {},
                          button.mapTo(&main_window(), button.rect().center()));
    }
    /// Works until somebody aborts; `meanwhile` gets the open display and for how many steps it was open.
    bool aborted(const std::function<void(QWidget& window, int shown_for)>& meanwhile) {
        const auto display = progress.begin("Rechnungen <b>lesen");
        QElapsedTimer time;
        time.start();
        int shown_for = 0;
        for (std::size_t step = 1; step <= kSteps && !display->aborted(); ++step) {
            QTest::qSleep(kStep);
            display->update(step, kSteps, "Datei");
            if (QWidget* window = QApplication::activeModalWidget()) {
                EXPECT_GE(time.elapsed(), 500);
                meanwhile(*window, ++shown_for);
            }
        }
        return display->aborted();
    }

    QtDesktop desktop;
    QtProgress progress{desktop};
    Form1 form1;
    std::string happened;
};

TEST_F(ProgressTest, NothingButTheDisplayTakesInputUntilItIsAborted) {
    int value_before = 0;
    auto& patch = *new Patch(&main_window());
    patch.show();
    desktop.later([this] { happened += "later "; });
    EXPECT_TRUE(aborted([&](QWidget& window, int shown_for) {
        auto& button = *window.findChild<QPushButton*>();
        if (shown_for == 1) {
            value_before = window.findChild<QProgressBar*>()->value();
            EXPECT_EQ(window.parentWidget(), &main_window());
            EXPECT_EQ(window.findChild<QLabel*>("Vorgang")->text(), "Rechnungen <b>lesen");
            click_main_window();
        } else if (shown_for == 40) {
            EXPECT_GT(window.findChild<QProgressBar*>()->value(), value_before);
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                              button.mapTo(&window, button.rect().center()));
            EXPECT_FALSE(button.isEnabled());
        }
    }));
    EXPECT_GT(patch.painted, 0);
    EXPECT_EQ(happened, "");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([this] { return happened.starts_with("later tick "); })) << happened;
    click_main_window();
    EXPECT_NE(happened.find("click"), std::string::npos) << happened;
}

TEST_F(ProgressTest, EscapeAbortsAndTheReturnKeyDoesNot) {
    EXPECT_TRUE(aborted([&](QWidget& window, int shown_for) {
        const Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape};
        if (shown_for <= 3) {
            QTest::keyClick(window.windowHandle(), keys[shown_for - 1]);
            EXPECT_EQ(window.findChild<QPushButton*>()->isEnabled(), shown_for < 3);
        }
    }));
}

} // namespace
} // namespace quittika::test
