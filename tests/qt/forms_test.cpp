#include "platform/qt/binding.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/window_table.hpp"
#include "tests/qt/form_table.hpp"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace quittika::test {
namespace {

class DesignTest : public ::testing::TestWithParam<MakeForm> {
protected:
    std::unique_ptr<Form> form = GetParam()();
};

TEST_P(DesignTest, EachControlHasItsWidgetAndEachWidgetItsControl) {
    const std::unique_ptr<QWidget> window = build_window(form->name());
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(check_binding(*form, *window), std::vector<std::string>{});
}

TEST_P(DesignTest, F1AsksForHelpWhereverTheFocusIs) {
    QtDesktop desktop;
    desktop.adopt(*form);
    std::vector<const Form*> asked;
    desktop.on_help([&asked](const Form& about) { asked.push_back(&about); });
    QWidget& window = *desktop.window(*form);
    QWidgetList places = window.findChildren<QWidget*>();
    places.append(&window);
    for (QWidget* place : places) {
        if (place->focusPolicy() != Qt::NoFocus || place == &window) {
            asked.clear();
            QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
            QApplication::sendEvent(place, &press);
            EXPECT_EQ(asked, std::vector<const Form*>{form.get()}) << place->objectName().toStdString();
        }
    }
    for (const QAction* action : window.findChildren<QAction*>()) { // it would be faster
        const bool taken = action->shortcut() == QKeySequence(Qt::Key_F1);
        EXPECT_TRUE(!taken || action->objectName() == "m_Hilfe_Fenster") << action->text().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Designs, DesignTest, ::testing::ValuesIn(kForms),
                         [](const auto& row) { return row.param()->name(); });

TEST(Designs, NoneIsWithoutItsForm) {
    EXPECT_EQ(window_table().size(), kForms.size());
}

} // namespace
} // namespace quittika::test
