#pragma once

#include "platform/qt/paint_tools.hpp"
#include "platform/recording.hpp"

#include <QImage>
#include <QSize>

#include <string>

namespace quittika {

/// Size in pixels of a sheet that fills `room` as far as its proportions allow.
QSize sheet_size(const Paper& paper, const QSize& room);

/// A page on white paper, as large as its sheet in the given pixels. Pictures that cannot be loaded any more
/// are left out. Throws `Laufzeitfehler` 7 where it needs too much memory.
QImage page_image(const DrawnPage& page, const QSize& sheet, PaintTools& tools);

/// As `Printing::save_page`.
void save_page(const DrawnPage& page, const std::string& path, int dpi, PaintTools& tools);

} // namespace quittika
