#include "platform/script/script_clock.hpp"

#include <chrono>
#include <ctime>

namespace quittika {

namespace chrono = std::chrono;

Zeitpunkt ScriptClock::now() const {
    const chrono::sys_time<chrono::milliseconds> time{chrono::milliseconds(wall_)};
    const auto midnight = chrono::floor<chrono::days>(time);
    const chrono::year_month_day date(midnight);
    const chrono::hh_mm_ss<chrono::seconds> day(chrono::floor<chrono::seconds>(time - midnight));
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(day.hours().count()),
            static_cast<int>(day.minutes().count()),
            static_cast<int>(day.seconds().count())};
}

void ScriptClock::set(const Zeitpunkt &time) {
    const chrono::sys_days date = chrono::year(time.jahr) / chrono::month(static_cast<unsigned>(time.monat)) /
                                  chrono::day(static_cast<unsigned>(time.tag));
    const auto moment =
        date + chrono::hours(time.stunde) + chrono::minutes(time.minute) + chrono::seconds(time.sekunde);
    wall_ = chrono::duration_cast<chrono::milliseconds>(moment.time_since_epoch()).count();
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
