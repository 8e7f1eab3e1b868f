#include "platform/qt/widgets/column_list.hpp"
#include "platform/qt/window_table.hpp"
#include "tests/qt/desktop_look.hpp"

#include <gtest/gtest.h>

#include <QtWidgets>

#include <memory>
#include <stdexcept>

namespace quittika::test {
namespace {

struct Screen {
    const char* name;
    int width;
    int height;
    double points; ///< size of the desktop's text
    bool side_by_side;
};

void PrintTo(const Screen& screen, std::ostream* out) {
    *out << screen.name;
}

/// The main window on screens of all kinds, without a program behind it.
class LayoutTest : public ::testing::TestWithParam<Screen> {
protected:
    LayoutTest() : window_(build_window("form1")) {
        window_->resize(GetParam().width, GetParam().height);
        window_->show();
        QApplication::processEvents();
    }

    template <class W = QWidget> W& part(const char* name) const {
        W* found = window_->findChild<W*>(QLatin1String(name));
        if (found == nullptr) {
            throw std::runtime_error(name);
        }
        return *found;
    }
    /// A part's area in the window.
    QRect area(const char* name) const {
        const auto& widget = part(name);
        return {widget.mapTo(window_.get(), QPoint()), widget.size()};
    }

private:
    DesktopLook look_{GetParam().points};

protected:
    std::unique_ptr<QWidget> window_;
};

} // namespace

TEST_P(LayoutTest, EverythingIsOnTheScreen) {
    EXPECT_EQ(window_->size(), QSize(GetParam().width, GetParam().height));
    const auto& content = part<QScrollArea>("ui_Rollbereich");
    EXPECT_EQ(content.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(content.horizontalScrollBar()->maximum(), 0);
}

TEST_P(LayoutTest, InputFieldsStandOverTheirColumns) {
    const auto& list = part<ColumnList>("List_DARSTELLUNG");
    const char* const fields[] = {"Check_K", "Text_Menge", "Text_leistung", "Text_preis", "Text_gesamtp"};
    for (int column = 0; column < 5; ++column) {
        const auto [left, right] = list.span(column);
        const int offset = area("List_DARSTELLUNG").left();
        EXPECT_NEAR(area(fields[column]).left(), offset + left, 2) << fields[column];
        EXPECT_NEAR(area(fields[column]).right(), offset + right, 3) << fields[column];
    }
    EXPECT_LE(list.span(4).right, list.width());
}

TEST_P(LayoutTest, HeadingsAndLargeAmountsAreNotCut) {
    for (const char* heading :
         {"Label_Pos", "Label_Menge", "Label_Leistung", "Label_preis", "Label_gesamtp"}) {
        EXPECT_GE(part(heading).width(), part<QLabel>(heading).sizeHint().width()) << heading;
    }
    for (const char* name : {"Text_preis", "Text_gesamtp", "Text_PreisVersankostenEingabe", "Text_summe",
                             "Text_summeRabatt", "Text_summeNACHRABATT", "Text_summemwst",
                             "Text_PreisVersankosten", "Text_PreisVersankostenMwST", "Text_gesamtbetrag"}) {
        const auto& field = part<QLineEdit>(name);
        constexpr int kEdges = 10; // frame and margins
        EXPECT_GE(field.width(), field.fontMetrics().horizontalAdvance("999999999,99") + kEdges) << name;
    }
}

TEST_P(LayoutTest, RowsAreAsHighAsTheirText) {
    auto& list = part<ColumnList>("List_DARSTELLUNG");
    QStringListModel rows({"eine", "zwei"});
    list.setModel(&rows);
    EXPECT_GE(list.visualRect(rows.index(0)).height(), list.fontMetrics().height());
    EXPECT_GE(list.fontMetrics().height(), 0.8 * window_->fontMetrics().height()) << "as large as the rest";
    list.setModel(nullptr);
}

TEST_P(LayoutTest, AmountDueIsTheLargestFigureNearTheInputLine) {
    const double due = part("Text_gesamtbetrag").font().pointSizeF();
    for (const QWidget* widget : window_->findChildren<QWidget*>()) {
        if (widget->objectName() != "Text_gesamtbetrag") {
            EXPECT_LT(widget->font().pointSizeF(), due) << widget->objectName().toStdString();
        }
    }
    const QRect totals = area("Frame4");
    const QRect rows = area("Frame_ADDs");
    EXPECT_EQ(totals.left() > rows.right(), GetParam().side_by_side);
    EXPECT_EQ(totals.top() > rows.bottom(), !GetParam().side_by_side);
    const int em = window_->fontMetrics().height();
    const QRect between = totals.united(area("ui_Eingabezeile"));
    EXPECT_LE(between.height(), 30 * em);
    EXPECT_LE(between.width(), 185 * em);
}

INSTANTIATE_TEST_SUITE_P(Screens, LayoutTest,
                         ::testing::Values(Screen{"small", 1024, 700, 9, false},
                                           Screen{"laptop", 1280, 800, 9, true},
                                           Screen{"full_hd", 1920, 1080, 9, true},
                                           Screen{"large_type", 1920, 1010, 18, false},
                                           Screen{"ultra_hd", 3840, 2160, 9, true}),
                         [](const auto& tested) { return std::string(tested.param.name); });

} // namespace quittika::test
