#include "platform/qt/widgets/ruler.hpp"

#include "platform/qt/widgets/theme.hpp"

#include <QEvent>
#include <QPainter>

namespace quittika {

namespace {

constexpr int kSheetWidth = 210; ///< mm
constexpr int kSheetHeight = 297;
constexpr double kNarrowest = 3; ///< pixels between two marks
constexpr int kFontPixels = 9;

/// Millimetres from one mark to the next.
int step_of(double pixels_per_mm) {
    for (const int step : {1, 2, 5}) {
        if (step * pixels_per_mm >= kNarrowest) {
            return step;
        }
    }
    return 10;
}

double length_of(int mm) {
    return mm % 10 == 0 ? 9 : mm % 5 == 0 ? 6 : 3;
}

} // namespace

Ruler::Ruler(QWidget* parent) : QWidget(parent) {}

void Ruler::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (shown_ == nullptr) {
        shown_ = window()->findChild<QWidget*>(sheet_);
        if (shown_ != nullptr) {
            shown_->installEventFilter(this);
        }
    }
}

bool Ruler::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
        update();
    }
    return QWidget::eventFilter(watched, event);
}

void Ruler::paintEvent(QPaintEvent* /*event*/) {
    if (shown_ == nullptr) {
        return;
    }
    const QPoint corner = mapFromGlobal(shown_->mapToGlobal(QPoint()));
    const int longest = vertical_ ? kSheetHeight : kSheetWidth;
    const double begin = vertical_ ? corner.y() : corner.x();
    const double pixels_per_mm = static_cast<double>(shown_->width()) / kSheetWidth;
    QPainter painter(this);
    const QColor ground = palette().color(QPalette::Window);
    const QColor text = palette().color(QPalette::WindowText);
    const double across = vertical_ ? width() : height();
    const auto upright = [this](const QRectF& r) {
        return vertical_ ? QRectF(r.y(), r.x(), r.height(), r.width()) : r;
    };
    painter.fillRect(upright({begin, 0, longest * pixels_per_mm, across}), theme::mix(text, ground, 0.06));
    QFont small = font();
    small.setPixelSize(kFontPixels);
    painter.setFont(small);
    painter.setPen(QPen(theme::mix(text, ground, 0.55), 0));
    const int step = step_of(pixels_per_mm);
    const int numbered = 10 * pixels_per_mm < 3 * kFontPixels ? 20 : 10;
    for (int mm = 0; mm <= longest; mm += step) {
        const double at = begin + mm * pixels_per_mm;
        const double begins = across - length_of(mm);
        painter.drawLine(vertical_ ? QLineF(begins, at, across, at) : QLineF(at, begins, at, across));
        if (mm % numbered == 0) {
            const QString number = QString::number(mm);
            const double room =
                vertical_ ? kFontPixels + 2 : painter.fontMetrics().horizontalAdvance(number) + 2;
            if (at + room <= (vertical_ ? height() : width())) { // half a number is another one
                painter.drawText(vertical_ ? upright({at + 1, 0, room, across})
                                           : QRectF(at + 2, 0, room, kFontPixels + 2),
                                 Qt::AlignLeft | Qt::AlignTop, number);
            }
        }
    }
}

} // namespace quittika
