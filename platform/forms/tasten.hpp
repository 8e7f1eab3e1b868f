#pragma once

#include "platform/forms/control.hpp"

#include <functional>
#include <map>
#include <utility>

namespace quittika {

inline constexpr int kEingabetaste = 13;
inline constexpr int kFeststelltaste = 20;
inline constexpr int kEscape = 27;
inline constexpr int kPfeilHoch = 38;
inline constexpr int kPfeilRunter = 40;
inline constexpr int kEntfernen = 46;
inline constexpr int kF1 = 112;
inline constexpr int kF3 = 114;

/// What each of these keys does.
inline std::function<void(int)> TASTEN(std::map<int, Control::Event> belegung) {
    return [belegung = std::move(belegung)](int taste) {
        if (const auto gedrueckt = belegung.find(taste); gedrueckt != belegung.end()) {
            gedrueckt->second();
        }
    };
}

} // namespace quittika
