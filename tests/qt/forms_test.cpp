#include "platform/qt/binding.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/window_picture.hpp"
#include "platform/qt/window_table.hpp"
#include "tests/qt/form_table.hpp"
#include "tests/qt/mouse/workbench_window.hpp"
#include "tests/workbench.hpp"

#include <gtest/gtest.h>

#include <QWidget>

namespace quittika::test {
namespace {

const std::vector<std::string> kNoFindings;

class DesignTest : public ::testing::TestWithParam<MakeForm> {
protected:
    std::unique_ptr<Form> form = GetParam()();
};

TEST_P(DesignTest, EachControlHasItsWidgetAndEachWidgetItsControl) {
    const std::unique_ptr<QWidget> window = build_window(form->name());
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(check_binding(*form, *window), kNoFindings);
}

TEST_P(DesignTest, ShowsAPicture) {
    QtDesktop desktop;
    desktop.adopt(*form);
    const QImage picture = window_picture(*form, 2.0);
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.width(), 2 * desktop.window(*form)->width());
    QImage empty = picture;
    empty.fill(picture.pixel(0, 0));
    EXPECT_NE(picture, empty);
}

INSTANTIATE_TEST_SUITE_P(Designs, DesignTest, ::testing::ValuesIn(kForms),
                         [](const auto& row) { return row.param()->name(); });

TEST(Designs, NoneIsWithoutItsForm) {
    EXPECT_EQ(window_table().size(), kForms.size());
}

TEST(Designs, TheWorkbenchHasAWidgetForEachControl) {
    WorkbenchForm bench;
    ArticlesForm articles;
    for (Form* form : {static_cast<Form*>(&bench), static_cast<Form*>(&articles)}) {
        EXPECT_EQ(check_binding(*form, *workbench_window(form->name())), kNoFindings);
    }
}

} // namespace
} // namespace quittika::test
