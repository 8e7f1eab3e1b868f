#pragma once

#include <QColor>
#include <QPalette>

#include <initializer_list>

namespace quittika::theme {

/// Contrast of two opaque colours as readers see it, 1 to 21: the ratio of their luminances.
double contrast(const QColor& a, const QColor& b);

inline constexpr double kTextContrast = 4.5;     ///< at least, of a text to its ground
inline constexpr double kDisabledContrast = 3.0; ///< at least, of a disabled text and of outlines

/// Black or white, whichever is easier to read on a ground: `kTextContrast` at least.
QColor readable_on(const QColor& ground);

/// `share` (0 to 1) of the text's colour mixed with the ground, or more where `least` asks for it.
QColor soft(const QColor& text, const QColor& ground, double share, double least = kTextContrast);

/// Puts a text colour that can be read on `ground`, and softer on what is disabled, into these roles.
void set_text(QPalette& palette, std::initializer_list<QPalette::ColorRole> roles, const QColor& text,
              const QColor& ground);

/// Gives the selection the colours of text and ground where the accent would not be seen on that ground.
void show_selection(QPalette& palette, const QColor& ground, const QColor& text);

} // namespace quittika::theme
