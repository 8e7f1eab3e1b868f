#pragma once

#include <QIcon>
#include <QImage>

namespace quittika::theme {

/// The same picture, half as far from white; what is transparent stays so.
QImage lighter(const QImage& picture);
QIcon lighter(const QIcon& icon);

/// An icon drawn for light ground as it can be seen on this one.
QIcon icon_on(const QIcon& icon, const QColor& ground);

/// Whether a picture is drawn on white paper or on nothing: all four corners say so.
bool is_on_paper(const QImage& picture);

/// A picture that is drawn on paper, for a dark ground: the paper lets it through, and the drawing is light.
QImage for_dark_ground(const QImage& picture);

} // namespace quittika::theme
