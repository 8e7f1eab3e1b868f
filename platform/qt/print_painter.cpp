#include "platform/qt/print_painter.hpp"

#include "platform/laufzeitfehler.hpp"

#include <QFileInfo>
#include <QImageReader>
#include <QPaintDevice>
#include <QPen>

#include <algorithm>

namespace quittika {

namespace {

constexpr double kLineWidth = 0.2; ///< mm

QColor to_qcolor(Color color) {
    if (color < 0) {
        return Qt::black;
    }
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

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
    const QColor full = to_qcolor(color);
    const int value = qGray(full.rgb());
    return grey_ ? QColor(value, value, value) : full;
}

bool PainterDevice::begin(QPaintDevice& device, double pixels_per_mm) {
    pixels_per_mm_ = pixels_per_mm;
    fonts_.clear();
    set_font_ = 0;
    if (!painter_.begin(&device)) {
        return false;
    }
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                            QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    painter_.translate(QPointF(kOriginLeft, kOriginTop) * pixels_per_mm);
    return true;
}

const PainterDevice::ReadyFont& PainterDevice::ready(const PrintFont& font) {
    std::size_t index = 0;
    while (index < fonts_.size() && !(fonts_[index].font == font)) {
        ++index;
    }
    if (index == fonts_.size()) {
        fonts_.push_back({font, QFont(paper_font(font), painter_.device()), metrics_.ascent(font)});
    }
    if (set_font_ != index + 1) {
        set_font_ = index + 1;
        painter_.setFont(fonts_[index].paper);
    }
    return fonts_[index];
}

void PainterDevice::text(double left, double top, double /*width*/, const PrintFont& font, Color color,
                         std::string_view text) {
    const double baseline = top + ready(font).ascent;
    painter_.setPen(ink(color));
    painter_.drawText(QPointF(left, baseline) * pixels_per_mm_,
                      QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void PainterDevice::line(double x1, double y1, double x2, double y2, Color color) {
    painter_.setPen(QPen(ink(color), kLineWidth * pixels_per_mm_, Qt::SolidLine, Qt::FlatCap));
    painter_.drawLine(QPointF(x1, y1) * pixels_per_mm_, QPointF(x2, y2) * pixels_per_mm_);
}

void PainterDevice::picture(double left, double top, double width, double height, const std::string& path) {
    painter_.drawImage(
        QRectF(left * pixels_per_mm_, top * pixels_per_mm_, width * pixels_per_mm_, height * pixels_per_mm_),
        load(path));
}

const QImage& PainterDevice::load(const std::string& path) {
    const QString name = QString::fromStdString(path);
    const QDateTime modified = QFileInfo(name).lastModified();
    LoadedPicture& picture = pictures_[path];
    if (picture.image.isNull() || picture.modified != modified) {
        QImageReader reader(name);
        reader.setDecideFormatFromContent(true);
        const QImage image = reader.read();
        picture = {modified, grey_ && !image.isNull() ? greys_of(image) : image};
    }
    if (picture.image.isNull()) {
        throw Laufzeitfehler(fehler::kBild);
    }
    return picture.image;
}

} // namespace quittika
