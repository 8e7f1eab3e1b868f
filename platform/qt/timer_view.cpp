#include "platform/qt/timer_view.hpp"

#include "platform/qt/guard.hpp"
#include "platform/qt/qt_desktop.hpp"

namespace quittika {

TimerView::TimerView(Timer& control, const QtDesktop& desktop) : control_(control), desktop_(desktop) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { tick(); });
}

void TimerView::property_changed(PropertyId id) {
    if (id == PropertyId::Interval) {
        timer_.stop(); // the new interval counts from now on
    }
    if (id == PropertyId::Interval || id == PropertyId::Enabled) {
        update();
    }
}

void TimerView::update() {
    if (!control_.running()) {
        timer_.stop();
    } else if (!timer_.isActive()) {
        timer_.start(control_.Interval());
    }
}

void TimerView::tick() {
    update();
    if (ticking_ || desktop_.standing_still() || !control_.running() || !control_.Tick) {
        return;
    }
    ticking_ = true;
    guarded(control_.form(), [this] { control_.Tick(); });
    ticking_ = false;
}

} // namespace quittika
