#include "platform/pictures.hpp"

#include "platform/datei.hpp"
#include "platform/forms/controls.hpp"
#include "platform/laufzeitfehler.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr std::int64_t kMostBytesPerPixel = 16;
constexpr std::int64_t kMostBytesBesidePixels = 8'000'000; ///< comments, profiles, small previews

[[noreturn]] void refuse(const std::string& reason) {
    throw Laufzeitfehler(fehler::kBild, reason);
}

std::string read(const std::string& path) {
    try {
        return bytes_lesen(path, kLargestPictureFile);
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() != fehler::kSpeicher) {
            throw;
        }
    }
    refuse("Die Bilddatei ist größer als " + std::to_string(kLargestPictureFile / 1'000'000) +
           " MB. Bitte das Bild verkleinern.");
}

void judge(const PictureOutline& outline, std::size_t bytes) {
    const std::int64_t longest = std::max(outline.width, outline.height);
    const std::int64_t most = outline.deep ? kMostPixels / 2 : kMostPixels;
    if (outline.format == PictureFormat::None) {
        refuse("Die Datei ist kein Bild der Art BMP, GIF, JPG oder PNG.");
    }
    if (outline.width <= 0 || outline.height <= 0) {
        refuse_broken_picture();
    }
    if (longest > kLongestSide || outline.width * outline.height > most) {
        refuse("Das Bild hat " + std::to_string(outline.width) + " x " + std::to_string(outline.height) +
               " Bildpunkte. Bitte auf höchstens " + std::to_string(most / 1'000'000) +
               " Millionen verkleinern, keine Seite länger als " + std::to_string(kLongestSide) + ".");
    }
    if (!outline.complete) {
        refuse_broken_picture();
    }
    const std::int64_t pixels = outline.width * outline.height;
    if (pixels > kMostPixelVisits / std::max(outline.passes, 1) ||
        static_cast<std::int64_t>(bytes) > kMostBytesBesidePixels + kMostBytesPerPixel * pixels) {
        refuse_slow_picture();
    }
}

} // namespace

void refuse_broken_picture() {
    refuse("Die Bilddatei ist beschädigt oder unvollständig. Bitte ein anderes Bild wählen.");
}

void refuse_slow_picture() {
    refuse("Das Bild ist zu aufwendig gespeichert. Bitte mit einem Bildprogramm neu speichern.");
}

PictureFile read_picture_file(const std::string& path) {
    PictureFile file{read(path), {}};
    file.outline = picture_outline(file.bytes);
    judge(file.outline, file.bytes.size());
    if (file.outline.format == PictureFormat::Png) {
        strip_png(file.bytes);
    }
    return file;
}

void Pictures::load(PictureControl& control, const std::string& path) {
    if (!path.empty()) {
        check(path);
    }
    control.show_picture(path);
}

PictureSize PictureHeaders::check(const std::string& path) {
    const PictureOutline outline = read_picture_file(path).outline;
    return {static_cast<int>(outline.width), static_cast<int>(outline.height)};
}

} // namespace quittika
