#include "app/programm.hpp"
#include "designer/design.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/qt_platform.hpp"
#include "platform/schluesselzeilen.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include "tests/qt/mouse/mouse.hpp"

#include <QtWidgets>

namespace quittika::test {
namespace {

QWidget* open_window(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String(name)) {
            return window;
        }
    }
    return nullptr;
}

/// A drag in 20 steps, by a way in pixels of the screen, with the button held all the time.
void drag(const QPointF& from, const QPointF& pixels) {
    constexpr int kSteps = 20;
    const QPointF way = pixels / qGuiApp->devicePixelRatio();
    Mouse hand;
    hand.to(from).down();
    for (int step = 1; step <= kSteps; ++step) {
        hand.to(from + way * step / kSteps);
    }
    hand.up().go();
}

/// Return and Escape in a size field end its frame, not the window.
void keys_of_the_size_frame(QWidget& window) {
    auto* logo = window.findChild<QWidget*>(QStringLiteral("Image_LOGO"));
    auto* width = window.findChild<QLineEdit*>(QStringLiteral("Text_Logo_X"));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QTest::mouseClick(logo, Qt::RightButton);
        ASSERT_TRUE(width->isVisible());
        QTest::keyClick(width, key);
        EXPECT_FALSE(width->isVisible());
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(logo->hasFocus());
    }
}

TEST(DesignerMouse, BlocksStandWhereTheyWereDropped) {
    const Probenordner folder;
    const Design standard = DESIGN_STANDARD(Programmverzeichnis(folder.ordner()));
    folder.schreiben("design.dsg", DESIGN_SCHREIBEN(standard).bytes);
    QtPlatform platform;
    Programm program(platform.platform(), folder.ordner());
    program.hauptfenster_zeigen();
    dynamic_cast<Form1&>(program.hauptfenster()).m_startdesigner.Click();
    QWidget* window = open_window("FORM_DESIGNER");
    ASSERT_NE(window, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    const auto centre = [&](const char* name) {
        const auto* block = window->findChild<QWidget*>(QLatin1String(name));
        return block->mapToGlobal(QPointF(block->rect().center()));
    };
    const double mm_per_pixel = 210 / (window->findChild<QWidget*>(QStringLiteral("Frame_A4"))->width() *
                                       qGuiApp->devicePixelRatio());
    drag(centre("Image_KDNR"), {-161, 73});
    drag(centre("Image_LOGO"), {-37, -11});
    drag(centre("Image_LISTE"), {55, -43});
    keys_of_the_size_frame(*window);
    auto* save = window->findChild<QPushButton*>(QStringLiteral("CMD_SPEICHERN"));
    Mouse().to(save->mapToGlobal(QPointF(save->rect().center()))).click().go();
    ASSERT_TRUE(QTest::qWaitFor([] { return open_window("FORM_DESIGNER") == nullptr; }));

    std::map<std::string, double> saved;
    SCHLUESSELZEILEN_DURCHGEHEN(
        folder.lesen("design.dsg"), [&](const std::string& key, const std::string& text) {
            saved[key] = QString::fromStdString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
            return true;
        });
    const double half = mm_per_pixel / 2;
    EXPECT_NEAR(saved["X_KDNR"], standard.X_KDNR - 161 * mm_per_pixel, half);
    EXPECT_NEAR(saved["Y_KDNR"], standard.Y_KDNR + 73 * mm_per_pixel, half);
    EXPECT_NEAR(saved["X_LOGO"], standard.X_LOGO - 37 * mm_per_pixel, half);
    EXPECT_NEAR(saved["Y_LOGO"], standard.Y_LOGO - 11 * mm_per_pixel, half);
    EXPECT_EQ(saved["X_LISTE"], 12);
    EXPECT_NEAR(saved["Y_LISTE"], standard.Y_LISTE - 43 * mm_per_pixel, half);
    EXPECT_EQ(saved["X_DATUM"], standard.X_DATUM);
}

} // namespace
} // namespace quittika::test
