#pragma once

#include <concepts>
#include <functional>
#include <utility>

namespace quittika {

/// Counts what runs on behalf of a window: its handlers, and a toolkit's code around them. Whoever destroys
/// the window waits for the end of all of it. A platform that waits for the user inside the toolkit (while
/// something is dragged, say) holds the window meanwhile.
class Activity {
public:
    Activity() = default;
    Activity(const Activity&) = delete;
    Activity& operator=(const Activity&) = delete;
    ~Activity() { join(nullptr); }

    /// Something under way, as long as this lives.
    class Hold {
    public:
        explicit Hold(Activity& activity) : activity_(activity) { activity_.begin(); }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;
        ~Hold() { activity_.end(); }

    private:
        Activity& activity_;
    };

    bool idle() const { return count_ == 0; }
    /// `notify` is called whenever everything has come to its end. It may not destroy the window itself.
    void when_idle(std::function<void()> notify) { notify_ = std::move(notify); }
    /// What runs here is part of what runs in `whole`, too; null for nothing any more. The whole must last
    /// as long.
    void join(Activity* whole) {
        Activity* const former = std::exchange(whole_, whole);
        if (count_ > 0 && whole != nullptr) {
            whole->begin();
        }
        if (count_ > 0 && former != nullptr) {
            former->end();
        }
    }

private:
    void begin() {
        if (++count_ == 1 && whole_ != nullptr) {
            whole_->begin();
        }
    }
    void end() {
        if (--count_ > 0) {
            return;
        }
        Activity* const whole = whole_; // the one that was told of the beginning
        if (notify_) {
            notify_();
        }
        if (whole != nullptr) {
            whole->end();
        }
    }

    int count_ = 0;
    Activity* whole_ = nullptr;
    std::function<void()> notify_;
};

/// What the program does when something happens to a control or form. Empty at first: nothing.
template <class... Args> class Handler {
public:
    explicit Handler(Activity& activity) : activity_(activity) {}
    Handler(const Handler&) = delete;
    Handler& operator=(const Handler&) = delete;

    template <std::invocable<Args...> Routine> Handler& operator=(Routine&& routine) {
        routine_ = std::forward<Routine>(routine);
        return *this;
    }
    explicit operator bool() const { return static_cast<bool>(routine_); }

    void operator()(Args... args) const {
        if (routine_) {
            const Activity::Hold running(activity_);
            routine_(std::forward<Args>(args)...);
        }
    }

private:
    Activity& activity_;
    std::function<void(Args...)> routine_;
};

} // namespace quittika
