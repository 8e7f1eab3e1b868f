#include "platform/qt/button_views.hpp"

#include "platform/qt/guard.hpp"
#include "platform/qt/qt_text.hpp"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QPushButton>

#include <algorithm>
#include <vector>

namespace quittika {

namespace {

/// Whether a design's text is the caption. It may mark a letter for the Alt key where the caption has none,
/// and leave out blanks that only break lines.
bool is_caption(const QString& text, const QString& caption) {
    if (caption.contains(QLatin1Char('&'))) {
        return text == caption;
    }
    QString plain = text;
    return plain.remove(QLatin1Char('&')) == caption.simplified();
}

} // namespace

template <class C, class W>
ButtonView<C, W>::ButtonView(C& control, W& widget) : TypedView<C, W>(control, widget) {
    QObject::connect(&widget, &QAbstractButton::clicked, this, [this] { clicked(); });
}

template <class C, class W> void ButtonView<C, W>::push(PropertyId id) {
    if (id == PropertyId::Caption) {
        const QString caption = to_qt(this->control_.Caption());
        if (!is_caption(this->widget_.text(), caption)) {
            this->widget_.setText(caption);
        }
    } else if (id == PropertyId::Value) {
        push_value();
    }
}

template <class C, class W> void ButtonView<C, W>::clicked() {
    // A button that leaves the focus where it is still ends the entry in a field.
    if (!this->widget_.hasFocus() && this->widget_.focusPolicy() != Qt::NoFocus) {
        this->widget_.setFocus(Qt::MouseFocusReason);
    }
    guarded(this->control_.form(), [this] { this->control_.user_click(); });
    push_value();
}

template class ButtonView<CommandButton, QAbstractButton>;
template class ButtonView<CheckBox, QCheckBox>;
template class ButtonView<OptionButton, QRadioButton>;

CommandButtonView::CommandButtonView(CommandButton& control, QAbstractButton& widget)
    : ButtonView(control, widget) {
    // The Return key in a field must not press a button that nobody chose for it.
    auto* button = qobject_cast<QPushButton*>(&widget);
    if (button != nullptr && !button->isDefault()) {
        button->setAutoDefault(false);
    }
}

void CommandButtonView::push(PropertyId id) {
    auto* button = qobject_cast<QPushButton*>(&widget_);
    if (id == PropertyId::Default && button != nullptr) {
        button->setDefault(control_.Default());
    } else {
        ButtonView::push(id);
    }
}

void CommandButtonView::push_all() {
    push(PropertyId::Caption);
    if (control_.Default()) { // a design may mark a button, too
        push(PropertyId::Default);
    }
}

bool CommandButtonView::key_pressed(const QKeyEvent& event) {
    const bool presses = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (presses && !event.isAutoRepeat()) {
        widget_.click();
    }
    return presses;
}

void CheckBoxView::push_all() {
    push(PropertyId::Caption);
    push_value();
}

void CheckBoxView::push_value() {
    constexpr Qt::CheckState kStates[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
    const Qt::CheckState state = kStates[control_.Value()];
    if (widget_.checkState() != state) {
        widget_.setTristate(state == Qt::PartiallyChecked);
        widget_.setCheckState(state);
    }
}

OptionButtonView::OptionButtonView(OptionButton& control, QRadioButton& widget)
    : ButtonView(control, widget) {
    // The control sees to the exclusion. A group of one leaves it to it, and the button still tells a screen
    // reader that it is one of several.
    auto* alone = new QButtonGroup(&widget);
    alone->setExclusive(false);
    alone->addButton(&widget);
}

void OptionButtonView::push_all() {
    push(PropertyId::Caption);
    push_value();
}

void OptionButtonView::push_value() {
    widget_.setChecked(control_.Value());
}

bool OptionButtonView::key_pressed(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        go(-1);
        return true;
    case Qt::Key_Right:
    case Qt::Key_Down:
        go(1);
        return true;
    default:
        return false;
    }
}

void OptionButtonView::go(int step) {
    std::vector<OptionButton*> siblings;
    for (Control* other : control_.form().controls()) {
        auto* option = dynamic_cast<OptionButton*>(other);
        if (option != nullptr && &option->container() == &control_.container() && option->Visible() &&
            (option->Enabled() || option == &control_)) {
            siblings.push_back(option);
        }
    }
    const auto here = std::find(siblings.begin(), siblings.end(), &control_) - siblings.begin();
    const auto count = static_cast<std::ptrdiff_t>(siblings.size());
    OptionButton* next =
        siblings.empty() ? nullptr : siblings[static_cast<std::size_t>((here + step + count) % count)];
    if (next == nullptr || next == &control_) {
        return;
    }
    if (auto* view = dynamic_cast<WidgetView*>(next->view())) {
        view->focus();
    }
    guarded(next->form(), [next] { next->user_click(); });
}

} // namespace quittika
