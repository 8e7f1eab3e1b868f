#include "platform/qt/widgets/side_scroll.hpp"

#include <QScrollBar>

namespace quittika {

SideScroll::SideScroll(QWidget* parent) : QScrollArea(parent) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizeAdjustPolicy(AdjustToContents);
}

QSize SideScroll::sizeHint() const {
    const int height = widget() == nullptr ? 0 : widget()->sizeHint().height();
    return {minimumSizeHint().width(), height};
}

QSize SideScroll::minimumSizeHint() const {
    const int content = widget() == nullptr ? 0 : widget()->minimumSizeHint().width();
    constexpr int kLines = 6;
    return {content + verticalScrollBar()->sizeHint().width(), kLines * fontMetrics().height()};
}

} // namespace quittika
