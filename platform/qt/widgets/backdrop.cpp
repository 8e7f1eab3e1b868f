#include "platform/qt/widgets/backdrop.hpp"

#include <QEvent>
#include <QLayout>
#include <QPainter>

namespace quittika {

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
}

void Backdrop::paintEvent(QPaintEvent* /*event*/) {
    const QPixmap tile = pixmap(Qt::ReturnByValue);
    if (!tile.isNull()) {
        QPainter(this).drawTiledPixmap(rect(), tile);
    }
}

bool Backdrop::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == parentWidget()) {
        setGeometry(parentWidget()->rect());
    }
    return QLabel::eventFilter(watched, event);
}

} // namespace quittika
