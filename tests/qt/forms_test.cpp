#include "platform/qt/binding.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/window_picture.hpp"
#include "platform/qt/window_table.hpp"
#include "tests/qt/form_table.hpp"

#include <gtest/gtest.h>

#include <QWidget>

namespace quittika::test {

namespace {

std::unique_ptr<Form> form_named(std::string_view name) {
    for (const MakeForm make : kForms) {
        std::unique_ptr<Form> form = make();
        if (form->name() == name) {
            return form;
        }
    }
    return nullptr;
}

std::vector<std::string> design_names() {
    std::vector<std::string> names;
    for (const WindowDesign& design : window_table()) {
        names.emplace_back(design.form);
    }
    return names;
}

class DesignTest : public ::testing::TestWithParam<std::string> {};

TEST_P(DesignTest, EachControlHasItsWidgetAndEachWidgetItsControl) {
    const std::unique_ptr<Form> form = form_named(GetParam());
    ASSERT_NE(form, nullptr) << "no form of that name";
    const std::unique_ptr<QWidget> window = build_window(GetParam());
    std::string findings;
    for (const std::string& finding : check_binding(*form, *window)) {
        findings += finding + "\n";
    }
    EXPECT_EQ(findings, "");
}

TEST_P(DesignTest, ShowsAPicture) {
    QtDesktop desktop;
    const std::unique_ptr<Form> form = form_named(GetParam());
    ASSERT_NE(form, nullptr);
    desktop.adopt(*form);
    const QImage picture = window_picture(*form, 2.0);
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(picture.width(), 2 * desktop.window(*form)->width());
    const QRgb corner = picture.pixel(0, 0);
    bool drawn = false;
    for (int y = 0; y < picture.height() && !drawn; ++y) {
        for (int x = 0; x < picture.width() && !drawn; ++x) {
            drawn = picture.pixel(x, y) != corner;
        }
    }
    EXPECT_TRUE(drawn) << "an empty window";
}

INSTANTIATE_TEST_SUITE_P(Designs, DesignTest, ::testing::ValuesIn(design_names()),
                         [](const auto& row) { return row.param; });

TEST(Designs, EveryFormHasOne) {
    for (const MakeForm make : kForms) {
        const std::unique_ptr<Form> form = make();
        EXPECT_NE(build_window(form->name()), nullptr) << form->name();
    }
}

} // namespace

} // namespace quittika::test
