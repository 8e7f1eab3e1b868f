#include "platform/qt/widgets/content_area.hpp"

#include <QBoxLayout>
#include <algorithm>

namespace quittika {

namespace {

// In heights of the window's font.
constexpr int kWideWidth = 88;      ///< smallest room for the side part beside the main one
constexpr int kWideHeight = 43;     ///< the same
constexpr int kVeryWideWidth = 200; ///< smallest room for its pieces beside each other, too
constexpr int kMainWidth = 80;      ///< beyond this, more width goes to the side part
constexpr int kSideWidth = 50;      ///< up to this
constexpr int kVeryWideMain = 130;  ///< the same where its pieces stand beside each other
constexpr int kVeryWideSide = 140;

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
    const bool very_wide = wide && width() >= kVeryWideWidth * em;
    // The last piece of the side part stays next to the main part in any arrangement.
    body.setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    side.setDirection(very_wide ? QBoxLayout::RightToLeft
                      : wide    ? QBoxLayout::BottomToTop
                                : QBoxLayout::LeftToRight);
    const int least = very_wide ? std::clamp(width() - kVeryWideMain * em, 0, kVeryWideSide * em)
                      : wide    ? std::clamp(width() - kMainWidth * em, 0, kSideWidth * em)
                                : 0;
    side.parentWidget()->setMinimumWidth(least);
    for (int i = 0; i < side.count(); ++i) {
        const bool grows = !wide || very_wide || i == 0;
        side.setStretch(i, grows ? 1 : 0);
        side.itemAt(i)->setAlignment(very_wide ? Qt::AlignTop : Qt::Alignment());
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
