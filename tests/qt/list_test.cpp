#include "tests/qt/test_form.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

class ListTest : public ::testing::Test {
protected:
    void fill(int count) {
        for (int i = 0; i < count; ++i) {
            list.AddItem("Zeile " + std::to_string(i));
        }
    }
    void show() {
        bound.window->show();
        QApplication::setActiveWindow(bound.window.get());
        bound.widget("Field").setFocus();
        bound.form.take_log();
    }
    void settle() { QCoreApplication::sendPostedEvents(); }
    void click(int row, Qt::KeyboardModifiers modifiers = {}) {
        const QRect place = view.visualRect(view.model()->index(row, 0));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, place.center());
        settle();
    }
    int selected() {
        const QModelIndexList rows = view.selectionModel()->selectedIndexes();
        return rows.isEmpty() ? -1 : rows.front().row();
    }

    Bound bound;
    ListBox& list = bound.form.Rows;
    QListView& view = bound.widget<QListView>("Rows");
};

TEST_F(ListTest, ThousandRowsReachTheWidgetAtOnce) {
    QSignalSpy resets(view.model(), &QAbstractItemModel::modelReset);
    fill(1000);
    list.RemoveItem(0);
    list.AddItem("vorn", 0);
    EXPECT_EQ(resets.count(), 0);
    settle();
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(view.model()->rowCount(), 1000);
    EXPECT_EQ(view.model()->index(0, 0).data().toString(), "vorn");
    list.Clear();
    EXPECT_EQ(view.model()->index(2, 0).data().toString(), "") << "a row that has gone";
}

TEST_F(ListTest, SelectionAndPlaceSurviveAChange) {
    show();
    fill(1000);
    settle();
    list.ListIndex = 500;
    EXPECT_EQ(selected(), 500);
    view.verticalScrollBar()->setValue(800);
    list.AddItem("noch eine");
    settle();
    EXPECT_EQ(view.verticalScrollBar()->value(), 800);
    EXPECT_EQ(selected(), 500);
    list.AddItem("davor", 0);
    list.ListIndex = 10;
    settle();
    EXPECT_EQ(selected(), 10);
    EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.currentIndex())));
    EXPECT_LT(view.verticalScrollBar()->value(), 11);
}

TEST_F(ListTest, EachClickFiresAndAHandlerSeesTheNewRow) {
    show();
    fill(5);
    settle();
    view.setFocus();
    EXPECT_EQ(list.ListIndex(), -1) << "the focus alone selects nothing";
    click(2);
    EXPECT_EQ(list.ListIndex(), 2);
    click(2);
    click(2, Qt::ControlModifier);
    EXPECT_EQ(selected(), 2) << "a click with Ctrl takes nothing away";
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(list.ListIndex(), 3);
    EXPECT_EQ(bound.form.take_log(),
              "Field.LostFocus Rows.GotFocus Rows.Click Rows.Click Rows.Click Rows.Click ");
}

TEST_F(ListTest, HandlerMayEmptyTheList) {
    show();
    fill(5);
    settle();
    list.Click = [&] { list.Clear(); };
    click(4);
    settle();
    EXPECT_EQ(view.model()->rowCount(), 0);
    EXPECT_EQ(selected(), -1);
}

TEST_F(ListTest, ShowsTheBeginningOfAnEndlessItemOnOneLine) {
    list.AddItem("a\r\n" + std::string(5'000'000, 'x'));
    settle();
    const QString shown = view.model()->index(0, 0).data().toString();
    EXPECT_EQ(shown.left(4), "a  x");
    EXPECT_LE(shown.size(), 1000);
}

} // namespace
} // namespace quittika::test
