#include "platform/qt/widgets/backdrop.hpp"

#include "platform/qt/widgets/contrast.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QSet>

namespace quittika {

namespace {

/// The colour that decides for the rest: black or white, whichever can be read on all of the picture, is the
/// hardest to read on this one.
QColor hardest_ground(const QImage& picture) {
    QSet<QRgb> colors;
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        colors.unite(QSet<QRgb>(line, line + image.width()));
    }
    struct Hardest {
        QColor ground;
        double contrast = 0;
    };
    const auto hardest_for = [&colors](const QColor& text) {
        Hardest hardest;
        for (const QRgb color : colors) {
            const double contrast = theme::contrast(text, QColor(color));
            if (!hardest.ground.isValid() || contrast < hardest.contrast) {
                hardest = {QColor(color), contrast};
            }
        }
        return hardest;
    };
    const Hardest black = hardest_for(Qt::black);
    const Hardest white = hardest_for(Qt::white);
    return black.contrast > white.contrast ? black.ground : white.ground;
}

} // namespace

Backdrop::Backdrop(QWidget* parent) : QLabel(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Backdrop::showEvent(QShowEvent* event) {
    QWidget* surface = parentWidget();
    if (surface->layout() != nullptr) {
        surface->layout()->removeWidget(this);
    }
    surface->installEventFilter(this);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    setGeometry(surface->rect());
    lower();
    QLabel::showEvent(event);
    color_texts(true);
}

void Backdrop::hideEvent(QHideEvent* event) {
    QLabel::hideEvent(event);
    color_texts(false);
}

void Backdrop::set_tile(const QImage& tile) {
    tile_ = QPixmap::fromImage(tile);
    hardest_ = hardest_ground(tile);
    color_texts(isVisible());
    update();
}

void Backdrop::color_texts(bool seen) {
    QPalette palette;
    if (seen && !tile_.isNull()) {
        theme::set_ground(palette, hardest_);
    }
    parentWidget()->setPalette(palette);
}

void Backdrop::paintEvent(QPaintEvent* /*event*/) {
    if (!tile_.isNull()) {
        tile_.setDevicePixelRatio(devicePixelRatioF());
        QPainter(this).drawTiledPixmap(rect(), tile_);
    }
}

bool Backdrop::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == parentWidget()) {
        setGeometry(parentWidget()->rect());
    }
    return QLabel::eventFilter(watched, event);
}

} // namespace quittika
