#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/qt/binding.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "tests/qt/desktop_look.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

/// A window with what the program reads and moves: a sheet of paper with a picture on it, and a frame that
/// is put beside the picture.
struct SampleForm : Form {
    SampleForm() : Form("Sample", "Sample", {.width = twips(600), .height = twips(400)}) {}
    Frame Page{*this, Named("Page").following({30, 30, 6300, 5000})};
    Image Block{Page, Named("Block").at({100, 200, 1507, 1000})};
    Frame Choice{*this, Named("Choice").movable({0, 0, 2000, 1000})};
    Label Text{Choice, "Text", "Farbe auswählen"};
    SSTab Tabs{*this, "Tabs", {"A", "B"}};
    Shape Patch{Tabs.page(1), Named("Patch").at({150, 75, 300, 450})};
    ListBox Data{*this, Named("Data").data_only()};
};

/// Moves the picture with the mouse, and the frame to its upper edge with the right button.
struct SampleModule {
    explicit SampleModule(SampleForm& form) {
        form.Load = [&] { factor = form.Page.Width() / 210.0; };
        form.Page.Resize = [&] { factor = form.Page.Width() / 210.0; };
        form.Block.MouseDown = [&](const MouseEvent& at) {
            start = at;
            if (at.button == MouseButton::Right) {
                form.Choice.Left = form.Page.Left() + form.Block.Left();
                form.Choice.Top = form.Page.Top() + form.Block.Top() - form.Choice.Height();
            }
        };
        form.Block.MouseMove = [&](const MouseEvent& at) {
            if (at.button == MouseButton::Left) {
                form.Block.Left = form.Block.Left() + at.x - start.x;
                form.Block.Top = form.Block.Top() + at.y - start.y;
            }
        };
    }

    double factor = 0; ///< twips a millimetre of the paper
    MouseEvent start{};
};

template <class W> W* named(const char* name, QWidget* parent) {
    auto* widget = new W(parent);
    widget->setObjectName(QLatin1String(name));
    return widget;
}

std::unique_ptr<QWidget> sample_window(std::string_view /*form*/) {
    auto window = std::make_unique<QMainWindow>();
    auto* centre = named<QWidget>("ui_Centre", window.get());
    window->setCentralWidget(centre);
    auto* rows = new QVBoxLayout(centre);
    auto* desk = named<QWidget>("ui_Desk", centre); // the page is not measured in it
    rows->addWidget(desk, 1);
    auto* page = named<QFrame>("Page", desk);
    (new QVBoxLayout(desk))->addWidget(page);
    named<QLabel>("Block", page);
    auto* tabs = named<QTabWidget>("Tabs", centre);
    rows->addWidget(tabs);
    tabs->addTab(new QWidget, QStringLiteral("A"));
    auto* second = named<QWidget>("ui_Second", nullptr);
    tabs->addTab(second, QStringLiteral("B"));
    named<QFrame>("Patch", second);
    auto* choice = named<QFrame>("Choice", centre);
    (new QVBoxLayout(choice))->addWidget(named<QLabel>("Text", choice));
    return window;
}

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

    QtDesktop desktop{sample_window};
    SampleForm form;
    SampleModule module{form};
};

TEST_F(Places, TheProgramsTwipsStayExact) {
    EXPECT_EQ(form.Block.Width(), 1507) << "valid before there is a window";
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
    }
    EXPECT_EQ(form.Block.Left(), 100 + 80 * 15);
    EXPECT_EQ(form.Block.Top(), 200 + 40 * 15);
}

TEST_F(Places, WhatTheWindowLaysOutIsTold) {
    int told = 0;
    show();
    form.Page.Resize = [&] { ++told; };
    const auto agree = [&] {
        const QWidget& page = widget("Page");
        const QPoint place = page.mapTo(&widget("ui_Centre"), QPoint());
        EXPECT_EQ(form.Page.Left(), place.x() * 15);
        EXPECT_EQ(form.Page.Top(), place.y() * 15);
        EXPECT_EQ(form.Page.Width(), page.width() * 15);
        EXPECT_EQ(form.Page.Height(), page.height() * 15);
    };
    agree();
    EXPECT_DOUBLE_EQ(module.factor, form.Page.Width() / 210.0) << "its own handler came first";
    const int before = form.Page.Width();
    form.Width = form.Width() + 1500;
    QCoreApplication::processEvents();
    EXPECT_EQ(form.Page.Width(), before + 1500);
    EXPECT_EQ(told, 1);
    widget("ui_Centre").layout()->setContentsMargins(30, 40, 20, 20); // moves what lies between
    QCoreApplication::processEvents();
    agree();
}

TEST_F(Places, FrameAsBigAsItsContentStandsWithItsBottomAtThePicture) {
    EXPECT_EQ(form.Choice.Height(), 1000);
    show();
    const int plain = form.Choice.Height();
    EXPECT_EQ(plain, widget("Choice").sizeHint().height() * 15);
    widget("Text").setFont(QFont(widget("Text").font().family(), 40));
    QCoreApplication::processEvents();
    EXPECT_GT(form.Choice.Height(), plain);
    form.Block.Left = 1507;
    form.Block.Top = 2503;
    form.Choice.Visible = false;
    QTest::mousePress(&widget("Block"), Qt::RightButton, {}, QPoint(2, 2));
    form.Choice.Visible = true;
    QCoreApplication::processEvents();
    const QRect choice = widget("Choice").geometry();
    const QPoint block = widget("Block").mapTo(&widget("ui_Centre"), QPoint());
    EXPECT_EQ(choice.topLeft(), QPoint(block.x(), block.y() - choice.height()));
}

TEST_F(Places, WhatIsNotTheProgramsToSetIsRefused) {
    const std::function<void()> refused[] = {
        [&] { form.Page.Width = 1; },   [&] { form.Choice.Height = 1; },   [&] { form.Text.Left = 1; },
        [&] { form.Block.Width = -1; }, [&] { form.Data.Visible = true; },
    };
    for (const auto& set : refused) {
        EXPECT_THROW(set(), Laufzeitfehler);
    }
    form.Data.AddItem("unseen");
    show();
    EXPECT_EQ(form.Data.List(0), "unseen");
    EXPECT_EQ(form.Data.view(), nullptr);
}

TEST(PlacesInLargeType, WindowsGrowAndThePicturesStay) {
    const DesktopLook look(18);
    QtDesktop desktop(sample_window);
    SampleForm form;
    desktop.adopt(form);
    const int room = QApplication::primaryScreen()->availableGeometry().width();
    EXPECT_EQ(form.Width(), twips(std::min(room, qRound(600 * theme::scale()))));
    form.Show();
    QCoreApplication::processEvents();
    const auto area = [&](const char* name) {
        return desktop.window(form)->findChild<QWidget*>(QLatin1String(name))->geometry();
    };
    EXPECT_EQ(area("Block"), QRect(7, 13, 100, 67));
    EXPECT_EQ(area("Patch"), QRect(10, 5, 20, 30));
    EXPECT_GE(area("Choice").height(), 18);
    EXPECT_EQ(form.Choice.Height(), twips(area("Choice").height()));
}

TEST(PlaceFindings, TheDesignHasToAllowThePlace) {
    struct Wrong {
        const char* finding;
        void (*spoil)(QWidget& window);
    };
    const auto part = [](QWidget& window, const char* name) {
        return window.findChild<QWidget*>(QLatin1String(name));
    };
    static const auto find = part;
    const Wrong cases[] = {
        {"", [](QWidget&) {}},
        {"Sample.Block: stands in a layout, but the program places it\n",
         [](QWidget& w) { (new QVBoxLayout(find(w, "Page")))->addWidget(find(w, "Block")); }},
        {"Sample.Block: does not stand in its container\n",
         [](QWidget& w) { find(w, "Block")->setParent(find(w, "ui_Centre")); }},
        {"Sample.Block: stands in ui_Between instead of its container\n",
         [](QWidget& w) { find(w, "Block")->setParent(named<QWidget>("ui_Between", find(w, "Page"))); }},
        {"Sample.Block: cannot be as big as the program wants it\n",
         [](QWidget& w) { find(w, "Block")->setMaximumWidth(20); }},
        {"Sample.Page: follows the window, but stands in no layout\n",
         [](QWidget& w) { delete find(w, "ui_Desk")->layout(); }},
        {"Sample.Data: no control is shown by this QListView\n",
         [](QWidget& w) { named<QListView>("Data", find(w, "ui_Centre")); }},
    };
    for (const Wrong& wrong : cases) {
        SampleForm form;
        const std::unique_ptr<QWidget> window = sample_window("");
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
