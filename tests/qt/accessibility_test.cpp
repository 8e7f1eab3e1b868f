#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/widget_view.hpp"
#include "platform/qt/widgets/late_content.hpp"
#include "tests/qt/form_table.hpp"

#include <gtest/gtest.h>

#include <QtWidgets>

#include <set>

namespace quittika::test {
namespace {

std::string form_name(MakeForm make) {
    return make()->name();
}

/// Each form in its window, complete.
class AccessibilityTest : public ::testing::TestWithParam<MakeForm> {
protected:
    AccessibilityTest() {
        desktop.adopt(*form);
        window = desktop.window(*form);
        for (LateContent* late : window->findChildren<LateContent*>()) {
            late->complete();
        }
    }

    QtDesktop desktop;
    std::unique_ptr<Form> form = GetParam()();
    QWidget* window;
};

const std::set<std::string_view> kSpeakForThemselves{"Label", "StatusPanel", "Menu",
                                                     "Timer", "Shape",       "Line"};

/// The name that a widget has of its own, and not from the group around it.
QString own_name(const QWidget& widget) {
    if (!widget.accessibleName().isEmpty()) {
        return widget.accessibleName();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text();
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
        return group->title();
    }
    for (const QLabel* label : widget.parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        if (label->buddy() == &widget) {
            return label->text();
        }
    }
    return {};
}

TEST_P(AccessibilityTest, EachControlHasANameOfItsOwn) {
    for (const Control* control : form->controls()) {
        const auto* view = dynamic_cast<const WidgetView*>(control->view());
        if (kSpeakForThemselves.contains(control->kind()) || view == nullptr) {
            continue;
        }
        const bool plain_frame =
            control->kind() == "Frame" && qobject_cast<QGroupBox*>(&view->widget()) == nullptr;
        if (!plain_frame) {
            EXPECT_NE(own_name(view->widget()).trimmed(), "") << control->name();
            const auto* spoken = QAccessible::queryAccessibleInterface(&view->widget());
            ASSERT_NE(spoken, nullptr) << control->name();
            EXPECT_NE(spoken->text(QAccessible::Name).trimmed(), "") << control->name();
        }
    }
}

/// Something that a letter with Alt reaches.
struct Reached {
    QString text;
    const QWidget* page; ///< the page behind a tab on which it stands, or null
};

const QWidget* page_of(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (qobject_cast<const QStackedWidget*>(widget->parentWidget()) != nullptr) {
            return widget;
        }
    }
    return nullptr;
}

std::string letter_of(const QString& text) {
    return QKeySequence::mnemonic(text).toString().toStdString();
}

void expect_each_letter_once(const std::vector<Reached>& scope) {
    for (std::size_t i = 0; i < scope.size(); ++i) {
        for (std::size_t j = i + 1; j < scope.size(); ++j) {
            const bool together =
                scope[i].page == nullptr || scope[j].page == nullptr || scope[i].page == scope[j].page;
            if (together && !letter_of(scope[i].text).empty()) {
                EXPECT_NE(letter_of(scope[i].text), letter_of(scope[j].text))
                    << scope[i].text.toStdString() << " and " << scope[j].text.toStdString();
            }
        }
    }
}

void add_actions(std::vector<Reached>& scope, const QWidget& menu) {
    for (const QAction* action : menu.actions()) {
        scope.push_back({action->text(), nullptr});
    }
}

std::vector<Reached> reached_from(const QWidget& window) {
    std::vector<Reached> scope;
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        add_actions(scope, *bar);
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        scope.push_back({button->text(), page_of(button)});
    }
    for (const QGroupBox* group : window.findChildren<QGroupBox*>()) {
        scope.push_back({group->title(), page_of(group)});
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            scope.push_back({label->text(), page_of(label)});
        }
    }
    for (const QTabWidget* tabs : window.findChildren<QTabWidget*>()) {
        for (int i = 0; i < tabs->count(); ++i) {
            scope.push_back({tabs->tabText(i), page_of(tabs)});
        }
    }
    return scope;
}

TEST_P(AccessibilityTest, NoLetterTwice) {
    expect_each_letter_once(reached_from(*window));
    for (const QMenu* menu : window->findChildren<QMenu*>()) {
        std::vector<Reached> scope;
        add_actions(scope, *menu);
        expect_each_letter_once(scope);
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, AccessibilityTest, ::testing::ValuesIn(kForms),
                         [](const auto& row) { return form_name(row.param); });

} // namespace
} // namespace quittika::test
