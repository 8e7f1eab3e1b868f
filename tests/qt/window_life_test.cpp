#include "tests/platform/window_life_cases.hpp"

#include "app/form_ueber_quittika.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/widget_view.hpp"

#include <QApplication>
#include <QTest>
#include <QTimer>

namespace quittika::test {

namespace {

/// Real windows.
class QtStage {
public:
    QtStage() {
        desktop_.adopt(other_);
        other_.Show();
    }
    QtStage(const QtStage&) = delete;
    QtStage& operator=(const QtStage&) = delete;
    ~QtStage() {
        // A program that was ended lets no later one wait for anything.
        QTimer::singleShot(0, &context_, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    }

    QtDesktop& desktop() { return desktop_; }
    static void click(Control& control) {
        auto& widget = dynamic_cast<WidgetView&>(*control.view()).widget();
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
    }
    static void tick(const Timer& timer) {
        EXPECT_TRUE(QTest::qWaitFor([&timer] { return !timer.form().loaded(); }));
    }
    void close(Form& form) { desktop_.window(form)->close(); }
    void settle() {
        bool done = false;
        desktop_.later([&done] { done = true; });
        EXPECT_TRUE(QTest::qWaitFor([&done] { return done; }));
    }
    void while_modal(const std::function<void()>& act) {
        const int turn = turns_++;
        wait_for_modal([this, turn, act] {
            if (turn > played_) {
                return false;
            }
            act();
            ++played_;
            return true;
        });
    }
    void when_reported(const std::function<void()>& act) {
        wait_for_modal([act] {
            act();
            return QApplication::activeModalWidget()->close();
        });
    }
    bool is_open(Form& form) { return desktop_.window(form)->isVisible(); }

private:
    void wait_for_modal(const std::function<bool()>& act) {
        QTimer::singleShot(1, &context_, [this, act] {
            if (QApplication::activeModalWidget() == nullptr || !act()) {
                wait_for_modal(act);
            }
        });
    }

    QtDesktop desktop_;
    Form_ueber_QUITTIKA other_; ///< with the last window the program would end
    QObject context_;
    int turns_ = 0;
    int played_ = 0;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, WindowLife, QtStage);

} // namespace quittika::test
