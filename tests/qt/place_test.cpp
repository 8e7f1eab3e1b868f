#include "platform/forms/twips.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/qt/binding.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "tests/qt/desktop_look.hpp"
#include "tests/qt/mouse/workbench_window.hpp"
#include "tests/qt/widgets.hpp"
#include "tests/workbench.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

class Places : public ::testing::Test {
protected:
    Places() { desktop.adopt(form); }
    QWidget& widget(const char* name) {
        return *desktop.window(form)->findChild<QWidget*>(QLatin1String(name));
    }
    void show() {
        form.Show();
        QCoreApplication::processEvents();
    }

    QtDesktop desktop{workbench_window};
    WorkbenchForm form;
};

TEST_F(Places, TheProgramsTwipsStayExact) {
    EXPECT_EQ(form.Block.Width(), 1500) << "valid before there is a window";
    form.Left = 1500;
    show();
    const int values[][2] = {{0, 0},  {1, 0},  {7, 0},  {8, 1},   {14, 1},       {15, 1},
                             {22, 1}, {23, 2}, {-1, 0}, {-8, -1}, {100000, 6667}};
    for (const auto& [twips, pixels] : values) {
        for (Property<int>* place : {&form.Block.Left, &form.Block.Top, &form.Patch.Left, &form.Choice.Top}) {
            *place = twips;
        }
        form.Block.Width = std::abs(twips);
        QCoreApplication::processEvents();
        EXPECT_EQ(widget("Block").pos(), QPoint(pixels, pixels)) << twips;
        EXPECT_EQ(widget("Block").width(), std::abs(pixels)) << twips;
        EXPECT_EQ(widget("Patch").x(), pixels) << twips;
        EXPECT_EQ(widget("Choice").y(), pixels) << twips;
        EXPECT_EQ(form.Block.Left(), twips);
        EXPECT_EQ(form.Choice.Top(), twips);
        EXPECT_EQ(form.Block.Width(), std::abs(twips));
    }
    const int height = form.Height();
    for (int step = 0; step < 32; ++step) {
        form.Left = form.Left() + 1;
        form.Height = form.Height() + 1;
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(form.Left(), 1500 + 32);
    EXPECT_EQ(desktop.window(form)->x(), 100 + 2);
    EXPECT_EQ(form.Height(), height + 32);
}

TEST_F(Places, ADragMovesByTheMouseAlone) {
    MouseEvent begin{};
    form.Block.MouseDown = [&](const MouseEvent& at) { begin = at; };
    form.Block.MouseMove = [&](const MouseEvent& at) {
        form.Block.Left = form.Block.Left() + at.x - begin.x;
        form.Block.Top = form.Block.Top() + at.y - begin.y;
    };
    show();
    QWidget& block = widget("Block");
    const QPointF start = block.mapToGlobal(QPointF(4.4, 3.2));
    const auto mouse = [&](QEvent::Type type, QPointF global) {
        QMouseEvent event(type, block.mapFromGlobal(global), global,
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&block, &event);
    };
    mouse(QEvent::MouseButtonPress, start);
    for (int step = 1; step <= 100; ++step) {
        mouse(QEvent::MouseMove, start + QPointF(0.8, 0.4) * step); // pixels of a screen at 125 %
        EXPECT_EQ(block.x(), qRound(form.Block.Left() / 15.0));
        EXPECT_EQ(form.Block.Left(), 450 + 12 * step);
        EXPECT_EQ(form.Block.Top(), 600 + 6 * step);
    }
}

TEST_F(Places, WhatTheWindowLaysOutIsTold) {
    int told = 0;
    show();
    form.Sheet.Resize = [&] { ++told; };
    const auto agree = [&] {
        const QWidget& page = widget("Sheet");
        const QPoint place = page.mapTo(widget("ui_Desk").parentWidget(), QPoint());
        EXPECT_EQ(form.Sheet.Left(), place.x() * 15);
        EXPECT_EQ(form.Sheet.Top(), place.y() * 15);
        EXPECT_EQ(form.Sheet.Width(), page.width() * 15);
        EXPECT_EQ(form.Sheet.Height(), page.height() * 15);
    };
    agree();
    const int before = form.Sheet.Width();
    form.Width = form.Width() + 1500;
    QCoreApplication::processEvents();
    EXPECT_EQ(form.Sheet.Width(), before + 1500);
    EXPECT_EQ(told, 1);
    widget("ui_Desk").layout()->setContentsMargins(30, 40, 20, 20); // moves what lies between
    QCoreApplication::processEvents();
    agree();
}

TEST_F(Places, FrameAsBigAsItsContentStandsWithItsBottomWhereItIsPut) {
    EXPECT_EQ(form.Choice.Height(), 1000);
    show();
    const int plain = form.Choice.Height();
    EXPECT_EQ(plain, widget("Choice").sizeHint().height() * 15);
    widget("ui_Text").setFont(QFont(widget("ui_Text").font().family(), 40));
    QCoreApplication::processEvents();
    EXPECT_GT(form.Choice.Height(), plain);
    form.Choice.Visible = false;
    form.Choice.Top = 7507 - form.Choice.Height();
    form.Choice.Visible = true;
    QCoreApplication::processEvents();
    const QRect choice = widget("Choice").geometry();
    EXPECT_EQ(choice.y() + choice.height(), 500);
}

TEST_F(Places, WhatIsNotTheProgramsToSetIsRefused) {
    const std::function<void()> refused[] = {
        [&] { form.Sheet.Width = 1; },  [&] { form.Choice.Height = 1; },  [&] { form.Movable.Left = 1; },
        [&] { form.Block.Width = -1; }, [&] { form.Log.Visible = true; },
    };
    for (const auto& set : refused) {
        EXPECT_THROW(set(), Laufzeitfehler);
    }
    form.Log.AddItem("unseen");
    show();
    EXPECT_EQ(form.Log.List(0), "unseen");
    EXPECT_EQ(form.Log.view(), nullptr);
}

TEST(PlacesInLargeType, WindowsGrowAndThePicturesStay) {
    const DesktopLook look(18);
    QtDesktop desktop(workbench_window);
    WorkbenchForm form;
    desktop.adopt(form);
    const int room = QApplication::primaryScreen()->availableGeometry().width();
    EXPECT_EQ(form.Width(), twips(std::min(room, qRound(520 * theme::scale()))));
    form.Show();
    QCoreApplication::processEvents();
    const auto area = [&](const char* name) {
        return desktop.window(form)->findChild<QWidget*>(QLatin1String(name))->geometry();
    };
    EXPECT_EQ(area("Block"), QRect(30, 40, 100, 60));
    EXPECT_EQ(area("Patch"), QRect(10, 5, 20, 30));
    EXPECT_GE(area("Choice").height(), 18);
    EXPECT_EQ(form.Choice.Height(), twips(area("Choice").height()));
}

TEST(PlaceFindings, TheDesignHasToAllowThePlace) {
    struct Wrong {
        const char* finding;
        void (*spoil)(QWidget& window);
    };
    static const auto find = [](QWidget& window, const char* name) {
        return window.findChild<QWidget*>(QLatin1String(name));
    };
    const Wrong cases[] = {
        {"", [](QWidget&) {}},
        {"Workbench.Block: stands in a layout, but the program places it\n",
         [](QWidget& w) { (new QVBoxLayout(find(w, "Sheet")))->addWidget(find(w, "Block")); }},
        {"Workbench.Block: does not stand in its container\n",
         [](QWidget& w) { find(w, "Block")->setParent(find(w, "ui_Centre")); }},
        {"Workbench.Block: stands in ui_Between instead of its container\n",
         [](QWidget& w) { find(w, "Block")->setParent(add<QWidget>(*find(w, "Sheet"), "ui_Between")); }},
        {"Workbench.Block: cannot be as big as the program wants it\n",
         [](QWidget& w) { find(w, "Block")->setMaximumWidth(20); }},
        {"Workbench.Sheet: follows the window, but stands in no layout\n",
         [](QWidget& w) { delete find(w, "ui_Desk")->layout(); }},
        {"Workbench.Log: no control is shown by this QListView\n",
         [](QWidget& w) { add<QListView>(*find(w, "ui_Centre"), "Log"); }},
    };
    for (const Wrong& wrong : cases) {
        WorkbenchForm form;
        const std::unique_ptr<QWidget> window = workbench_window("Workbench");
        wrong.spoil(*window);
        std::string findings;
        for (const std::string& finding : check_binding(form, *window)) {
            findings += finding + "\n";
        }
        EXPECT_EQ(findings, wrong.finding);
    }
}

} // namespace
} // namespace quittika::test
