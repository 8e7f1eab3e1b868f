#pragma once

#include "platform/forms/controls.hpp"

#include <QTimer>

namespace quittika {

class QtDesktop;

/// Lets a timer control tick. A tick that is still being handled is not followed by another, and while the
/// desktop stands still there is none.
class TimerView final : public ControlView {
public:
    TimerView(Timer& control, const QtDesktop& desktop);

    void property_changed(PropertyId id) override;
    /// Starts or stops as the control and its form want it.
    void update();

private:
    void tick();

    Timer& control_;
    const QtDesktop& desktop_;
    QTimer timer_;
    bool ticking_ = false;
};

} // namespace quittika
