#include "designer/design.hpp"
#include "platform/schluesselzeilen.hpp"
#include "tests/qt/program_test.hpp"

#include "tests/qt/mouse/mouse.hpp"

#include <QtWidgets>

namespace quittika::test {
namespace {

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

using DesignerMouse = ProgramTest;

TEST_F(DesignerMouse, BlocksStandWhereTheyWereDropped) {
    const Design standard = DESIGN_STANDARD(Programmverzeichnis(ordner.ordner()));
    ordner.schreiben("design.dsg", DESIGN_SCHREIBEN(standard).bytes);
    f().m_startdesigner.Click();
    ASSERT_NE(zeigen("FORM_DESIGNER"), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenster));
    const auto centre = [&](const char* name) {
        return feld(name)->mapToGlobal(QPointF(feld(name)->rect().center()));
    };
    const double mm_per_pixel = 210 / (feld("Frame_A4")->width() * qGuiApp->devicePixelRatio());
    drag(centre("Image_KDNR"), {-161, 73});
    drag(centre("Image_LOGO"), {-37, -11});
    drag(centre("Image_LISTE"), {55, -43});
    keys_of_the_size_frame(*fenster);
    Mouse().to(centre("CMD_SPEICHERN")).click().go();
    ASSERT_TRUE(QTest::qWaitFor([this] { return zeigen("FORM_DESIGNER") == nullptr; }));

    std::map<std::string, double> saved;
    SCHLUESSELZEILEN_DURCHGEHEN(
        ordner.lesen("design.dsg"), [&](const std::string& key, const std::string& text) {
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
