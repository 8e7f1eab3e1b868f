#pragma once

#include "platform/forms/controls.hpp"
#include "platform/qt/colors.hpp"
#include "platform/qt/widget_place.hpp"

#include <QObject>

#include <memory>

class QDropEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;
class QWidget;

namespace quittika {

/// The desktop's key code of a key, 0 for a key that it has none for.
int desktop_key_code(int qt_key);

/// How a control comes by its clicks.
enum class Clicks {
    Own,    ///< the widget reports them
    Shared, ///< from the mouse, and the widget gets the mouse as well
    Taken,  ///< from the mouse, which the widget does not get where somebody listens
};

/// Ties a control to its widget, both ways: what all kinds share. The window owns the widget and outlives
/// the view; taking the view away ends every connection.
class WidgetView : public QObject, public ControlView {
public:
    WidgetView(Control& control, QWidget& widget);
    ~WidgetView() override;

    void property_changed(PropertyId id) override;

    /// Brings the widget to what the control holds; called once, when both are tied together.
    void start();
    QWidget& widget() const { return widget_; }
    virtual void focus();

protected:
    /// Properties of the kind itself; those that all controls have are done here.
    virtual void push(PropertyId /*id*/) {}
    /// The kind's own properties that are pushed at the start.
    virtual void push_all() { push(PropertyId::Caption); }
    /// The widget in which the mouse is pressed.
    virtual QWidget& surface() const;
    virtual Clicks clicks() const { return Clicks::Own; }
    /// The ground of a control that has none of its own.
    virtual Color ground() const { return color::kButtonFace; }
    /// A key press, before the widget gets it. Returns whether the widget shall not get it.
    virtual bool key_pressed(const QKeyEvent& /*event*/) { return false; }
    /// The focus has left the widget for another one of the window.
    virtual void left() {}

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void push_enabled();
    void push_visible();
    void push_colors();
    void push_bold();
    void push_tool_tip();
    void push_common_start();
    bool mouse(const QEvent& event);
    void release(MouseButton button, QPoint place);
    bool drop(QDropEvent& event);
    bool hears_mouse() const;
    bool wheel(const QWheelEvent& event);

    Control& control_;
    QWidget& widget_;
    WidgetColors colors_;
    bool pressed_ = false;               ///< a button went down here
    std::unique_ptr<WidgetPlace> place_; ///< where the program cares for it
};

/// Whether the event is a wheel that only turns the page: it must not change what it passes by without focus.
bool passes_by(QEvent& event, const QWidget& widget);

/// Answers what is dragged over a widget or dropped on it: taken as a copy, or not at all.
void take_copy(QDropEvent& event, bool accepted);

/// A view that knows the exact types of its two sides.
template <class C, class W> class TypedView : public WidgetView {
public:
    TypedView(C& control, W& widget) : WidgetView(control, widget), control_(control), widget_(widget) {}

protected:
    C& control_;
    W& widget_;
};

/// Marks a stretch in which the widget is changed on behalf of the control.
class Pushing {
public:
    explicit Pushing(bool& flag) : flag_(flag), before_(flag) { flag = true; }
    Pushing(const Pushing&) = delete;
    Pushing& operator=(const Pushing&) = delete;
    ~Pushing() { flag_ = before_; }

private:
    bool& flag_;
    bool before_;
};

} // namespace quittika
