#include "platform/qt/widgets/theme.hpp"

#include <QApplication>
#include <QFont>
#include <QIcon>
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

constexpr QRgb kInk = 0xff1d2733;

constexpr RoleColor kLight[] = {
    {QPalette::Window, 0xffe9edf1},
    {QPalette::WindowText, kInk},
    {QPalette::Base, 0xffffffff},
    {QPalette::AlternateBase, 0xfff4f7fa},
    {QPalette::Text, kInk},
    {QPalette::Button, 0xfff3f5f8},
    {QPalette::ButtonText, kInk},
    {QPalette::ToolTipBase, 0xfffffdf2},
    {QPalette::ToolTipText, kInk},
    {QPalette::PlaceholderText, 0xff7b8794},
    {QPalette::Highlight, 0xff2b6fb0},
    {QPalette::HighlightedText, 0xffffffff},
    {QPalette::Light, 0xffffffff},
    {QPalette::Midlight, 0xffdfe4ea},
    {QPalette::Mid, 0xffb9c2cc},
    {QPalette::Dark, 0xff93a0ad},
};

constexpr RoleColor kLightDisabled[] = {
    {QPalette::WindowText, 0xff8a95a1}, {QPalette::Text, 0xff8a95a1},      {QPalette::ButtonText, 0xff8a95a1},
    {QPalette::Base, 0xffeef1f4},       {QPalette::Highlight, 0xffb9c2cc},
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
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setPalette(program_palette(QApplication::palette()));
    QFont font = QApplication::font();
    font.setPointSizeF(std::clamp(font.pointSizeF(), kSmallestFont, kLargestFont));
    QApplication::setFont(font);
    application.setWindowIcon(QIcon(QStringLiteral(":/icons/quittika.png")));
}

QPalette on_background(QPalette base, const QColor& background) {
    const QColor text = is_dark(background) ? QColor(Qt::white) : QColor(kInk);
    for (const auto role : {QPalette::Window, QPalette::Button, QPalette::Base}) {
        base.setColor(role, background);
    }
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
        base.setColor(role, text);
        base.setColor(QPalette::Disabled, role, mix(text, background, 0.55));
    }
    return base;
}

QColor mix(const QColor& a, const QColor& b, double share) {
    const auto blend = [share](int of_a, int of_b) { return qRound(of_a * share + of_b * (1.0 - share)); };
    return QColor(blend(a.red(), b.red()), blend(a.green(), b.green()), blend(a.blue(), b.blue()));
}

} // namespace quittika::theme
