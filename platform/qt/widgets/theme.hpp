#pragma once

#include <QColor>

class QApplication;

namespace quittika::theme {

/// The one accent colour of the windows, readable on light and on dark ground.
QColor accent();

/// Colour of the outline around what has the focus.
QColor focus_color();

/// Style, palette and font size of the whole program. Call once, before the first window.
/// A dark desktop keeps its own palette, with the program's accent.
void apply(QApplication& application);

/// Whether the desktop's colours are dark.
bool dark();

/// How much larger than in the designs the text is, at least 1.
double scale();

/// A length of a design in pixels, for text of the desktop's size.
int scaled(int pixels);

/// `share` (0 to 1) of `a` mixed with `b`.
QColor mix(const QColor& a, const QColor& b, double share);

} // namespace quittika::theme
