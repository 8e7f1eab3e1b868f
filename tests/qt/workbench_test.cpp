#include "tests/workbench.hpp"

#include "platform/qt/binding.hpp"
#include "tests/qt/mouse/workbench_window.hpp"

#include <gtest/gtest.h>

namespace quittika::test {

namespace {

TEST(WorkbenchWindows, HaveAWidgetForEachControl) {
    WorkbenchForm bench;
    ArticlesForm articles;
    for (Form* form : {static_cast<Form*>(&bench), static_cast<Form*>(&articles)}) {
        EXPECT_EQ(check_binding(*form, *workbench_window(form->name())), std::vector<std::string>{});
    }
}

} // namespace

} // namespace quittika::test
