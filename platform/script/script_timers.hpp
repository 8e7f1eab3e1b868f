#pragma once

#include "platform/forms/controls.hpp"
#include "platform/script/script_clock.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace quittika {

/// The timers of all known forms, running on the script's clock.
class ScriptTimers {
public:
    explicit ScriptTimers(ScriptClock& clock) : clock_(clock) {}

    /// Takes in the timers of a form.
    void watch(Form& form);
    /// Forgets a form's timers without touching them: they may be gone already.
    void forget(const Form& form);

    /// Starts the timers that have become able to run, and stops the others.
    /// Needed after every event; a timer that starts counts from the clock's present time.
    void update();

    /// Moves the clock on and hands each timer that falls due to `fire`, in the order of the due times,
    /// those of one moment in the order of their declaration.
    void advance(std::int64_t milliseconds, const std::function<void(Timer&)>& fire);

    /// The running timers of a form.
    std::vector<Timer*> running(const Form& form) const;
    /// Runs a timer's event. A timer whose event is still under way is left alone.
    void tick(Timer& timer);

private:
    struct Entry;
    class View;
    std::shared_ptr<Entry> entry_of(const Timer& timer) const;
    std::shared_ptr<Entry> next_due(std::int64_t until) const;

    ScriptClock& clock_;
    std::vector<std::shared_ptr<Entry>> entries_;
};

} // namespace quittika
