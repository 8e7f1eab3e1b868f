#include "invoice/form1.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/qt_progress.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QWindow>

namespace quittika::test {

namespace {

constexpr int kSteps = 300;
constexpr int kStep = 5; ///< milliseconds

/// Counts how often a widget is painted.
class Painted : public QObject {
public:
    explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
    int times = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        times += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
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
    /// Works step by step until somebody aborts; `meanwhile` gets the open display.
    int work(const std::function<void(QWidget& window, int shown_for)>& meanwhile) {
        const auto display = progress.begin("Rechnungen werden <b>gelesen</b>");
        int shown_for = 0;
        int step = 0;
        while (step < kSteps && !display->aborted()) {
            QTest::qSleep(kStep);
            ++step;
            display->update(step, kSteps, "Datei " + std::to_string(step) + ".qk8");
            if (QWidget* window = QApplication::activeModalWidget()) {
                meanwhile(*window, ++shown_for);
            }
        }
        return step;
    }

    QtDesktop desktop;
    QtProgress progress{desktop};
    Form1 form1;
    std::string happened;
};

TEST_F(ProgressTest, NothingButTheDisplayTakesInputUntilItIsAborted) {
    Painted painted(main_window());
    QElapsedTimer time;
    time.start();
    qint64 appeared = 0;
    int paints_before = 0;
    int value_before = 0;
    desktop.later([this] { happened += "later "; });
    const int steps = work([&](QWidget& window, int shown_for) {
        if (shown_for == 1) {
            appeared = time.elapsed();
            paints_before = painted.times;
            value_before = window.findChild<QProgressBar*>()->value();
            EXPECT_EQ(window.parentWidget(), &main_window());
            EXPECT_EQ(window.windowTitle(), "Quittika 2008");
            EXPECT_EQ(window.findChild<QLabel*>("Vorgang")->text(), "Rechnungen werden <b>gelesen</b>");
            EXPECT_EQ(window.findChild<QLabel*>("Vorgang")->textFormat(), Qt::PlainText);
            main_window().update();
            click_main_window();
        } else if (shown_for == 40) {
            EXPECT_GT(window.findChild<QProgressBar*>()->value(), value_before);
            QTest::mouseClick(window.findChild<QPushButton*>(), Qt::LeftButton);
            EXPECT_FALSE(window.findChild<QPushButton*>()->isEnabled());
        }
    });
    EXPECT_GE(appeared, 500);
    EXPECT_LT(steps, kSteps) << "aborted";
    EXPECT_GT(painted.times, paints_before);
    EXPECT_EQ(happened, "");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(main_window().isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return happened.starts_with("later tick "); })) << happened;
    click_main_window();
    EXPECT_NE(happened.find("click"), std::string::npos) << happened;
}

TEST_F(ProgressTest, EscapeAbortsAndTheReturnKeyDoesNot) {
    const int steps = work([&](QWidget& window, int shown_for) {
        const Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape};
        if (shown_for <= 3) {
            QTest::keyClick(window.windowHandle(), keys[shown_for - 1]);
            EXPECT_EQ(window.findChild<QPushButton*>()->isEnabled(), shown_for < 3);
        }
    });
    EXPECT_LT(steps, kSteps);
}

TEST_F(ProgressTest, QuickWorkShowsNothingAndManyStepsCostLittle) {
    constexpr std::size_t kMany = 100'000;
    QElapsedTimer time;
    time.start();
    const auto display = progress.begin("Schnell");
    for (std::size_t step = 0; step < kMany; ++step) {
        display->update(step, kMany);
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_LT(time.elapsed(), 450);
}

} // namespace

} // namespace quittika::test
