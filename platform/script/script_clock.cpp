#include "platform/script/script_clock.hpp"

#include <ctime>

namespace quittika {

namespace {

constexpr std::int64_t kMillisecondsPerSecond = 1000;

} // namespace

Zeitpunkt ScriptClock::now() const {
    return zeitpunkt_aus(wall_ / kMillisecondsPerSecond);
}

void ScriptClock::set(const Zeitpunkt& time) {
    wall_ = sekunden_aus(time) * kMillisecondsPerSecond;
}

void ScriptClock::set_to_real_time() {
    const std::time_t present = std::time(nullptr);
    std::tm local{};
    localtime_r(&present, &local);
    set({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec});
}

void ScriptClock::advance_to(std::int64_t elapsed) {
    if (elapsed > elapsed_) {
        wall_ += elapsed - elapsed_;
        elapsed_ = elapsed;
    }
}

} // namespace quittika
