#include "platform/qt/colors.hpp"

#include "platform/qt/widgets/card.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QWidget>

#include <cmath>
#include <vector>

namespace quittika {

namespace {

constexpr double kDisabledShare = 0.55; ///< how much of the text's colour is left on a disabled control
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

/// On a dark desktop, buttons and fields take a light colour as a tinge of their own: white is then the
/// desktop's own ground, a grey a shade above it.
QColor ground_on_desktop(const QColor& given, const Roles& roles) {
    constexpr double kGreyShare = 0.2;
    constexpr double kColorShare = 0.45;
    constexpr int kGrey = 40; ///< largest saturation
    const QPalette::ColorRole role = roles.back.front();
    if (!theme::dark() || role == QPalette::Window || given.lightness() < kMiddle) {
        return given;
    }
    const QColor own = QApplication::palette().color(role);
    if (given == QColor(Qt::white)) {
        return own;
    }
    return theme::mix(given, own, given.hsvSaturation() < kGrey ? kGreyShare : kColorShare);
}

/// Light that a colour gives off, 0 to 1, as the eye takes it.
double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Black or white, whichever stands out more: never less than 4.5 to 1.
QColor readable_on(const QColor& ground) {
    constexpr double kAsFarFromBlackAsFromWhite = 0.179;
    return luminance(ground) < kAsFarFromBlackAsFromWhite ? QColor(Qt::white) : QColor(Qt::black);
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
        back < 0 ? widget.palette().color(roles.back.front()) : ground_on_desktop(to_qt(back), roles);
    if (back >= 0) {
        for (const QPalette::ColorRole role : roles.back) {
            palette.setColor(role, ground);
        }
    }
    const QColor text = own_fore ? readable_on(ground) : to_qt(fore);
    for (const QPalette::ColorRole role : roles.fore) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, theme::mix(text, ground, kDisabledShare));
    }
    widget.setPalette(palette);
    widget.setAutoFillBackground(had_fill_ || (roles.fill && back >= 0));
}

} // namespace quittika
