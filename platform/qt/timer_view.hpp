#pragma once

#include "platform/forms/controls.hpp"

#include <QTimer>

namespace quittika {

/// Lets a timer control tick. A tick that is still being handled is not followed by another.
class TimerView final : public ControlView {
public:
    explicit TimerView(Timer& control);

    void property_changed(PropertyId id) override;
    /// Starts or stops as the control and its form want it.
    void update();

private:
    void tick();

    Timer& control_;
    QTimer timer_;
    bool ticking_ = false;
};

} // namespace quittika
