#include "platform/qt/widgets/theme.hpp"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

namespace quittika::theme {

namespace {

// The windows are laid out for this range; larger type comes with the desktop's scaling.
constexpr double kSmallestFont = 9.0;
constexpr double kLargestFont = 10.0;

struct RoleColor {
    QPalette::ColorRole role;
    QRgb color;
};

constexpr RoleColor kLight[] = {
    {QPalette::Window, 0xffe9edf1},      {QPalette::WindowText, 0xff1d2733},
    {QPalette::Base, 0xffffffff},        {QPalette::AlternateBase, 0xfff4f7fa},
    {QPalette::Text, 0xff1d2733},        {QPalette::Button, 0xfff3f5f8},
    {QPalette::ButtonText, 0xff1d2733},  {QPalette::ToolTipBase, 0xfffffdf2},
    {QPalette::ToolTipText, 0xff1d2733}, {QPalette::PlaceholderText, 0xff7b8794},
    {QPalette::Highlight, 0xff2b6fb0},   {QPalette::HighlightedText, 0xffffffff},
    {QPalette::Light, 0xffffffff},       {QPalette::Midlight, 0xffdfe4ea},
    {QPalette::Mid, 0xffb9c2cc},         {QPalette::Dark, 0xff93a0ad},
};

constexpr RoleColor kLightDisabled[] = {
    {QPalette::WindowText, 0xff8a95a1}, {QPalette::Text, 0xff8a95a1},      {QPalette::ButtonText, 0xff8a95a1},
    {QPalette::Base, 0xffeef1f4},       {QPalette::Highlight, 0xffb9c2cc},
};

/// Entries of a menu bar in the text colour of the window that they stand on, whatever its colour.
class ProgramStyle : public QProxyStyle {
public:
    ProgramStyle() : QProxyStyle(QStringLiteral("fusion")) {}

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (element != CE_MenuBarItem || entry == nullptr) {
            return QProxyStyle::drawControl(element, option, painter, widget);
        }
        QStyleOptionMenuItem own(*entry);
        own.palette.setBrush(QPalette::ButtonText, own.palette.windowText());
        QProxyStyle::drawControl(element, &own, painter, widget);
    }
};

bool is_dark(const QColor& color) {
    return color.lightness() < 128;
}

QPalette program_palette(QPalette palette) {
    if (is_dark(palette.color(QPalette::Window))) {
        palette.setColor(QPalette::Highlight, accent());
        palette.setColor(QPalette::HighlightedText, Qt::white);
        return palette;
    }
    for (const RoleColor& entry : kLight) {
        palette.setColor(entry.role, QColor(entry.color));
    }
    for (const RoleColor& entry : kLightDisabled) {
        palette.setColor(QPalette::Disabled, entry.role, QColor(entry.color));
    }
    return palette;
}

} // namespace

QColor accent() {
    return QColor(0x2b, 0x6f, 0xb0);
}

void apply(QApplication& application) {
    QApplication::setStyle(new ProgramStyle); // taken over by the application
    QApplication::setPalette(program_palette(QApplication::palette()));
    QFont font = QApplication::font();
    font.setPointSizeF(std::clamp(font.pointSizeF(), kSmallestFont, kLargestFont));
    QApplication::setFont(font);
    application.setWindowIcon(QIcon(QStringLiteral(":/icons/quittika.png")));
}

QColor mix(const QColor& a, const QColor& b, double share) {
    const auto blend = [share](int of_a, int of_b) { return qRound(of_a * share + of_b * (1.0 - share)); };
    return QColor(blend(a.red(), b.red()), blend(a.green(), b.green()), blend(a.blue(), b.blue()));
}

} // namespace quittika::theme
