#pragma once

#include <QColor>

class QApplication;

namespace quittika::theme {

/// The one accent colour of the windows, readable on light and on dark ground.
QColor accent();

/// Style, palette and font size of the whole program. Call once, before the first window.
/// A dark desktop keeps its own palette, with the program's accent.
void apply(QApplication& application);

/// `share` (0 to 1) of `a` mixed with `b`.
QColor mix(const QColor& a, const QColor& b, double share);

} // namespace quittika::theme
