#include "platform/qt/widgets/tile_button.hpp"

#include "platform/qt/widgets/theme.hpp"
#include "platform/qt/widgets/tint.hpp"

#include <QPainter>

namespace quittika {

namespace {

constexpr int kPadding = 4;
constexpr int kIcon = 24;
constexpr double kRadius = 4.0;

} // namespace

TileButton::TileButton(QWidget* parent) : QToolButton(parent) {
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    const int icon = (kIcon + theme::scaled(kIcon)) / 2; // a picture need not grow as the text does
    setIconSize({icon, icon});
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

QSize TileButton::sizeHint() const {
    const QSize label = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {std::max(label.width(), iconSize().width()) + 2 * kPadding,
            iconSize().height() + label.height() + 2 * kPadding};
}

QSize TileButton::minimumSizeHint() const {
    return {iconSize().width() + 2 * kPadding, sizeHint().height()};
}

QColor TileButton::ground() const {
    const bool own = testAttribute(Qt::WA_SetPalette);
    const QColor text = palette().color(QPalette::WindowText);
    const QColor base = own ? palette().color(QPalette::Button) : QColor(Qt::transparent);
    const double shade = isDown() ? 0.22 : underMouse() && isEnabled() ? 0.10 : 0.0;
    if (shade == 0.0) {
        return base;
    }
    return own ? theme::mix(text, base, shade)
               : QColor(text.red(), text.green(), text.blue(), qRound(shade * 255));
}

void TileButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor fill = ground();
    const QColor under = fill.alpha() == 255 ? fill : palette().color(QPalette::Window);
    painter.setPen(hasFocus() ? QPen(theme::focus_color(under), 1.4) : QPen(Qt::NoPen));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);

    const QRect content = rect().adjusted(0, kPadding, 0, -kPadding);
    const QRect picture((width() - iconSize().width()) / 2, content.top(), iconSize().width(),
                        iconSize().height());
    theme::icon_on(icon(), under)
        .paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);

    const auto role = testAttribute(Qt::WA_SetPalette) ? QPalette::ButtonText : QPalette::WindowText;
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, role));
    const QRect line = content.adjusted(kPadding / 2, iconSize().height(), -kPadding / 2, 0);
    painter.drawText(line, Qt::AlignCenter | Qt::TextShowMnemonic,
                     fontMetrics().elidedText(text(), Qt::ElideRight, line.width(), Qt::TextShowMnemonic));
}

} // namespace quittika
