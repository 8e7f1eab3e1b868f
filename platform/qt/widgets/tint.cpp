#include "platform/qt/widgets/tint.hpp"

#include "platform/qt/widgets/contrast.hpp"

#include <algorithm>
#include <array>

namespace quittika::theme {

namespace {

constexpr int kFull = 255;

template <class Change> QImage changed(const QImage& picture, Change change) {
    QImage image = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line, change);
    }
    return image;
}

bool is_paper(QRgb pixel) {
    constexpr int kWhite = 245;
    return qAlpha(pixel) == 0 || std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)}) >= kWhite;
}

/// White becomes transparent; a colour becomes the one that gives it on white, as transparent as it can be.
QRgb without_white(QRgb pixel) {
    const int opaque = kFull - std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)});
    if (opaque == 0) {
        return qRgba(kFull, kFull, kFull, 0);
    }
    const auto colour = [opaque](int part) { return kFull - (kFull - part) * kFull / opaque; };
    return qRgba(colour(qRed(pixel)), colour(qGreen(pixel)), colour(qBlue(pixel)),
                 opaque * qAlpha(pixel) / kFull);
}

} // namespace

QImage lighter(const QImage& picture) {
    return changed(picture, [](QRgb pixel) {
        const auto half_way = [](int part) { return (part + kFull) / 2; };
        return qRgba(half_way(qRed(pixel)), half_way(qGreen(pixel)), half_way(qBlue(pixel)), qAlpha(pixel));
    });
}

QIcon lighter(const QIcon& icon) {
    QIcon result;
    for (const QSize& size : icon.availableSizes()) {
        result.addPixmap(QPixmap::fromImage(lighter(icon.pixmap(size, 1.0).toImage())));
    }
    return result;
}

QIcon icon_on(const QIcon& icon, const QColor& ground) {
    const bool light_ground = readable_on(ground) == QColor(Qt::black);
    return icon.isNull() || light_ground ? icon : lighter(icon);
}

bool is_on_paper(const QImage& picture) {
    const int right = picture.width() - 1;
    const int bottom = picture.height() - 1;
    const std::array<QPoint, 4> corners{QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom),
                                        QPoint(right, bottom)};
    return !picture.isNull() && std::all_of(corners.begin(), corners.end(), [&picture](const QPoint& corner) {
        return is_paper(picture.pixel(corner));
    });
}

QImage for_dark_ground(const QImage& picture) {
    return lighter(changed(picture, without_white));
}

} // namespace quittika::theme
