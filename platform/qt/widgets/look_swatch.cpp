#include "platform/qt/widgets/look_swatch.hpp"

#include "platform/qt/widgets/card.hpp"

#include <QApplication>
#include <QPainter>

namespace quittika {

void LookSwatch::paintEvent(QPaintEvent* event) {
    constexpr QMargins kGround(6, 4, 6, 4);
    const QColor window = QApplication::palette().color(QPalette::Window);
    QPainter painter(this);
    painter.fillRect(rect(), window);
    painter.fillRect(rect() - kGround, Card::panel_on(window));
    painter.end();
    QFrame::paintEvent(event);
}

} // namespace quittika
