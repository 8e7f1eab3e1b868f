#pragma once

#include <QColor>
#include <QPalette>

class QApplication;

namespace quittika::theme {

/// The one accent colour of the windows, readable on light and on dark ground.
QColor accent();

/// Colour of the outline around what has the focus, to be seen on that ground.
QColor focus_color(const QColor& ground);

/// Gives a palette another ground for what stands on windows and groups: text that can be read on it, and
/// lines that can be seen.
void set_ground(QPalette& palette, const QColor& ground);

/// Palette of a window that is painted in a colour of its own: everything on it is light, whatever the
/// desktop.
QPalette painted(const QColor& window);

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
