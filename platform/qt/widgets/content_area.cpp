#include "platform/qt/widgets/content_area.hpp"

#include <QBoxLayout>
#include <algorithm>

namespace quittika {

namespace {

// In heights of the window's font.
constexpr int kWideWidth = 88;  ///< smallest room for the side by side arrangement
constexpr int kWideHeight = 43; ///< the same
constexpr int kMainWidth = 80;  ///< beyond this, more width goes to the side part
constexpr int kSideWidth = 50;  ///< up to this

} // namespace

ContentArea::ContentArea(QWidget* parent) : QScrollArea(parent) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
}

QBoxLayout* ContentArea::box_of(const QString& name) const {
    const QWidget* widget = findChild<QWidget*>(name);
    return widget != nullptr ? qobject_cast<QBoxLayout*>(widget->layout()) : nullptr;
}

void ContentArea::arrange(QBoxLayout& body, QBoxLayout& side) const {
    const int em = fontMetrics().height();
    const bool wide = width() >= kWideWidth * em && height() >= kWideHeight * em;
    body.setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    side.setDirection(wide ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    side.parentWidget()->setMinimumWidth(wide ? std::clamp(width() - kMainWidth * em, 0, kSideWidth * em)
                                              : 0);
    // Under each other, the parts keep their heights and the last one stands at the bottom.
    for (int i = 0; i < side.count(); ++i) {
        side.setStretch(i, wide && i != side.count() - 2 ? 0 : 1);
    }
}

void ContentArea::resizeEvent(QResizeEvent* event) {
    QBoxLayout* body = box_of(body_);
    QBoxLayout* side = box_of(side_);
    if (body != nullptr && side != nullptr) {
        arrange(*body, *side);
    }
    QScrollArea::resizeEvent(event);
}

} // namespace quittika
