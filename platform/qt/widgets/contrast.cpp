#include "platform/qt/widgets/contrast.hpp"

#include "platform/qt/widgets/theme.hpp"

#include <algorithm>
#include <cmath>

namespace quittika::theme {

namespace {

constexpr double kDisabledShare = 0.55; ///< how much of the text's colour is left on a disabled control

/// The share of light that one part of a colour (0 to 1) gives off.
double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor& a, const QColor& b) {
    constexpr double kStrayLight = 0.05;
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + kStrayLight) / (darker + kStrayLight);
}

QColor readable_on(const QColor& ground) {
    const QColor white(Qt::white);
    const QColor black(Qt::black);
    return contrast(white, ground) > contrast(black, ground) ? white : black;
}

QColor soft(const QColor& text, const QColor& ground, double share, double least) {
    constexpr double kStep = 0.05;
    QColor mixed = mix(text, ground, share);
    while (share < 1.0 && contrast(mixed, ground) < least) {
        share = std::min(1.0, share + kStep);
        mixed = mix(text, ground, share);
    }
    return mixed;
}

void set_text(QPalette& palette, std::initializer_list<QPalette::ColorRole> roles, const QColor& text,
              const QColor& ground) {
    for (const QPalette::ColorRole role : roles) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, soft(text, ground, kDisabledShare, kDisabledContrast));
    }
}

void show_selection(QPalette& palette, const QColor& ground, const QColor& text) {
    if (contrast(palette.color(QPalette::Highlight), ground) < kDisabledContrast) {
        palette.setColor(QPalette::Highlight, text);
        palette.setColor(QPalette::HighlightedText, ground);
    }
}

} // namespace quittika::theme
