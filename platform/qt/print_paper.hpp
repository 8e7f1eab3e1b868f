#pragma once

#include "platform/printing.hpp"

#include <QPageLayout>

namespace quittika {

/// The sheet for the toolkit's paged devices, drawn on from edge to edge.
QPageLayout page_layout(const Paper& paper);

} // namespace quittika
