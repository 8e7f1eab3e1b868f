#include "platform/qt/widgets/content_area.hpp"

#include <QBoxLayout>

namespace quittika {

namespace {

// Smallest room for the side by side arrangement, in heights of the window's font.
constexpr int kWideWidth = 96;
constexpr int kWideHeight = 46;

} // namespace

ContentArea::ContentArea(QWidget *parent) : QScrollArea(parent) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
}

QBoxLayout *ContentArea::box_of(const QString &name) const {
    const QWidget *widget = findChild<QWidget *>(name);
    return widget != nullptr ? qobject_cast<QBoxLayout *>(widget->layout()) : nullptr;
}

void ContentArea::resizeEvent(QResizeEvent *event) {
    QBoxLayout *body = box_of(body_);
    QBoxLayout *side = box_of(side_);
    if (body != nullptr && side != nullptr) {
        const int em = fontMetrics().height();
        const bool wide = width() >= kWideWidth * em && height() >= kWideHeight * em;
        body->setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
        side->setDirection(wide ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    }
    QScrollArea::resizeEvent(event);
}

} // namespace quittika
