#include "platform/qt/widgets/column_head.hpp"

#include "platform/qt/widgets/column_row.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QPolygonF>

namespace quittika {

namespace {

constexpr double kBaseline = 1.5; // pixels of the line beneath the arrow

/// Height of the strip beneath the texts.
int strip(const QFontMetrics& font) {
    return font.height() / 2;
}

} // namespace

ColumnHead::ColumnHead(QWidget* parent) : QAbstractButton(parent) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
}

QSize ColumnHead::sizeHint() const {
    constexpr int kLines = 2;
    constexpr int kGap = 2; // pixels behind each line
    return {0, kLines * (fontMetrics().height() + kGap) + strip(fontMetrics())};
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
        const double arrow = strip(fontMetrics()) - 2; // high, and as broad on each side
        const double base = height() - kBaseline;
        painter.fillRect(QRectF(0, base, width(), kBaseline), ink);
        const bool upwards = text() == QStringLiteral("▲");
        const double top = base - arrow;
        const double middle = width() / 2.0;
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawPolygon(QPolygonF({{middle, upwards ? top : base},
                                       {middle - arrow, upwards ? base : top},
                                       {middle + arrow, upwards ? base : top}}));
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
