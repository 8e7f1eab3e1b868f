#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quittika {

enum class PictureFormat { None, Bmp, Gif, Jpeg, Png };

/// What the headers and the block structure of a picture file tell; nothing is decoded for it.
struct PictureOutline {
    PictureFormat format = PictureFormat::None; ///< by content, whatever the file is called
    std::int64_t width = 0;                     ///< pixels, as stored
    std::int64_t height = 0;                    ///< pixels, as stored
    bool complete = false;                      ///< the file reaches to the end of the picture
    bool deep = false;                          ///< more than 8 bits for each colour, or transparent
    int passes = 1;                             ///< times that decoding goes over the whole picture
};

/// Takes any bytes; of animations the first picture counts.
PictureOutline picture_outline(std::string_view bytes);

/// Leaves of a complete png file what its pixels need. Comments and profiles can unpack to any size.
void strip_png(std::string& bytes);

} // namespace quittika
