#include "platform/qt/range_views.hpp"

#include "platform/qt/guard.hpp"

#include <QEvent>

namespace quittika {

RangeView::RangeView(RangeControl& control, QAbstractSlider& widget) : TypedView(control, widget) {
    connect(&widget, &QAbstractSlider::valueChanged, this, [this](int value) {
        if (!pushing_) {
            guarded(control_.form(), [this, value] { control_.Value = value; });
            push_all();
        }
    });
}

bool RangeView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && !widget_.hasFocus()) {
        event->ignore();
        return true;
    }
    return WidgetView::eventFilter(watched, event);
}

void RangeView::push_all() {
    const Pushing here(pushing_);
    widget_.setRange(control_.Min(), control_.Max());
    widget_.setValue(control_.Value());
}

void RangeView::push(PropertyId id) {
    if (id == PropertyId::Min || id == PropertyId::Max || id == PropertyId::Value) {
        push_all();
    }
}

void ProgressView::push_all() {
    widget_.setRange(control_.Min(), control_.Max());
    widget_.setValue(control_.Value());
}

void ProgressView::push(PropertyId id) {
    if (id == PropertyId::Min || id == PropertyId::Max || id == PropertyId::Value) {
        push_all();
    }
}

} // namespace quittika
