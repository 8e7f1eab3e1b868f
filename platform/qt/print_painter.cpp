#include "platform/qt/print_painter.hpp"

#include "platform/qt/colors.hpp"
#include "platform/qt/print_paper.hpp"

#include <QGlyphRun>
#include <QPaintDevice>
#include <QPainterPath>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace quittika {

namespace {

constexpr double kLineWidth = 0.2;                ///< mm
constexpr qint64 kMostLosslessPixels = 3'000'000; ///< packing more takes longer than reading it
constexpr double kFinestPicture = 600; ///< dots an inch; what is finer would only make the document larger

QImage greys_of(const QImage& picture) {
    QImage grey = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < grey.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(grey.scanLine(y));
        std::transform(line, line + grey.width(), line, [](QRgb pixel) {
            const int value = qGray(pixel);
            return qRgba(value, value, value, qAlpha(pixel));
        });
    }
    return grey;
}

} // namespace

QColor PainterDevice::ink(Color color) const {
    const QColor full = to_qt(std::max(color, color::kBlack));
    const int value = qGray(full.rgb());
    return grey_ ? QColor(value, value, value) : full;
}

bool PainterDevice::begin(QPaintDevice& device, double pixels_per_mm) {
    fonts_.clear();
    set_font_ = 0;
    if (!painter_.begin(&device)) {
        return false;
    }
    // Fonts follow the resolution that the device names; what is drawn is scaled to its pixels.
    pixels_per_mm_ = device.logicalDpiX() / kMmPerInch;
    dpi_ = pixels_per_mm * kMmPerInch;
    if (const double rest = pixels_per_mm / pixels_per_mm_; std::abs(rest - 1) > 1e-9) {
        painter_.scale(rest, rest);
    }
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                            QPainter::SmoothPixmapTransform);
    painter_.translate(QPointF(kOriginLeft, kOriginTop) * pixels_per_mm_);
    return true;
}

const PainterDevice::ReadyFont& PainterDevice::ready(const PrintFont& font) {
    std::size_t index = 0;
    while (index < fonts_.size() && !(fonts_[index].font == font)) {
        ++index;
    }
    if (index == fonts_.size()) {
        const QFont paper(paper_font(font), painter_.device());
        fonts_.push_back({font, paper, QRawFont::fromFont(paper), tools_.metrics.ascent(font)});
    }
    if (set_font_ != index + 1) {
        set_font_ = index + 1;
        painter_.setFont(fonts_[index].paper);
    }
    return fonts_[index];
}

void PainterDevice::text(double left, double top, double /*width*/, const PrintFont& font, Color color,
                         std::string_view text) {
    const ReadyFont& face = ready(font);
    const QPointF start = QPointF(left, top + face.ascent) * pixels_per_mm_;
    painter_.setPen(ink(color));
    const Outlines outlines = tools_.metrics.outlines(font, text, pixels_per_mm_);
    if (outlines.indexes.isEmpty()) {
        painter_.drawText(start, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        return;
    }
    QGlyphRun run;
    run.setRawFont(face.outlines);
    run.setGlyphIndexes(outlines.indexes);
    run.setPositions(outlines.places);
    painter_.drawGlyphRun(start, run);
}

void PainterDevice::line(double x1, double y1, double x2, double y2, Color color) {
    painter_.setPen(QPen(ink(color), kLineWidth * pixels_per_mm_, Qt::SolidLine, Qt::FlatCap));
    painter_.drawLine(QPointF(x1, y1) * pixels_per_mm_, QPointF(x2, y2) * pixels_per_mm_);
}

void PainterDevice::picture(double left, double top, double width, double height, const std::string& path) {
    const QRectF box(left * pixels_per_mm_, top * pixels_per_mm_, width * pixels_per_mm_,
                     height * pixels_per_mm_);
    const QImage& image = ready(path, painter_.transform().mapRect(box).size().toSize());
    painter_.setRenderHint(QPainter::LosslessImageRendering,
                           qint64{image.width()} * image.height() <= kMostLosslessPixels);
    painter_.drawImage(box, image);
}

void PainterDevice::squares(double left, double top, double size, const SquareGrid& grid) {
    const double square = size / grid.side * pixels_per_mm_;
    const QPointF corner = QPointF(left, top) * pixels_per_mm_;
    const double ground = square * (grid.side + 2 * grid.quiet);
    painter_.fillRect(QRectF(corner - QPointF(grid.quiet, grid.quiet) * square, QSizeF(ground, ground)),
                      Qt::white);
    QPainterPath dark; // one shape, so that no gaps shine through between its squares
    dark.setFillRule(Qt::WindingFill);
    for (int y = 0; y < grid.side; ++y) {
        for (int x = 0; x < grid.side; ++x) {
            const int first = x;
            while (x < grid.side && grid.is_dark(x, y)) {
                ++x;
            }
            if (x > first) {
                dark.addRect(
                    QRectF(corner + QPointF(first, y) * square, QSizeF(square * (x - first), square)));
            }
        }
    }
    painter_.fillPath(dark, Qt::black);
}

const QImage& PainterDevice::ready(const std::string& path, const QSize& box) {
    const QImage source = tools_.pictures.image(path);
    ReadyPicture& picture = pictures_[path];
    if (picture.image.isNull() || picture.source != source.cacheKey() || picture.box != box) {
        const double share = std::min(1.0, kFinestPicture / dpi_);
        const QSize useful = (QSizeF(box) * share).toSize().boundedTo(source.size()).expandedTo({1, 1});
        const QImage small = useful == source.size()
                                 ? source
                                 : source.scaled(useful, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        picture = {source.cacheKey(), box, grey_ ? greys_of(small) : small};
    }
    return picture.image;
}

} // namespace quittika
