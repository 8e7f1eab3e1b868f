#pragma once

#include "platform/qt/widget_view.hpp"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace quittika {

/// What text fields of one and of many lines share. A text that the widget cannot hold is shown in part and
/// cannot be edited there; the control keeps it whole.
template <class W> class TextView : public TypedView<TextBox, W> {
public:
    using TypedView<TextBox, W>::TypedView;

protected:
    void push(PropertyId id) override;
    void push_all() override;
    Clicks clicks() const override { return Clicks::Shared; }
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool key_pressed(const QKeyEvent& event) override;
    void left() override;

    /// The widget's text has changed under the user's hands.
    void take_text();
    /// The widget's cursor or selection has moved.
    void take_selection();

private:
    void push_text();
    void push_read_only();
    void push_selection();
    void insert_copy(QDropEvent& drop);
    bool takes_back(const QKeyEvent& key) const;

    bool inserting_ = false;
    bool pushing_ = false;
    bool holds_all_ = true;
};

class TextLineView final : public TextView<QLineEdit> {
public:
    TextLineView(TextBox& control, QLineEdit& widget);

protected:
    /// What is marked when the field is entered stays so when it was entered by a click.
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Escape empties a field that has a button for it; an empty one leaves the key to its window.
    bool key_pressed(const QKeyEvent& event) override;

private:
    bool marked_on_entry_ = false; ///< and the mouse button is still down
};

class TextAreaView final : public TextView<QPlainTextEdit> {
public:
    TextAreaView(TextBox& control, QPlainTextEdit& widget);
};

} // namespace quittika
