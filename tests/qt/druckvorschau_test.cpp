#include "tests/qt/program_test.hpp"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QLabel>
#include <QWheelEvent>

namespace quittika::test {
namespace {

/// The preview of a document of three pages in its real window.
class Vorschautest : public ProgramTest {
protected:
    Vorschautest() {
        for (int i = 0; i < 60; ++i) {
            zeile("1", "Posten " + std::to_string(i), "1,99");
        }
        f().m_Vorschau.Click();
        zeigen("Form_Druckvorschau");
        QTest::qWait(50);
    }

    std::string text(const char* name) { return feld<QLabel>(name)->text().toStdString(); }
    void rad(int turn, Qt::KeyboardModifiers held = {}) {
        QWidget* blatt = feld("Frame_Blatt"); // where a real wheel over the page ends up
        const QPoint mitte = blatt->rect().center();
        QWheelEvent gedreht(mitte, blatt->mapToGlobal(mitte), {}, {0, turn}, Qt::NoButton, held,
                            Qt::NoScrollPhase, false);
        QApplication::sendEvent(blatt, &gedreht);
    }
};

TEST_F(Vorschautest, TastenUndRadBlaetternUndRollen) {
    ASSERT_NE(fenster, nullptr);
    const auto* leiste = feld<QAbstractSlider>("VScroll1");
    EXPECT_EQ(text("Label_Seite"), "Seite 1/3");
    taste(Qt::Key_PageDown);
    EXPECT_EQ(text("Label_Seite"), "Seite 2/3");
    taste(Qt::Key_End);
    taste(Qt::Key_PageDown);
    EXPECT_EQ(text("Label_Seite"), "Seite 3/3");
    taste(Qt::Key_Down);
    EXPECT_GT(leiste->value(), leiste->minimum()) << "arrows scroll";
    taste(Qt::Key_PageUp);
    EXPECT_EQ(text("Label_Seite"), "Seite 2/3");
    EXPECT_EQ(leiste->value(), leiste->minimum()) << "a page begins at its top";
    rad(-120);
    EXPECT_GT(leiste->value(), leiste->minimum());
    EXPECT_EQ(feld("Picture1")->y(), (600 - leiste->value()) / 15);
    for (int i = 0; i < 20 && leiste->value() < leiste->maximum(); ++i) {
        rad(-120);
    }
    EXPECT_EQ(text("Label_Seite"), "Seite 2/3");
    rad(-60);
    EXPECT_EQ(text("Label_Seite"), "Seite 2/3") << "half a notch";
    rad(-60);
    EXPECT_EQ(text("Label_Seite"), "Seite 3/3");
    rad(120);
    EXPECT_EQ(text("Label_Seite"), "Seite 2/3");
    EXPECT_EQ(leiste->value(), leiste->maximum()) << "who goes back reads upwards";
}

TEST_F(Vorschautest, DieSeiteFolgtDemFensterUndDemBeleg) {
    const auto luft = [this] { return feld("Frame_Blatt")->width() - feld("Picture1")->width(); };
    EXPECT_NEAR(luft(), 20, 1);
    fenster->resize(fenster->width() + 200, fenster->height());
    QTest::qWait(20);
    EXPECT_NEAR(luft(), 20, 1) << "as wide as the window";
    taste(Qt::Key_0, Qt::ControlModifier);
    EXPECT_LE(feld("Picture1")->height(), feld("Frame_Blatt")->height() - 19);
    const int ganz = feld("Picture1")->height();
    rad(120, Qt::ControlModifier);
    EXPECT_GT(feld("Picture1")->height(), ganz);
    for (int i = 0; i < 20; ++i) {
        taste(Qt::Key_Plus, Qt::ControlModifier);
    }
    EXPECT_EQ(text("Label_Zoom"), "300 %");
    EXPECT_TRUE(feld("HScroll1")->isVisible());
    feld<QAbstractButton>("Command_100")->click();
    EXPECT_EQ(feld("Picture1")->width(), 794) << "210 mm at 96 dots an inch";

    const QImage vorher = feld("Picture1")->grab().toImage();
    const auto seitenbild = [this] { return feld("Picture1")->grab().toImage(); };
    f().Text_Kunde_1.Text = "Neue Kundin";
    EXPECT_TRUE(QTest::qWaitFor([&] { return seitenbild() != vorher; }, 3000)) << "without a click";
}

} // namespace
} // namespace quittika::test
