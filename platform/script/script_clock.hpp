#pragma once

#include "platform/shell.hpp"

#include <cstdint>

namespace quittika {

/// A clock that stands still until it is moved on.
class ScriptClock final : public Clock {
public:
    Zeitpunkt now() const override;

    void set(const Zeitpunkt& time);
    void set_to_real_time();

    /// Milliseconds that the clock was moved on altogether; setting it does not count.
    std::int64_t elapsed() const { return elapsed_; }
    /// Moves the clock on to that count; it never goes back.
    void advance_to(std::int64_t elapsed);

private:
    std::int64_t wall_ = 0; ///< milliseconds since 1970 of the local calendar
    std::int64_t elapsed_ = 0;
};

} // namespace quittika
