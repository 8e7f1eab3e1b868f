#include "platform/qt/widgets/disclosure_button.hpp"

#include "platform/qt/widgets/theme.hpp"

#include <QEvent>
#include <QPainter>
#include <QPolygonF>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionToolButton>
#include <QTimer>

namespace quittika {

namespace {

constexpr int kArrow = 10; ///< pixels

} // namespace

DisclosureButton::DisclosureButton(QWidget* parent) : QToolButton(parent) {
    setCheckable(true);
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize({theme::scaled(kArrow), theme::scaled(kArrow)});
    show_state(false);
    connect(this, &QToolButton::toggled, this, &DisclosureButton::show_state);
}

void DisclosureButton::initStyleOption(QStyleOptionToolButton* option) const {
    QToolButton::initStyleOption(option);
    option->state.setFlag(QStyle::State_On, false); // the arrow tells
    // It stands on the window itself, so it takes the window's text colour.
    option->palette.setBrush(QPalette::ButtonText, palette().windowText());
}

QPixmap DisclosureButton::arrow(bool down) const {
    const double ratio = devicePixelRatioF();
    const double side = iconSize().width();
    QPixmap picture(iconSize() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().windowText());
    painter.translate(side / 2, side / 2);
    painter.rotate(down ? 90 : 0);
    painter.drawPolygon(QPolygonF({{-side / 4, -side / 2}, {side / 3, 0}, {-side / 4, side / 2}}));
    return picture;
}

void DisclosureButton::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setIcon(arrow(isChecked()));
    }
}

void DisclosureButton::show_state(bool open) {
    setIcon(arrow(open));
    if (open) {
        // The part is made when it is shown, and the layout has to make room for it.
        QTimer::singleShot(0, this, [this] { QTimer::singleShot(0, this, &DisclosureButton::scroll_up); });
    }
}

void DisclosureButton::scroll_up() {
    for (QWidget* outer = parentWidget(); outer != nullptr; outer = outer->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(outer)) {
            area->verticalScrollBar()->setValue(mapTo(area->widget(), QPoint()).y());
            return;
        }
    }
}

} // namespace quittika
