#include "platform/forms/twips.hpp"
#include "platform/qt/application.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "tests/workbench.hpp"

#include <gtest/gtest.h>

#include "tests/qt/mouse/mouse.hpp"
#include "tests/qt/mouse/workbench_window.hpp"

#include <QtWidgets>

#include <algorithm>
#include <cmath>
#include <vector>

namespace quittika::test {
namespace {

class RealMouse : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(desktop.window(bench.form()))); }

    template <class W = QWidget> W& part(Form& form, const char* name) {
        return *desktop.window(form)->findChild<W*>(QLatin1String(name));
    }
    QPointF place(const char* name, QPointF inside) { return part(bench.form(), name).mapToGlobal(inside); }
    QPointF centre(const char* name) { return place(name, part(bench.form(), name).rect().center()); }
    QPointF tab(int index) {
        const QTabBar& bar = *part<QTabWidget>(bench.form(), "Tabs").tabBar();
        return bar.mapToGlobal(QPointF(bar.tabRect(index).center()));
    }
    std::string log() {
        std::string all;
        for (const std::string& line : bench.form().Log.items()) {
            all += line + "|";
        }
        return all;
    }
    /// What happens since the last call, sooner or later.
    void expect_log(const std::string& expected) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return log() == expected; })) << log();
        bench.form().Log.Clear();
    }

    QtDesktop desktop{workbench_window};
    Workbench bench{desktop};
};

TEST_F(RealMouse, MovesAPictureInItsFrameAndBeyondOnceThatIsAllowed) {
    const auto expect_at = [&](double left, double top) {
        const Image& block = bench.form().Block;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return std::abs(block.Left() - left) <= 1 && std::abs(block.Top() - top) <= 1;
        })) << block.Left()
            << " " << block.Top();
    };
    const QTemporaryDir folder;
    QImage red(30, 18, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(folder.filePath("rot.bmp")));
    bench.form().Block.Picture = folder.filePath("rot.bmp").toStdString();
    const double pixel = 15 / qGuiApp->devicePixelRatio(); // of the screen, in twips
    const QPointF start = place("Block", {10, 10});
    const QPointF way = QPointF(202, 502) / qGuiApp->devicePixelRatio(); // beyond the frame and the window
    Mouse().to(start).down().to(start + way).up().go();
    expect_at(450, 600);
    expect_log(""); // released somewhere else
    Mouse().to(place("Movable", {8, 8})).click().to(start).down().to(start + way / 3).to(start + way).go();
    expect_at(450 + 202 * pixel, 600 + 502 * pixel);
    Mouse().to(start - QPointF(1, 1)).up().go();
    expect_at(435, 585);
    expect_log("Bild|");
    QWidget& window = *desktop.window(bench.form());
    const QPoint shown = (window.mapFromGlobal(start) * qGuiApp->devicePixelRatio()).toPoint();
    EXPECT_EQ(window.grab().toImage().pixelColor(shown), QColor(Qt::red));
}

TEST_F(RealMouse, TurnsPagesAndEndsTheEntry) {
    TextBox& field = bench.form().Service;
    field.GotFocus = [this] { bench.form().Log.AddItem("Feld betreten"); };
    field.SetFocus();
    expect_log(""); // nobody sees it
    Mouse().to(tab(1)).click().go();
    Mouse().to(centre("Service")).click().to(tab(0)).click().go();
    expect_log("Blatt 1|Feld betreten|Feld verlassen|Blatt 0|");
}

TEST_F(RealMouse, EachValueOfASliderComesOnce) {
    Mouse().to(tab(1)).click().go();
    Mouse().to(place("Red", {200, 12})).wheel_up().go();
    EXPECT_EQ(bench.form().Red.Value(), 0) << "passed by";
    bench.form().Log.Clear();
    std::vector<int> values;
    bench.form().Red.Change = [&] { values.push_back(bench.form().Red.Value()); };
    Mouse way;
    way.to(place("Red", {6, 12})).down();
    for (const double part_of_way : {0.2, 0.4, 0.6, 0.8, 1.0}) {
        const double x = part_of_way * part(bench.form(), "Red").width();
        way.to(place("Red", {x, 12})).to(place("Red", {x, 14}));
    }
    way.up().go();
    ASSERT_TRUE(QTest::qWaitFor([&] { return values.size() == 5; })) << values.size();
    EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
    EXPECT_EQ(values.back(), 255);
    EXPECT_EQ(bench.form().Patch.BackColor(), 255) << "a click each";
}

} // namespace
} // namespace quittika::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    ::testing::InitGoogleTest(&argc, argv);
    const quittika::QtApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
