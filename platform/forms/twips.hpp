#pragma once

#include <cmath>

namespace quittika {

inline constexpr int kTwipsPerPixel = 15; ///< 1440 an inch of 96 logical pixels

constexpr int twips(int pixels) {
    return pixels * kTwipsPerPixel;
}
/// Rounded to the nearest twip.
inline int twips(double pixels) {
    return static_cast<int>(std::lround(pixels * kTwipsPerPixel));
}
/// Rounded to the nearest pixel.
inline int pixels(int twips) {
    return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
}

} // namespace quittika
