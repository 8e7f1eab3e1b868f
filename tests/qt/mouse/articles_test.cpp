#include "platform/qt/widgets/content_area.hpp"
#include "tests/qt/program_test.hpp"

#include "tests/qt/mouse/mouse.hpp"

#include <QtWidgets>

namespace quittika::test {
namespace {

/// The list of articles below the main window's fields, as low as it goes.
class Articles : public ProgramTest {
protected:
    Articles() {
        ordner.schreiben("Artikelliste.txt", "Nagel$\xA7$0.10$\xA7$1$\xA7$\r\nD\xFC"
                                             "bel$\xA7$2.50$\xA7$2$\xA7$\r\n");
        f().m_Artikelliste.Click();
        list = zeigen("Form_Artikelverwaltung")->findChild<QListView*>("List_Artikelnverwaltung");
        fenster->resize(fenster->minimumSizeHint());
        fenster->move(0, list->screen()->size().height() - row(2).toPoint().y());
        EXPECT_TRUE(QTest::qWaitForWindowActive(fenster));
    }

    QWidget& main() { return *plattform.desktop().window(f()); }
    /// Middle of a row of the list on the screen.
    QPointF row(int index) const {
        const int height = list->visualRect(list->model()->index(0, 0)).height();
        return list->viewport()->mapToGlobal(QPointF(60, height * (index + 0.5)));
    }
    QPointF field(const char* name) {
        QWidget& shown = *main().findChild<QWidget*>(QLatin1String(name));
        auto& area = *main().findChild<ContentArea*>();
        constexpr int kBelowTop = 60;
        area.verticalScrollBar()->setValue(shown.mapTo(area.widget(), QPoint()).y() - kBelowTop);
        return shown.mapToGlobal(QPointF(shown.rect().center()));
    }
    void drag(int index, const QPointF& target) {
        Mouse()
            .to(row(index))
            .down()
            .to(row(index) - QPointF(0, 30))
            .to(target)
            .to(target + QPointF(2, 0))
            .up()
            .go();
    }

    QListView* list = nullptr;
};

TEST_F(Articles, AreDraggedOntoTheirPlacesInTheInvoice) {
    drag(0, field("Text_leistung"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return f().Text_leistung.Text() == "Nagel"; }));
    EXPECT_EQ(f().Text_Menge.Text(), "1");
    EXPECT_EQ(f().Text_preis.Text(), "0,10");

    main().findChild<QAbstractButton*>("ui_Raster_Kopf")->click();
    QTest::qWait(50);
    Form1::Rasterzeile& third = f().Raster[2];
    third.Check_K[0].Value = 1; // a comment, whose quantity and price are locked
    drag(1, field("Text_leistung3(0)"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return third.Text_leistung[0].Text() == "Dübel"; }));
    EXPECT_EQ(third.Text_menge[0].Text() + "|" + third.Text_preis[0].Text(), "1|2,50");
    EXPECT_EQ(f().Text_leistung.Text(), "Nagel");
}

TEST_F(Articles, AnUnsteadyHandMarksAndADoubleClickTakes) {
    Mouse().to(row(1)).down().to(row(1) + QPointF(2, 1)).up().go();
    EXPECT_TRUE(QTest::qWaitFor([this] { return list->currentIndex().row() == 1; }));
    EXPECT_TRUE(fenster->isVisible());
    Mouse().to(row(0)).click().click().go();
    EXPECT_TRUE(QTest::qWaitFor([this] { return f().Text_leistung.Text() == "Nagel"; }));
    EXPECT_EQ(zeigen("Form_Artikelverwaltung"), nullptr);
}

} // namespace
} // namespace quittika::test
