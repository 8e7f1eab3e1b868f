#include "platform/script/script_timers.hpp"

#include <algorithm>
#include <optional>

namespace quittika {

struct ScriptTimers::Entry {
    Timer* timer;
    const Form* form;
    std::optional<std::int64_t> due; ///< as `ScriptClock::elapsed` counts; empty while it stands
    bool ticking = false;
};

/// Lets a changed timer count anew.
class ScriptTimers::View final : public ControlView {
public:
    explicit View(std::shared_ptr<Entry> entry) : entry_(std::move(entry)) {}
    void property_changed(PropertyId id) override {
        if (id == PropertyId::Interval || id == PropertyId::Enabled) {
            entry_->due.reset();
        }
    }

private:
    std::shared_ptr<Entry> entry_;
};

void ScriptTimers::watch(Form& form) {
    for (Control* control : form.controls()) {
        if (auto* timer = dynamic_cast<Timer*>(control)) {
            const auto entry = std::make_shared<Entry>(Entry{timer, &form, std::nullopt});
            timer->attach(std::make_unique<View>(entry));
            entries_.push_back(entry);
        }
    }
    update();
}

void ScriptTimers::forget(const Form& form) {
    std::erase_if(entries_, [&form](const auto& entry) { return entry->form == &form; });
}

void ScriptTimers::update() {
    for (const auto& entry : entries_) {
        if (!entry->timer->running()) {
            entry->due.reset();
        } else if (!entry->due) {
            entry->due = clock_.elapsed() + entry->timer->Interval();
        }
    }
}

std::shared_ptr<ScriptTimers::Entry> ScriptTimers::next_due(std::int64_t until) const {
    std::shared_ptr<Entry> next;
    for (const auto& entry : entries_) {
        const bool waits = entry->due && !entry->ticking && *entry->due <= until;
        if (waits && (!next || *entry->due < *next->due)) {
            next = entry;
        }
    }
    return next;
}

void ScriptTimers::advance(std::int64_t milliseconds, const std::function<void(Timer&)>& fire) {
    const std::int64_t until = clock_.elapsed() + milliseconds;
    update();
    while (const auto entry = next_due(until)) {
        clock_.advance_to(*entry->due);
        // A wait inside the event of another timer may have left this one behind.
        entry->due = std::max(*entry->due, clock_.elapsed()) + entry->timer->Interval();
        fire(*entry->timer);
        update();
    }
    clock_.advance_to(until);
}

std::vector<Timer*> ScriptTimers::running(const Form& form) const {
    std::vector<Timer*> found;
    for (const auto& entry : entries_) {
        if (entry->form == &form && entry->timer->running()) {
            found.push_back(entry->timer);
        }
    }
    return found;
}

std::shared_ptr<ScriptTimers::Entry> ScriptTimers::entry_of(const Timer& timer) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&timer](const auto& entry) { return entry->timer == &timer; });
    return found == entries_.end() ? nullptr : *found;
}

void ScriptTimers::tick(Timer& timer) {
    const auto entry = entry_of(timer);
    if (!entry || entry->ticking) {
        return;
    }
    struct Ticking {
        explicit Ticking(bool& flag) : flag_(flag) { flag_ = true; }
        Ticking(const Ticking&) = delete;
        Ticking& operator=(const Ticking&) = delete;
        ~Ticking() { flag_ = false; }
        bool& flag_;
    } const under_way(entry->ticking);
    timer.Tick();
}

} // namespace quittika
