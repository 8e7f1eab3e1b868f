#include "platform/qt/widgets/column_head.hpp"

#include "platform/qt/widgets/column_row.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QPolygonF>

namespace quittika {

ColumnHead::ColumnHead(QWidget* parent) : QAbstractButton(parent) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
}

void ColumnHead::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::WindowText);
    if (underMouse() || isDown()) {
        constexpr int kTinge = 28;
        constexpr int kPressed = 56;
        painter.fillRect(rect(), QColor(ink.red(), ink.green(), ink.blue(), isDown() ? kPressed : kTinge));
    }
    if (!text().isEmpty()) {
        constexpr double kLine = 1.5;
        constexpr double kArrow = 5; // high, and half as broad again on each side
        const double base = height() - kLine;
        painter.fillRect(QRectF(0, base, width(), kLine), ink);
        const bool upwards = text() == QStringLiteral("▲");
        const double top = base - kArrow;
        const double middle = width() / 2.0;
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawPolygon(QPolygonF({{middle, upwards ? top : base},
                                       {middle - kArrow, upwards ? base : top},
                                       {middle + kArrow, upwards ? base : top}}));
    }
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(theme::focus_color(palette().color(QPalette::Window)), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

QList<ColumnHead*> ColumnHead::row() const {
    return parentWidget()->findChildren<ColumnHead*>(QString(), Qt::FindDirectChildrenOnly);
}

void ColumnHead::focusInEvent(QFocusEvent* event) {
    for (ColumnHead* head : row()) {
        head->setFocusPolicy(head == this ? Qt::StrongFocus : Qt::ClickFocus);
    }
    if (auto* around = qobject_cast<ColumnRow*>(parentWidget())) {
        around->reveal(*this);
    }
    QAbstractButton::focusInEvent(event);
}

void ColumnHead::keyPressEvent(QKeyEvent* event) {
    const int step = event->key() == Qt::Key_Right ? 1 : event->key() == Qt::Key_Left ? -1 : 0;
    if (step == 0) {
        QAbstractButton::keyPressEvent(event);
        return;
    }
    const QList<ColumnHead*> heads = row();
    if (ColumnHead* next = heads.value(heads.indexOf(this) + step, nullptr)) {
        next->setFocus(Qt::TabFocusReason);
    }
}

} // namespace quittika
