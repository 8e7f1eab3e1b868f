#pragma once

#include "platform/qt/print_metrics.hpp"
#include "platform/qt/qt_pictures.hpp"

namespace quittika {

/// What everything that draws pages or pictures shares; one for the program.
struct PaintTools {
    QtFontMetrics metrics;
    QtPictures pictures;
};

} // namespace quittika
