#include "platform/qt/widgets/column_list.hpp"
#include "platform/qt/window_table.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>

#include <cmath>
#include <memory>
#include <stdexcept>

namespace quittika::test {

namespace {

/// The main window in a size, without a program behind it.
class MainWindow {
public:
    MainWindow(int width, int height) : window_(build_window("form1")) {
        window_->resize(width, height);
        window_->show();
        QApplication::processEvents();
    }

    template <class W> W& part(const char* name) const {
        W* found = window_->findChild<W*>(QLatin1String(name));
        if (found == nullptr) {
            throw std::runtime_error(name);
        }
        return *found;
    }
    /// A part's area in the window.
    QRect area(const char* name) const {
        const auto& widget = part<QWidget>(name);
        return {widget.mapTo(window_.get(), QPoint()), widget.size()};
    }

private:
    std::unique_ptr<QWidget> window_;
};

struct Size {
    const char* name;
    int width;
    int height;
    bool side_by_side;
};

void PrintTo(const Size& size, std::ostream* out) {
    *out << size.name;
}

class LayoutTest : public ::testing::TestWithParam<Size> {};

} // namespace

TEST_P(LayoutTest, InputFieldsStandOverTheirColumns) {
    const MainWindow window(GetParam().width, GetParam().height);
    const auto& list = window.part<ColumnList>("List_DARSTELLUNG");
    const double first = window.area("List_DARSTELLUNG").left() + list.text_left();
    const struct {
        const char* field;
        int end; ///< column behind the last character
    } ends[] = {{"Text_Menge", 12}, {"Text_preis", 94}, {"Text_gesamtp", 104}};
    for (const auto& [field, end] : ends) {
        const double column = first + end * list.column_width();
        EXPECT_LE(std::abs(window.area(field).right() - column), list.column_width()) << field;
    }
    EXPECT_GT(window.area("Text_leistung").left(), window.area("Text_Menge").right());
    EXPECT_GT(window.area("Text_preis").left(), window.area("Text_leistung").right());
}

TEST_P(LayoutTest, RowsOfFullWidthFitIntoTheList) {
    const MainWindow window(GetParam().width, GetParam().height);
    const auto& list = window.part<ColumnList>("List_DARSTELLUNG");
    EXPECT_LE(list.text_left() + 104 * list.column_width(), list.viewport()->width());
}

TEST_P(LayoutTest, AmountDueStandsAtTheLowerRight) {
    const MainWindow window(GetParam().width, GetParam().height);
    const QRect totals = window.area("Frame4");
    const QRect list = window.area("List_DARSTELLUNG");
    EXPECT_EQ(totals.left() > list.right(), GetParam().side_by_side);
    EXPECT_EQ(totals.top() > list.bottom(), !GetParam().side_by_side);
    for (const char* sum : {"Text_summe", "Text_summemwst", "Text_PreisVersankostenMwST"}) {
        EXPECT_LT(window.area(sum).bottom(), window.area("Text_gesamtbetrag").top()) << sum;
    }
    EXPECT_GT(window.part<QLineEdit>("Text_gesamtbetrag").font().pointSizeF(),
              window.part<QLineEdit>("Text_summe").font().pointSizeF());
}

INSTANTIATE_TEST_SUITE_P(Sizes, LayoutTest,
                         ::testing::Values(Size{"small", 1024, 700, false}, Size{"full_hd", 1920, 1080, true},
                                           Size{"ultra_hd", 3840, 2160, true}),
                         [](const auto& tested) { return std::string(tested.param.name); });

} // namespace quittika::test
