#pragma once

#include "platform/picture_outline.hpp"

#include <cstddef>
#include <string>

namespace quittika {

class PictureControl;

/// In pixels, as the picture is shown: turned where the camera was.
struct PictureSize {
    int width = 0;
    int height = 0;
    bool operator==(const PictureSize&) const = default;
};

/// Bounds within which a picture is decoded fast and without using up the memory.
inline constexpr std::size_t kLargestPictureFile = 64'000'000; ///< bytes
inline constexpr std::int64_t kMostPixels = 20'000'000;        ///< of deep pictures half as many
inline constexpr std::int64_t kLongestSide = 30'000;           ///< pixels
/// Pixels that decoding touches, every pass counted.
inline constexpr std::int64_t kMostPixelVisits = 400'000'000;
inline constexpr double kLongestDecoding = 1; ///< seconds of computing

/// Picture files as this desktop can show them: bmp, gif, jpg and png, recognised by their content.
/// What cannot be shown throws `Laufzeitfehler`: the number of the file operation with the path (53 missing,
/// 75 no file, ...), or 481 with the reason and the way out as a German sentence in `ort()`. Nothing is
/// decoded that goes beyond the bounds.
class Pictures {
public:
    Pictures() = default;
    Pictures(const Pictures&) = delete;
    Pictures& operator=(const Pictures&) = delete;
    virtual ~Pictures() = default;

    /// Size of a picture that can be shown. Throws for any other.
    virtual PictureSize check(const std::string& path) = 0;
    /// Shows a picture file in a control; an empty path takes the picture away. Where it throws, the control
    /// keeps what it shows. (Writing `Picture` itself shows nothing where the file is no picture.)
    void load(PictureControl& control, const std::string& path);
};

/// Judges pictures by their headers alone; sizes are the stored ones.
class PictureHeaders final : public Pictures {
public:
    PictureSize check(const std::string& path) override;
};

/// The bytes of a picture file, of a png those that its pixels need, and their outline.
struct PictureFile {
    std::string bytes;
    PictureOutline outline;
};

/// Reads a file of which the headers let a picture expect. Throws as `Pictures` does.
PictureFile read_picture_file(const std::string& path);

/// 481 for a picture whose headers were in order, but not what came behind them.
[[noreturn]] void refuse_broken_picture();
/// 481 for a picture that takes too long.
[[noreturn]] void refuse_slow_picture();

} // namespace quittika
