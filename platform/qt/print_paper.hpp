#pragma once

#include "platform/printing.hpp"

#include <QPageLayout>

namespace quittika {

inline constexpr double kMmPerInch = 25.4;
/// Dots an inch on which every page is drawn. The toolkit rounds fonts to whole pixels: here a hundredth of a
/// point is one, so that a text is as wide as it was measured.
inline constexpr int kDrawingDpi = 7200;

/// The sheet for the toolkit's paged devices, drawn on from edge to edge.
QPageLayout page_layout(const Paper& paper);

} // namespace quittika
