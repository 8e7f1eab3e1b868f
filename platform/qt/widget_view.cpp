#include "platform/qt/widget_view.hpp"

#include "platform/forms/twips.hpp"
#include "platform/qt/guard.hpp"
#include "platform/qt/qt_text.hpp"

#include <QAbstractScrollArea>
#include <QDropEvent>
#include <QFocusEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QStackedWidget>
#include <QWheelEvent>
#include <QWidget>

#include <cmath>
#include <utility>

namespace quittika {

namespace {

constexpr std::pair<int, int> kKeyCodes[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},     {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},  {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27}, {Qt::Key_PageUp, 33},  {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},      {Qt::Key_Home, 36},   {Qt::Key_Left, 37},    {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},    {Qt::Key_Down, 40},   {Qt::Key_Insert, 45},  {Qt::Key_Delete, 46},
    {Qt::Key_Plus, 187},    {Qt::Key_Comma, 188}, {Qt::Key_Minus, 189},  {Qt::Key_Period, 190},
};

MouseButton button_of(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return MouseButton::Left;
    case Qt::RightButton:
        return MouseButton::Right;
    default:
        return MouseButton::None;
    }
}

/// The place inside the widget is rounded to whole pixels; a finer screen knows it better, in the window.
QPointF exact_place(const QMouseEvent& event, const QWidget& widget) {
    const QPointF finer = widget.mapFrom(widget.window(), event.scenePosition());
    const QPointF off = finer - event.position();
    const bool same = std::abs(off.x()) < 1 && std::abs(off.y()) < 1; // else a made event without a window
    return same ? finer : event.position();
}

/// `rounding`: twips from the control's exact place to that of its widget.
MouseEvent to_desktop(const QMouseEvent& event, const QWidget& widget, QPoint rounding) {
    Qt::MouseButton button = event.button();
    if (event.type() == QEvent::MouseMove) { // several held together are none of them
        button = event.buttons() == Qt::LeftButton    ? Qt::LeftButton
                 : event.buttons() == Qt::RightButton ? Qt::RightButton
                                                      : Qt::NoButton;
    }
    const QPointF place = exact_place(event, widget);
    return {button_of(button), twips(place.x()) + rounding.x(), twips(place.y()) + rounding.y()};
}

bool explicitly_hidden(const QWidget& widget) {
    return widget.testAttribute(Qt::WA_WState_ExplicitShowHide) && widget.testAttribute(Qt::WA_WState_Hidden);
}

/// A letter with Alt names a control. Where none answers to it, it is no text either.
bool is_unanswered_mnemonic(const QKeyEvent& key) {
    const Qt::KeyboardModifiers held = key.modifiers();
    return held.testFlag(Qt::AltModifier) && !held.testFlag(Qt::ControlModifier) &&
           !held.testFlag(Qt::GroupSwitchModifier) && !key.text().isEmpty() && key.text().at(0).isPrint();
}

/// A change of the focus inside a window; what leaves or comes back with the whole window is none.
bool moves_in_window(const QFocusEvent& event) {
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason &&
           event.reason() != Qt::MenuBarFocusReason;
}

} // namespace

int desktop_key_code(int qt_key) {
    const bool letter_or_digit =
        (qt_key >= Qt::Key_0 && qt_key <= Qt::Key_9) || (qt_key >= Qt::Key_A && qt_key <= Qt::Key_Z);
    if (letter_or_digit || qt_key == Qt::Key_Space) {
        return qt_key;
    }
    if (qt_key >= Qt::Key_F1 && qt_key <= Qt::Key_F12) {
        constexpr int kF1 = 112;
        return kF1 + qt_key - Qt::Key_F1;
    }
    for (const auto& [key, code] : kKeyCodes) {
        if (key == qt_key) {
            return code;
        }
    }
    return 0;
}

WidgetView::WidgetView(Control& control, QWidget& widget) : control_(control), widget_(widget) {}

WidgetView::~WidgetView() = default;

QWidget& WidgetView::surface() const {
    auto* area = qobject_cast<QAbstractScrollArea*>(&widget_);
    return area == nullptr ? widget_ : *area->viewport();
}

void WidgetView::start() {
    push_common_start();
    push_all();
    QWidget& mouse_widget = surface();
    widget_.installEventFilter(this);
    if (&mouse_widget != &widget_) {
        mouse_widget.installEventFilter(this);
    }
    // Whether there is a handler shows when something comes.
    mouse_widget.setAcceptDrops(true);
    mouse_widget.setMouseTracking(true);
}

void WidgetView::push_common_start() {
    push_enabled();
    push_visible();
    push_colors();
    if (control_.FontBold()) {
        push_bold();
    }
    if (!control_.ToolTipText().empty()) {
        push_tool_tip();
    }
    if (control_.placing() != Placing::Layout) {
        place_ = std::make_unique<WidgetPlace>(control_, widget_);
    }
}

void WidgetView::property_changed(PropertyId id) {
    switch (id) {
    case PropertyId::Enabled:
        return push_enabled();
    case PropertyId::Visible:
        return push_visible();
    case PropertyId::BackColor:
    case PropertyId::ForeColor:
    case PropertyId::OwnLook:
        return push_colors();
    case PropertyId::FontBold:
        return push_bold();
    case PropertyId::ToolTipText:
        return push_tool_tip();
    case PropertyId::Left:
    case PropertyId::Top:
    case PropertyId::Width:
    case PropertyId::Height:
        return place_->push();
    default:
        return push(id);
    }
}

void WidgetView::focus() {
    const bool unseen = widget_.window()->isVisible() && !widget_.isVisible(); // on a page behind another one
    if (!unseen) {
        widget_.setFocus(Qt::OtherFocusReason);
    }
}

void WidgetView::push_enabled() {
    if (control_.Enabled() == widget_.testAttribute(Qt::WA_ForceDisabled)) {
        widget_.setEnabled(control_.Enabled());
    }
}

void WidgetView::push_visible() {
    // A page behind a tab is hidden and shown by the tabs.
    if (control_.Visible() == explicitly_hidden(widget_) &&
        qobject_cast<QStackedWidget*>(widget_.parentWidget()) == nullptr) {
        widget_.setVisible(control_.Visible());
    }
}

void WidgetView::push_colors() {
    colors_.push(widget_, control_, ground());
}

void WidgetView::push_bold() {
    QFont font = widget_.font();
    font.setBold(control_.FontBold());
    widget_.setFont(font);
}

void WidgetView::push_tool_tip() {
    widget_.setToolTip(tool_tip(control_.ToolTipText()));
}

bool WidgetView::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
        if (control_.GotFocus && moves_in_window(static_cast<QFocusEvent&>(*event))) {
            guarded(control_.form(), [this] { control_.GotFocus(); });
        }
        return false;
    case QEvent::FocusOut:
        if (moves_in_window(static_cast<QFocusEvent&>(*event))) {
            left(); // first: what follows may take all of this away
            guarded(control_.form(), [this] { control_.user_leave(); });
        } else if (static_cast<QFocusEvent&>(*event).reason() == Qt::ActiveWindowFocusReason) {
            guarded(control_.form(), [this] { control_.form().FieldLeft(); });
        }
        return false;
    case QEvent::KeyPress: {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (is_unanswered_mnemonic(key)) {
            return true;
        }
        const int code = control_.KeyDown ? desktop_key_code(key.key()) : 0;
        if (code != 0) {
            guarded(control_.form(), [&] { control_.KeyDown(code); });
        }
        return key_pressed(key);
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return widget_.isEnabled() && mouse(*event);
    case QEvent::Wheel:
        return control_.MouseWheel && widget_.isEnabled() && wheel(static_cast<const QWheelEvent&>(*event));
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return control_.OLEDragDrop && widget_.isEnabled() && drop(static_cast<QDropEvent&>(*event));
    default:
        return false;
    }
}

bool WidgetView::hears_mouse() const {
    return control_.MouseDown || control_.MouseMove || control_.MouseUp || control_.Click ||
           control_.DblClick;
}

bool WidgetView::mouse(const QEvent& event) {
    const auto& given = static_cast<const QMouseEvent&>(event);
    const MouseEvent at = to_desktop(given, surface(), place_ == nullptr ? QPoint() : place_->rounding());
    const auto fire = [&](const Control::MouseHandler& handler) {
        if (handler) {
            guarded(control_.form(), [&] { handler(at); });
        }
    };
    // What is not taken here goes on to the widget, and from labels and frames to what lies beneath.
    const bool taken = clicks() == Clicks::Taken && hears_mouse();
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        pressed_ = true;
        fire(control_.MouseDown);
        return taken;
    case QEvent::MouseMove:
        fire(control_.MouseMove);
        return taken;
    case QEvent::MouseButtonDblClick:
        pressed_ = true;
        fire(control_.MouseDown);
        if (control_.DblClick && clicks() != Clicks::Own && at.button == MouseButton::Left) {
            guarded(control_.form(), [this] { control_.DblClick(); });
        }
        return taken;
    default:
        fire(control_.MouseUp);
        if (std::exchange(pressed_, false)) { // else the end of a drag from elsewhere
            release(at.button, given.position().toPoint());
        }
        return taken;
    }
}

bool WidgetView::wheel(const QWheelEvent& event) {
    const WheelEvent turned{event.angleDelta().y(), event.modifiers().testFlag(Qt::ControlModifier)};
    if (turned.turn != 0) {
        guarded(control_.form(), [&] { control_.MouseWheel(turned); });
    }
    return turned.turn != 0;
}

void WidgetView::release(MouseButton button, QPoint place) {
    if (button == MouseButton::Left && clicks() != Clicks::Own && surface().rect().contains(place)) {
        guarded(control_.form(), [this] { control_.user_click(); });
    }
}

bool WidgetView::drop(QDropEvent& event) {
    if (!event.mimeData()->hasText()) {
        return false;
    }
    take_copy(event, event.possibleActions().testFlag(Qt::CopyAction));
    if (event.type() == QEvent::Drop && event.isAccepted()) {
        QMetaObject::invokeMethod( // when the drag has ended, so that the handler may ask the user
            this,
            [this, text = lines_from_qt(event.mimeData()->text())] {
                guarded(control_.form(), [&] { control_.OLEDragDrop(text); });
            },
            Qt::QueuedConnection);
    }
    return true;
}

bool passes_by(QEvent& event, const QWidget& widget) {
    if (event.type() != QEvent::Wheel || widget.hasFocus()) {
        return false;
    }
    event.ignore();
    return true;
}

void take_copy(QDropEvent& event, bool accepted) {
    // Never a move: the one who dragged would then take the text away.
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(accepted);
}

} // namespace quittika
