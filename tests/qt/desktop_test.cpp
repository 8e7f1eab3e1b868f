#include "app/form_ueber_quittika.hpp"
#include "invoice/form1.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "print/form_lieferschein_opt.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

class DesktopTest : public ::testing::Test {
protected:
    DesktopTest() {
        desktop.adopt(form1);
        desktop.adopt(options);
    }
    QWidget& options_window() { return *desktop.window(options); }
    /// Runs `work` as soon as the next window is modal.
    void when_modal(std::function<void()> work) {
        QTimer::singleShot(0, &context, [this, work] {
            QApplication::activeModalWidget() != nullptr ? work() : when_modal(work);
        });
    }

    QtDesktop desktop;
    Form1 form1;
    Form_Lieferschein_opt options;
    QObject context;
};

TEST_F(DesktopTest, FrameAndEscapeAskTheForm) {
    form1.Show();
    int asked = 0;
    options.QueryUnload = [&](bool& cancel) { cancel = ++asked == 1; };
    when_modal([&] {
        EXPECT_EQ(options_window().parentWidget(), desktop.window(form1));
        options_window().close();
        EXPECT_TRUE(options_window().isVisible()) << "the form did not want to";
        QTest::keyClick(&options_window(), Qt::Key_Escape);
    });
    options.Show(Modality::Modal);
    EXPECT_EQ(asked, 2);
    EXPECT_FALSE(options.loaded());
}

TEST_F(DesktopTest, FormThatLivesOnlyWhileItIsShown) {
    form1.Show();
    when_modal([] { QApplication::activeModalWidget()->close(); });
    {
        Form_ueber_QUITTIKA about;
        desktop.adopt(about);
        about.Show(Modality::Modal);
    }
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(desktop.window(form1)->isVisible());
}

TEST_F(DesktopTest, FormGoesAndItsChildWindowsStay) {
    auto owner = std::make_unique<Form1>();
    QtDesktop other;
    Form_Lieferschein_opt child;
    other.adopt(*owner);
    other.adopt(child);
    owner->Show();
    child.Show();
    owner.reset();
    child.CMD_weiter.Caption = "noch da";
    EXPECT_EQ(other.window(child)->findChild<QAbstractButton*>("CMD_weiter")->text(), "noch da");
}

TEST_F(DesktopTest, CompanionsComeUpWithoutTheFocusAndDoNotTakeTurns) {
    struct Companion : Form {
        Companion() : Form("Form_Lieferschein_opt", "", {.companion = true}) {}
        CommandButton CMD_weiter{*this, "CMD_weiter"};
    } first;
    Companion second;
    struct Raised : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            times += event->type() == QEvent::ZOrderChange ? 1 : 0;
            return false;
        }
        int times = 0;
    } raised;
    const auto becomes_active = [this](Form& form) {
        return QTest::qWaitFor([&] { return desktop.window(form)->isActiveWindow(); });
    };
    form1.Show();
    for (Companion* companion : {&first, &second}) {
        desktop.adopt(*companion);
        companion->Show();
        ASSERT_TRUE(becomes_active(*companion));
        desktop.window(*companion)->installEventFilter(&raised);
    }
    const QWidget& window = *desktop.window(first);
    EXPECT_EQ(window.parentWidget(), desktop.window(form1));
    EXPECT_EQ(window.windowType(), Qt::Dialog) << "a tool window takes the main window's keys";
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    form1.Show();
    EXPECT_TRUE(becomes_active(form1));
    raised.times = 0;
    first.ZOrder();
    EXPECT_EQ(raised.times, 0);
    second.ZOrder();
    EXPECT_EQ(raised.times, 1);
    second.Hide();
    first.ZOrder();
    EXPECT_EQ(raised.times, 2);
    QTest::qWait(20);
    EXPECT_TRUE(desktop.window(form1)->isActiveWindow());
    first.CMD_weiter.SetFocus();
    EXPECT_TRUE(becomes_active(first));
}

TEST_F(DesktopTest, PlaceAndFocusAreTakenOverFromBeforeAndAfterwards) {
    form1.Text_Kunde_3.SetFocus();
    form1.Left = 1500;
    form1.Top = 750;
    form1.Show();
    EXPECT_EQ(desktop.window(form1)->focusWidget()->objectName(), "Text_Kunde_3");
    EXPECT_EQ(desktop.window(form1)->pos(), QPoint(100, 50));
    desktop.window(form1)->resize(1300, 840);
    EXPECT_EQ(form1.Width(), 19500);
    EXPECT_EQ(form1.Height(), 12600);
    form1.Left = -900000;
    EXPECT_GE(desktop.window(form1)->x(), 0) << "where nobody could reach it";
}

TEST_F(DesktopTest, TitleMarksUnsavedChanges) {
    form1.Caption = "a [*] b[*].qk8 [*] - Quittika 2008";
    form1.Show();
    const QWindow& window = *desktop.window(form1)->windowHandle();
    EXPECT_EQ(window.title(), "a [*] b[*].qk8 - Quittika 2008");
    form1.Modified = true;
    EXPECT_EQ(window.title(), "a [*] b[*].qk8* - Quittika 2008");
}

TEST_F(DesktopTest, FilesFallOnTheWindowAndTextOnTheField) {
    std::string dropped;
    form1.FilesDropped = [&](const std::vector<std::string>& paths) { dropped += paths.at(0) + "|"; };
    form1.Text_Kunde_1.OLEDragDrop = [&](const std::string& text) { dropped += text; };
    form1.Show();
    QWidget& window = *desktop.window(form1);
    const auto drop_on_field = [&](const QMimeData& data, Qt::DropActions actions) {
        const QWidget& field = *window.findChild<QWidget*>("Text_Kunde_1");
        const QPoint place = field.mapTo(&window, field.rect().center());
        QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.windowHandle(), &enter);
        QDropEvent drop(place, actions, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.windowHandle(), &drop);
        QCoreApplication::sendPostedEvents();
        return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
    };
    QMimeData files;
    files.setUrls({QUrl("file:///tmp/%C3%96l%20a.qk8")});
    files.setText("file:///tmp/%C3%96l%20a.qk8");
    EXPECT_EQ(drop_on_field(files, Qt::MoveAction | Qt::CopyAction), Qt::CopyAction);
    EXPECT_EQ(drop_on_field(files, Qt::MoveAction), Qt::IgnoreAction) << "the file would be gone";
    QMimeData text;
    text.setText("file:///tmp/a.qk8");
    EXPECT_EQ(drop_on_field(text, Qt::MoveAction | Qt::CopyAction), Qt::CopyAction);
    EXPECT_EQ(form1.Text_Kunde_1.Text(), vorgabe::kKunde1) << "the handler alone takes it";
    EXPECT_EQ(dropped, "/tmp/Öl a.qk8|file:///tmp/a.qk8");
}

TEST_F(DesktopTest, TimersTickOnlyWhileTheirFormIsLoaded) {
    int ticks = 0;
    form1.Timer_blink.Tick = [&] { ++ticks; };
    form1.Timer_blink.Interval = 5;
    QTest::qWait(30);
    EXPECT_EQ(ticks, 0);
    form1.Show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 2; }));
    form1.Timer_blink.Enabled = false;
    ticks = 0;
    QTest::qWait(30);
    EXPECT_EQ(ticks, 0);
}

TEST_F(DesktopTest, EscapedErrorIsShownAndTheProgramGoesOn) {
    form1.Show();
    form1.Cmd_Add_To_list.Click = [] { throw Laufzeitfehler(fehler::kUeberlauf); };
    QString title;
    QString text;
    when_modal([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        title = box->windowTitle();
        text = box->text();
        box->close();
    });
    QTest::mouseClick(desktop.window(form1)->findChild<QWidget*>("Cmd_Add_To_list"), Qt::LeftButton);
    EXPECT_EQ(title, "Quittika 2008");
    EXPECT_TRUE(text.contains("6")) << text.toStdString();
    EXPECT_TRUE(text.contains(fehlertext(fehler::kUeberlauf))) << text.toStdString();
}

TEST_F(DesktopTest, TheEndReachesThroughAModalWindowAndAsksNobody) {
    std::string order;
    form1.QueryUnload = [&](bool& cancel) {
        order += "asked ";
        cancel = true;
    };
    EXPECT_EQ(desktop.run([&] {
        form1.Show();
        desktop.later([&] {
            options.Show(Modality::Modal);
            order += "back ";
        });
        when_modal([&] { desktop.end(); });
    }),
              0);
    EXPECT_EQ(order, "back ");
    EXPECT_EQ(desktop.run([&] { desktop.end(); }), 0) << "ended before it began";
}

TEST_F(DesktopTest, TheLastWindowEndsTheLoop) {
    EXPECT_EQ(desktop.run([&] {
        form1.Show();
        desktop.later([&] { desktop.window(form1)->close(); });
    }),
              0);
}

} // namespace
} // namespace quittika::test
