#include "platform/picture_outline.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quittika {

namespace {

/// Numbers at places of a file; beyond its end everything is 0.
class Bytes {
public:
    explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

    std::size_t size() const { return bytes_.size(); }
    bool begins_with(std::string_view mark) const { return bytes_.starts_with(mark); }
    bool holds(std::size_t at, std::string_view mark) const {
        return at < bytes_.size() && bytes_.substr(at).starts_with(mark);
    }
    std::size_t find(char byte, std::size_t from) const { return bytes_.find(byte, from); }

    std::uint32_t u8(std::size_t at) const {
        return at < bytes_.size() ? static_cast<unsigned char>(bytes_[at]) : 0U;
    }
    std::uint32_t little16(std::size_t at) const { return u8(at) | (u8(at + 1) << 8U); }
    std::uint32_t little32(std::size_t at) const { return little16(at) | (little16(at + 2) << 16U); }
    std::uint32_t big16(std::size_t at) const { return (u8(at) << 8U) | u8(at + 1); }
    std::uint32_t big32(std::size_t at) const { return (big16(at) << 16U) | big16(at + 2); }

private:
    std::string_view bytes_;
};

PictureOutline bmp_outline(const Bytes& file) {
    constexpr std::uint32_t kOldHeader = 12;
    constexpr std::uint32_t kRunLength8 = 1;
    constexpr std::uint32_t kRunLength4 = 2;
    PictureOutline outline{PictureFormat::Bmp};
    const bool old = file.little32(14) == kOldHeader;
    const std::int64_t bits = old ? file.little16(24) : file.little16(28);
    const std::uint32_t compression = old ? 0 : file.little32(30);
    outline.width = old ? file.little16(18) : static_cast<std::int32_t>(file.little32(18));
    outline.height = old ? file.little16(20) : static_cast<std::int32_t>(file.little32(22));
    if (outline.height < 0) {
        outline.height = -outline.height; // stored from the top
    }
    const std::int64_t row = (outline.width * bits + 31) / 32 * 4;
    const bool packed = compression == kRunLength8 || compression == kRunLength4;
    const std::int64_t room = static_cast<std::int64_t>(file.size()) - file.little32(10);
    const std::int64_t needed = packed        ? file.little32(34)
                                : row <= room ? row * outline.height
                                              : row; // the product need not fit
    outline.complete = needed <= room;
    return outline;
}

/// Where a chain of data blocks ends; the file's size if it does not.
std::size_t behind_gif_blocks(const Bytes& file, std::size_t at) {
    while (at < file.size()) {
        const std::uint32_t length = file.u8(at);
        at += 1 + length;
        if (length == 0) {
            return at;
        }
    }
    return file.size() + 1;
}

std::size_t gif_palette_size(std::uint32_t flags) {
    return (flags & 0x80U) == 0 ? 0 : std::size_t{3} << ((flags & 7U) + 1);
}

PictureOutline gif_outline(const Bytes& file) {
    constexpr std::uint32_t kExtension = 0x21;
    constexpr std::uint32_t kPicture = 0x2C;
    PictureOutline outline{PictureFormat::Gif, file.little16(6), file.little16(8)};
    std::size_t at = 13 + gif_palette_size(file.u8(10));
    while (file.u8(at) == kExtension) {
        at = behind_gif_blocks(file, at + 2);
    }
    if (file.u8(at) == kPicture) {
        outline.width = std::max<std::int64_t>(outline.width, file.little16(at + 1) + file.little16(at + 5));
        outline.height =
            std::max<std::int64_t>(outline.height, file.little16(at + 3) + file.little16(at + 7));
        at = behind_gif_blocks(file, at + 11 + gif_palette_size(file.u8(at + 9)));
        outline.complete = at <= file.size();
    }
    return outline;
}

/// A mark of a JPEG file that begins a frame and tells its size.
bool begins_frame(std::uint32_t mark) {
    return mark >= 0xC0 && mark <= 0xCF && mark != 0xC4 && mark != 0xC8 && mark != 0xCC;
}

/// A mark that stands alone, without a segment behind it.
bool stands_alone(std::uint32_t mark) {
    return mark == 0 || mark == 1 || (mark >= 0xD0 && mark <= 0xD8);
}

PictureOutline jpeg_outline(const Bytes& file) {
    constexpr char kMark = '\xFF';
    constexpr std::uint32_t kFill = 0xFF;
    constexpr std::uint32_t kEnd = 0xD9;
    constexpr std::uint32_t kScan = 0xDA;
    PictureOutline outline{PictureFormat::Jpeg};
    outline.passes = 0;
    for (std::size_t at = 2; (at = file.find(kMark, at)) < file.size();) {
        const std::uint32_t mark = file.u8(++at);
        if (mark == kFill || stands_alone(mark)) {
            at += mark == kFill ? 0 : 1;
            continue;
        }
        if (mark == kEnd) {
            outline.complete = true;
            break;
        }
        if (begins_frame(mark)) {
            outline.height = std::max<std::int64_t>(outline.height, file.big16(at + 4));
            outline.width = std::max<std::int64_t>(outline.width, file.big16(at + 6));
        }
        outline.passes += mark == kScan ? 1 : 0;
        at += 1 + file.big16(at + 1);
    }
    return outline;
}

constexpr std::size_t kPngHead = 8;

/// Length of the chunk that begins there, with its own head and sum.
std::size_t png_chunk_size(const Bytes& file, std::size_t at) {
    return 12 + std::size_t{file.big32(at)};
}

PictureOutline png_outline(const Bytes& file) {
    PictureOutline outline{PictureFormat::Png, file.big32(16), file.big32(20)};
    constexpr std::uint32_t kTransparent = 4;
    outline.deep = file.u8(24) > 8 || (file.u8(25) & kTransparent) != 0;
    std::size_t at = kPngHead;
    while (at < file.size() && !file.holds(at + 4, "IEND")) {
        at += png_chunk_size(file, at);
    }
    outline.complete = at + 12 <= file.size();
    return outline;
}

} // namespace

PictureOutline picture_outline(std::string_view bytes) {
    const Bytes file(bytes);
    if (file.begins_with("BM")) {
        return bmp_outline(file);
    }
    if (file.begins_with("GIF87a") || file.begins_with("GIF89a")) {
        return gif_outline(file);
    }
    if (file.begins_with("\xFF\xD8\xFF")) {
        return jpeg_outline(file);
    }
    if (file.begins_with("\x89PNG\r\n\x1A\n")) {
        return png_outline(file);
    }
    return {};
}

void strip_png(std::string& bytes) {
    constexpr std::array<std::string_view, 5> kNeeded{"IHDR", "PLTE", "tRNS", "IDAT", "IEND"};
    std::size_t kept = kPngHead;
    for (std::size_t at = kPngHead; at + 12 <= bytes.size();) {
        const Bytes file(bytes);
        const std::size_t size = std::min(png_chunk_size(file, at), bytes.size() - at);
        if (std::any_of(kNeeded.begin(), kNeeded.end(),
                        [&](std::string_view name) { return file.holds(at + 4, name); })) {
            std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), size,
                        bytes.begin() + static_cast<std::ptrdiff_t>(kept));
            kept += size;
        }
        at += size;
    }
    bytes.resize(kept);
}

} // namespace quittika
