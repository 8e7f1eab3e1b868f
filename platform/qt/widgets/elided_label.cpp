#include "platform/qt/widgets/elided_label.hpp"

#include <QHelpEvent>
#include <QStyle>
#include <QStylePainter>
#include <QToolTip>

namespace quittika {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::setElideMode(Qt::TextElideMode mode) {
    mode_ = mode;
    update();
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().horizontalAdvance(QStringLiteral("...")) + 2 * margin(),
            QLabel::minimumSizeHint().height()};
}

int ElidedLabel::text_flags() const {
    return buddy() != nullptr ? Qt::TextShowMnemonic : 0;
}

QString ElidedLabel::shown_text() const {
    return fontMetrics().elidedText(text(), mode_, contentsRect().width() - 2 * margin(), text_flags());
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    const QRect box = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const auto place = QStyle::visualAlignment(layoutDirection(), alignment());
    painter.drawItemText(box, static_cast<int>(place) | text_flags(), palette(), isEnabled(), shown_text(),
                         foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && shown_text() != text()) {
        // Marked up, it is broken into lines.
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           QStringLiteral("<p>%1</p>").arg(text().toHtmlEscaped()), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace quittika
