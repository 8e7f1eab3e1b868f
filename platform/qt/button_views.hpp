#pragma once

#include "platform/qt/widget_view.hpp"

#include <QAbstractButton>
#include <QCheckBox>
#include <QRadioButton>

namespace quittika {

/// What all buttons share: the caption and the click.
template <class C, class W> class ButtonView : public TypedView<C, W> {
public:
    ButtonView(C& control, W& widget);

protected:
    void push(PropertyId id) override;
    /// Brings the widget's state back to the control's.
    virtual void push_value() {}

private:
    void clicked();
};

class CommandButtonView final : public ButtonView<CommandButton, QAbstractButton> {
public:
    CommandButtonView(CommandButton& control, QAbstractButton& widget);

protected:
    void push(PropertyId id) override;
    void push_all() override;
    bool key_pressed(const QKeyEvent& event) override;
};

class CheckBoxView final : public ButtonView<CheckBox, QCheckBox> {
public:
    using ButtonView::ButtonView;

protected:
    void push_all() override;
    void push_value() override;
};

class OptionButtonView final : public ButtonView<OptionButton, QRadioButton> {
public:
    OptionButtonView(OptionButton& control, QRadioButton& widget);

protected:
    void push_all() override;
    void push_value() override;
    /// The arrow keys go on to the next button of the same container and switch it on.
    bool key_pressed(const QKeyEvent& event) override;

private:
    void go(int step);
};

} // namespace quittika
