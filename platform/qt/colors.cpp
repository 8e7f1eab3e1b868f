#include "platform/qt/colors.hpp"

#include "platform/qt/widgets/card.hpp"
#include "platform/qt/widgets/contrast.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QWidget>

#include <vector>

namespace quittika {

namespace {

constexpr int kMiddle = 128;

struct Roles {
    std::vector<QPalette::ColorRole> back;
    std::vector<QPalette::ColorRole> fore;
    bool fill; ///< the widget has no ground of its own that it paints
};

Roles roles_of(const QWidget& widget) {
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr ||
        qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr) {
        return {{QPalette::Base}, {QPalette::Text}, false};
    }
    if (qobject_cast<const QComboBox*>(&widget) != nullptr) {
        return {{QPalette::Base, QPalette::Button}, {QPalette::Text, QPalette::ButtonText}, false};
    }
    if (qobject_cast<const QPushButton*>(&widget) != nullptr ||
        qobject_cast<const QToolButton*>(&widget) != nullptr) {
        return {{QPalette::Button}, {QPalette::ButtonText}, false};
    }
    if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) { // filled with the colour of buttons
        return {{QPalette::Window, QPalette::Button}, {QPalette::WindowText}, true};
    }
    const bool paints_itself = qobject_cast<const Card*>(&widget) != nullptr;
    return {{QPalette::Window}, {QPalette::WindowText}, !paints_itself};
}

/// Among dark fields, buttons and fields take a light colour as a tinge of their own: white is then the
/// ground that they have anyway, a grey a shade above it.
QColor ground_among(const QWidget& widget, const QColor& given, const Roles& roles) {
    constexpr double kGreyShare = 0.2;
    constexpr double kColorShare = 0.45;
    constexpr int kGrey = 40; ///< largest saturation
    const QPalette::ColorRole role = roles.back.front();
    const QWidget* around = widget.parentWidget();
    const QPalette palette = around == nullptr ? QApplication::palette() : around->palette();
    const bool among_dark = palette.color(QPalette::Base).lightness() < kMiddle;
    if (!among_dark || role == QPalette::Window || given.lightness() < kMiddle) {
        return given;
    }
    const QColor own = palette.color(role);
    if (given == QColor(Qt::white)) {
        return own;
    }
    return theme::mix(given, own, given.hsvSaturation() < kGrey ? kGreyShare : kColorShare);
}

} // namespace

QColor to_qt(Color color) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

Color from_qt(const QColor& color) {
    return color::rgb(color.red(), color.green(), color.blue());
}

void WidgetColors::remember(const QWidget& widget) {
    if (!given_) {
        given_ = true;
        had_palette_ = widget.testAttribute(Qt::WA_SetPalette);
        before_ = had_palette_ ? widget.palette() : QPalette();
        had_fill_ = widget.autoFillBackground();
    }
}

void WidgetColors::restore(QWidget& widget) const {
    widget.setPalette(before_);
    widget.setAutoFillBackground(had_fill_);
}

void WidgetColors::apply(QWidget& widget, Color back, Color fore) {
    const bool own_fore = fore < 0 || (fore == color::kBlack && back < 0);
    if (back < 0 && own_fore) {
        if (given_) {
            restore(widget);
        }
        return;
    }
    remember(widget);
    const Roles roles = roles_of(widget);
    QPalette palette = before_;
    const QColor ground =
        back < 0 ? widget.palette().color(roles.back.front()) : ground_among(widget, to_qt(back), roles);
    const QColor text = own_fore ? theme::readable_on(ground) : to_qt(fore);
    if (back >= 0 && widget.isWindow()) {
        palette = theme::painted(ground);
    } else if (back >= 0) {
        for (const QPalette::ColorRole role : roles.back) {
            palette.setColor(role, ground);
        }
        if (roles.back.front() == QPalette::Window) {
            theme::set_ground(palette, ground);
        } else if (roles.back.front() == QPalette::Base) {
            theme::show_selection(palette, ground, text);
        }
    }
    for (const QPalette::ColorRole role : roles.fore) {
        theme::set_text(palette, {role}, text, ground);
    }
    widget.setPalette(palette);
    widget.setAutoFillBackground(had_fill_ || (roles.fill && back >= 0));
}

} // namespace quittika
