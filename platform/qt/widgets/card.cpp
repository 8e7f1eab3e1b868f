#include "platform/qt/widgets/card.hpp"

#include "platform/qt/widgets/contrast.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QEvent>
#include <QPainter>

namespace quittika {

namespace {

constexpr int kTitleLeft = 10;
constexpr int kTitleTop = 5;
constexpr double kRadius = 5.0;

} // namespace

Card::Card(QWidget* parent) : QGroupBox(parent) {}

QFont Card::title_font() const {
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    return bold;
}

QColor Card::panel_on(const QColor& window) {
    return window.lightness() < 128 ? window.lighter(118) : theme::mix(Qt::white, window, 0.72);
}

QColor Card::panel_color() const {
    if (testAttribute(Qt::WA_SetPalette)) {
        return palette().color(QPalette::Window);
    }
    return panel_on(palette().color(QPalette::Window));
}

bool Card::event(QEvent* event) {
    const bool handled = QGroupBox::event(event);
    if (event->type() == QEvent::ContentsRectChange || event->type() == QEvent::Polish) {
        // The style reserves a frame that is not drawn here.
        const int top = title().isEmpty() ? 0 : kTitleTop + QFontMetrics(title_font()).height() - 3;
        if (contentsMargins() != QMargins(0, top, 0, 0)) {
            setContentsMargins(0, top, 0, 0);
        }
    }
    return handled;
}

void Card::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor panel = panel_color();
    const QColor text = palette().color(QPalette::WindowText);
    painter.setPen(theme::mix(text, panel, 0.16));
    painter.setBrush(panel);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    if (title().isEmpty()) {
        return;
    }
    painter.setFont(title_font());
    painter.setPen(theme::soft(text, panel, 0.75));
    const QRect line(kTitleLeft, kTitleTop, width() - 2 * kTitleLeft, QFontMetrics(title_font()).height());
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, title());
}

} // namespace quittika
