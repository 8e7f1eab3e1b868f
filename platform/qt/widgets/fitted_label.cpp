#include "platform/qt/widgets/fitted_label.hpp"

#include <QPainter>
#include <QTextLayout>

namespace quittika {

namespace {

constexpr auto kWrapping = QTextOption::WrapAtWordBoundaryOrAnywhere;

qreal height_of(const QString& text, const QFont& font, qreal width) {
    QTextLayout layout(text, font);
    layout.setTextOption([] {
        QTextOption option;
        option.setWrapMode(kWrapping);
        return option;
    }());
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        height += line.height();
    }
    layout.endLayout();
    return height;
}

} // namespace

QFont FittedLabel::fitting_font(const QRect& box) const {
    constexpr qreal kSmallest = 8; // points
    QFont fitting = font();
    while (fitting.pointSizeF() > kSmallest && height_of(text(), fitting, box.width()) > box.height()) {
        fitting.setPointSizeF(fitting.pointSizeF() - 1);
    }
    return fitting;
}

void FittedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect box = contentsRect();
    QTextOption option(alignment());
    option.setWrapMode(kWrapping);
    painter.setFont(fitting_font(box));
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(box, text(), option);
}

} // namespace quittika
