#include "platform/qt/range_views.hpp"

#include "platform/qt/guard.hpp"

#include <QScrollBar>

#include <algorithm>

namespace quittika {

namespace {

/// That part of the range, at least 1.
int step(const RangeControl& range, int part) {
    return std::max(1, range.Max() / part - range.Min() / part);
}

} // namespace

RangeView::RangeView(RangeControl& control, QAbstractSlider& widget) : TypedView(control, widget) {
    if (qobject_cast<QScrollBar*>(&widget) != nullptr) {
        // A scroll bar that stands for a value is moved by keys, too: to the right and down is more.
        widget.setFocusPolicy(Qt::StrongFocus);
        widget.setInvertedControls(widget.orientation() == Qt::Vertical);
    }
    connect(&widget, &QAbstractSlider::valueChanged, this, [this](int value) {
        if (!pushing_) {
            guarded(control_.form(), [this, value] { control_.Value = value; });
            push_all();
        }
    });
}

bool RangeView::eventFilter(QObject* watched, QEvent* event) {
    return passes_by(*event, widget_) || WidgetView::eventFilter(watched, event);
}

void RangeView::push_all() {
    const Pushing here(pushing_);
    widget_.setRange(control_.Min(), control_.Max());
    widget_.setSingleStep(step(control_, 200));
    widget_.setPageStep(step(control_, 10));
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
