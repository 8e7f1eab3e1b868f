#include "platform/qt/print_picture.hpp"

#include "platform/laufzeitfehler.hpp"

#include <cmath>

namespace quittika {

namespace {

constexpr double kPageWidth = 210;  ///< mm
constexpr double kPageHeight = 297; ///< mm

QImage blank_page(double pixels_per_mm) {
    QImage page(static_cast<int>(std::lround(kPageWidth * pixels_per_mm)),
                static_cast<int>(std::lround(kPageHeight * pixels_per_mm)), QImage::Format_RGB32);
    if (page.isNull()) {
        throw Laufzeitfehler(fehler::kSpeicher);
    }
    page.setDotsPerMeterX(static_cast<int>(std::lround(pixels_per_mm * 1000)));
    page.setDotsPerMeterY(page.dotsPerMeterX());
    page.fill(Qt::white);
    return page;
}

} // namespace

QtPictureDevice::QtPictureDevice(const QtFontMetrics& metrics, int dpi, int only_page)
    : PainterDevice(metrics), dpi_(dpi), only_page_(only_page) {
    QtPictureDevice::new_page();
}

QtPictureDevice::~QtPictureDevice() {
    end();
}

void QtPictureDevice::new_page() {
    end();
    ++page_;
    if (wanted()) {
        const double pixels_per_mm = dpi_ / 25.4;
        begin(pages_.emplace_back(blank_page(pixels_per_mm)), pixels_per_mm);
    }
}

void QtPictureDevice::text(double left, double top, double width, const PrintFont& font, Color color,
                           std::string_view text) {
    if (wanted()) {
        PainterDevice::text(left, top, width, font, color, text);
    }
}

void QtPictureDevice::line(double x1, double y1, double x2, double y2, Color color) {
    if (wanted()) {
        PainterDevice::line(x1, y1, x2, y2, color);
    }
}

void QtPictureDevice::picture(double left, double top, double width, double height, const std::string& path) {
    if (wanted()) {
        PainterDevice::picture(left, top, width, height, path);
    }
}

} // namespace quittika
