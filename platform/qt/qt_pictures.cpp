#include "platform/qt/qt_pictures.hpp"

#include "platform/qt/qt_text.hpp"
#include "platform/verzeichnis.hpp"

#include <QFileInfo>
#include <QIODevice>
#include <QImageReader>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <iterator>
#include <utility>

namespace quittika {

namespace {

constexpr double kMostKeptPixels = 6.4e6;       ///< an A4 sheet at 257 dots an inch
constexpr qint64 kKeptBytes = qint64{96} << 20; ///< of all pictures together

const char* name_of(PictureFormat format) {
    switch (format) {
    case PictureFormat::Bmp:
        return "bmp";
    case PictureFormat::Gif:
        return "gif";
    case PictureFormat::Jpeg:
        return "jpeg";
    case PictureFormat::Png:
        return "png";
    case PictureFormat::None:
        break;
    }
    return "";
}

/// Gives out the bytes of a file until decoding it has taken too long.
class PatientSource final : public QIODevice {
public:
    explicit PatientSource(const std::string& bytes) : bytes_(bytes) { open(ReadOnly); }

    bool exhausted() const { return exhausted_; }
    qint64 size() const override { return static_cast<qint64>(bytes_.size()); }

protected:
    qint64 readData(char* data, qint64 most) override {
        exhausted_ = exhausted_ || computed_since(begin_) > kLongestDecoding;
        if (exhausted_) {
            return -1;
        }
        const qint64 count = std::min(most, size() - pos());
        std::copy_n(bytes_.data() + pos(), count, data);
        return count;
    }
    qint64 writeData(const char* /*data*/, qint64 /*count*/) override { return -1; }

private:
    /// Computing time, because a picture must not count as slow while other programs are busy.
    static double computed_since(std::clock_t begin) {
        return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    }

    const std::string& bytes_;
    std::clock_t begin_ = std::clock();
    bool exhausted_ = false;
};

QImage decode(const PictureFile& file) {
    PatientSource source(file.bytes);
    QImageReader reader(&source, name_of(file.outline.format));
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (source.exhausted()) {
        refuse_slow_picture();
    }
    if (image.isNull()) {
        refuse_broken_picture();
    }
    return image;
}

/// With 8 bits for each colour, and no more pixels than a sheet has room for.
QImage reduced(QImage image) {
    if (image.depth() > 32) {
        image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    }
    const double share = std::sqrt(kMostKeptPixels / image.width() / image.height());
    return share >= 1 ? image
                      : image.scaled((QSizeF(image.size()) * share).toSize().expandedTo({1, 1}),
                                     Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

PictureSize QtPictures::check(const std::string& path) {
    return find(path).size;
}

QImage QtPictures::image(const std::string& path) {
    return find(path).image;
}

const QtPictures::Kept& QtPictures::find(const std::string& path) {
    const QFileInfo info(path_to_qt(systempfad(path)));
    const auto known =
        std::find_if(kept_.begin(), kept_.end(), [&](const Kept& k) { return k.path == path; });
    if (known != kept_.end()) {
        if (info.isFile() && known->changed == info.lastModified() && known->bytes == info.size()) {
            kept_.splice(kept_.begin(), kept_, known);
            return kept_.front();
        }
        kept_.erase(known);
    }
    QImage image = decoded(path); // the bytes of the file are gone before the picture is reduced
    const PictureSize size{image.width(), image.height()};
    kept_.push_front({path, info.lastModified(), info.size(), size, reduced(std::move(image))});
    return kept_.front();
}

QImage QtPictures::decoded(const std::string& path) {
    const PictureFile file = read_picture_file(path);
    make_room(4 * file.outline.width * file.outline.height);
    return decode(file);
}

void QtPictures::make_room(qint64 bytes) {
    for (auto kept = kept_.begin(); kept != kept_.end();) {
        bytes += kept->image.sizeInBytes();
        kept = bytes > kKeptBytes ? kept_.erase(kept) : std::next(kept);
    }
}

} // namespace quittika
