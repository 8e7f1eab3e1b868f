#include "platform/qt/widgets/dress.hpp"

#include "platform/qt/widgets/theme.hpp"

#include <QAbstractButton>
#include <QAction>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace quittika::theme {

namespace {

int grown(int length, double factor) {
    return length <= 0 || length >= QWIDGETSIZE_MAX ? length : qRound(length * factor);
}

QSize grown(const QSize& size, double factor) {
    return {grown(size.width(), factor), grown(size.height(), factor)};
}

void grow(QWidget& widget, double factor) {
    const bool is_picture = widget.minimumSize() == widget.maximumSize();
    if (!is_picture) {
        widget.setMaximumSize(grown(widget.maximumSize(), factor));
        widget.setMinimumSize(grown(widget.minimumSize(), factor));
    }
    QFont font = widget.font();
    const bool own_size = (font.resolveMask() & QFont::SizeResolved) != 0;
    if (widget.testAttribute(Qt::WA_SetFont) && own_size && font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * factor);
        widget.setFont(font);
    }
}

void fit_to_text(QWidget& window) {
    const double factor = scale();
    if (factor <= 1.0) {
        return;
    }
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        grow(*widget, factor);
    }
    grow(window, factor);
    const QSize room = window.screen()->availableSize();
    window.resize((window.size() * factor).boundedTo(room));
}

/// The same picture, half as far from white.
QPixmap lighter(const QPixmap& picture) {
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    const auto half_way = [](int part) { return (part + 255) / 2; };
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line, [&](QRgb pixel) {
            return qRgba(half_way(qRed(pixel)), half_way(qGreen(pixel)), half_way(qBlue(pixel)),
                         qAlpha(pixel));
        });
    }
    return QPixmap::fromImage(image);
}

QIcon lighter(const QIcon& icon) {
    QIcon result;
    for (const QSize& size : icon.availableSizes()) {
        result.addPixmap(lighter(icon.pixmap(size, 1.0)));
    }
    return result;
}

template <class Part> void lighten_icons(QWidget& window) {
    for (Part* part : window.findChildren<Part*>()) {
        if (!part->icon().isNull()) {
            part->setIcon(lighter(part->icon()));
        }
    }
}

} // namespace

void dress(QWidget& window) {
    fit_to_text(window);
    if (dark()) {
        lighten_icons<QAbstractButton>(window);
        lighten_icons<QAction>(window);
    }
}

} // namespace quittika::theme
