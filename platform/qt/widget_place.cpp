#include "platform/qt/widget_place.hpp"

#include "platform/forms/form.hpp"
#include "platform/forms/twips.hpp"
#include "platform/qt/guard.hpp"
#include "platform/qt/qt_text.hpp"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QWidget>

namespace quittika {

namespace {

bool within(const QLayout& layout, const QWidget& widget) {
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* item = layout.itemAt(i);
        if (item->widget() == &widget || (item->layout() != nullptr && within(*item->layout(), widget))) {
            return true;
        }
    }
    return false;
}

/// Something of the window places the widget.
bool laid_out(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    if (parent == nullptr) {
        return false;
    }
    const auto* scroll_area = qobject_cast<const QScrollArea*>(parent->parentWidget());
    return (parent->layout() != nullptr && within(*parent->layout(), widget)) ||
           qobject_cast<const QSplitter*>(parent) != nullptr ||
           qobject_cast<const QStackedWidget*>(parent) != nullptr ||
           (scroll_area != nullptr && scroll_area->widget() == &widget);
}

/// The part of `outer` that holds what is put into it, on the way to `widget`; null if it is `outer` itself.
QWidget* inner_part(QWidget& outer, const QWidget& widget) {
    if (auto* window = qobject_cast<QMainWindow*>(&outer)) {
        return window->centralWidget();
    }
    if (auto* scroll_area = qobject_cast<QScrollArea*>(&outer)) {
        return scroll_area->widget();
    }
    if (auto* tabs = qobject_cast<QTabWidget*>(&outer)) {
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->widget(i)->isAncestorOf(&widget)) {
                return tabs->widget(i);
            }
        }
    }
    return nullptr;
}

/// The widget that the control's place is measured in; null if `widget` does not stand in its container.
QWidget* area_of(const Control& control, const QWidget& widget) {
    const Control* container = control.container().container_control();
    QWidget* area = widget.window();
    if (container != nullptr) {
        const QString name = to_qt(container->name());
        area = widget.parentWidget();
        while (area != nullptr && area->objectName() != name) {
            area = area->parentWidget();
        }
    }
    while (area != nullptr) {
        QWidget* inner = inner_part(*area, widget);
        if (inner == nullptr) {
            break;
        }
        area = inner;
    }
    return area != nullptr && area->isAncestorOf(&widget) ? area : nullptr;
}

bool program_places(const Control& control) {
    return control.placing() == Placing::Program || control.placing() == Placing::Position;
}

} // namespace

bool take_pixels(Property<int>& property, int value) {
    if (pixels(property()) == value) {
        return false;
    }
    property.adopt(twips(value));
    return true;
}

WidgetPlace::WidgetPlace(Control& control, QWidget& widget)
    : control_(control), widget_(widget), area_(area_of(control, widget)) {
    if (control.placing() != Placing::Program) {
        widget.installEventFilter(this);
    }
    if (control.placing() == Placing::Window && area_ != nullptr) {
        // What lies between may be moved, too.
        for (QWidget* w = widget.parentWidget(); w != area_ && w != nullptr; w = w->parentWidget()) {
            w->installEventFilter(this);
        }
    }
    push();
}

void WidgetPlace::push() {
    if (program_places(control_)) {
        widget_.move(pixels(control_.Left()), pixels(control_.Top()));
    }
    if (control_.placing() == Placing::Program) {
        widget_.resize(pixels(control_.Width()), pixels(control_.Height()));
    } else if (control_.placing() == Placing::Position) {
        fit();
    }
}

QPoint WidgetPlace::rounding() const {
    return program_places(control_)
               ? QPoint(twips(widget_.x()) - control_.Left(), twips(widget_.y()) - control_.Top())
               : QPoint();
}

void WidgetPlace::fit() {
    widget_.adjustSize();
    take_size();
}

void WidgetPlace::take() {
    const QPoint place = area_ == nullptr ? widget_.pos() : widget_.mapTo(area_, QPoint());
    take_pixels(control_.Left, place.x());
    take_pixels(control_.Top, place.y());
    take_size();
}

void WidgetPlace::take_size() {
    const bool wider = take_pixels(control_.Width, widget_.width());
    const bool higher = take_pixels(control_.Height, widget_.height());
    if ((wider || higher) && control_.Resize) {
        guarded(control_.form(), [this] { control_.Resize(); });
    }
}

bool WidgetPlace::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool follows = control_.placing() == Placing::Window;
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        if (follows) {
            take();
        }
        return false;
    case QEvent::LayoutRequest:
    case QEvent::Show:
        if (!follows) {
            fit();
        }
        return false;
    default:
        return false;
    }
}

std::string place_finding(const Control& control, QWidget& widget) {
    if (control.placing() == Placing::Layout) {
        return {};
    }
    const QWidget* area = area_of(control, widget);
    if (area == nullptr) {
        return "does not stand in its container";
    }
    if (control.placing() == Placing::Window) {
        return laid_out(widget) ? std::string() : "follows the window, but stands in no layout";
    }
    if (laid_out(widget)) {
        return "stands in a layout, but the program places it";
    }
    if (widget.parentWidget() != area) {
        return "stands in " + from_qt(widget.parentWidget()->objectName()) + " instead of its container";
    }
    const QSize size(pixels(control.Width()), pixels(control.Height()));
    if (control.placing() == Placing::Program &&
        size.expandedTo(widget.minimumSize()).boundedTo(widget.maximumSize()) != size) {
        return "cannot be as big as the program wants it";
    }
    return {};
}

} // namespace quittika
