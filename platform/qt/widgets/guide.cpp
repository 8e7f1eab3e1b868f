#include "platform/qt/widgets/guide.hpp"

#include <QPainter>

namespace quittika {

Guide::Guide(QWidget* parent) : QFrame(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void Guide::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const bool line = width() <= 1 || height() <= 1;
    if (line && !dashed_) {
        painter.fillRect(rect(), ink_);
        return;
    }
    painter.setPen(QPen(ink_, 1, dashed_ ? Qt::DashLine : Qt::SolidLine));
    if (line) {
        const QPointF end = width() > height() ? QPointF(width(), 0.5) : QPointF(0.5, height());
        painter.drawLine(width() > height() ? QPointF(0, 0.5) : QPointF(0.5, 0), end);
    } else {
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

} // namespace quittika
