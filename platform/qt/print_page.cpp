#include "platform/qt/print_page.hpp"

#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/qt/print_painter.hpp"
#include "platform/qt/print_paper.hpp"
#include "platform/qt/qt_text.hpp"

#include <QBuffer>
#include <QImageWriter>
#include <QSizeF>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quittika {

namespace {

constexpr int kFinest = 1200; ///< dots an inch

void set_resolution(QImage& image, double dpi) {
    constexpr double kInchPerMetre = 1000 / kMmPerInch;
    image.setDotsPerMeterX(static_cast<int>(std::lround(dpi * kInchPerMetre)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
}

/// Draws one page on a picture that is there already.
class PageDevice final : public PainterDevice {
public:
    PageDevice(QImage& image, double pixels_per_mm, PaintTools& tools) : PainterDevice(tools) {
        begin(image, pixels_per_mm);
    }
    ~PageDevice() override { end(); }

    void picture(double left, double top, double width, double height, const std::string& path) override {
        try {
            PainterDevice::picture(left, top, width, height, path);
        } catch (const Laufzeitfehler&) {
            // It was there when the page was drawn, and the one who drew it was told if it was not.
        }
    }
    void new_page() override {}
    void end_document() override {}
};

} // namespace

QSize sheet_size(const Paper& paper, const QSize& room) {
    const QSizeF sheet = QSizeF(paper.width, paper.height).scaled(room, Qt::KeepAspectRatio);
    return sheet.toSize().expandedTo({1, 1});
}

QImage page_image(const DrawnPage& page, const QSize& sheet, PaintTools& tools) {
    QImage image(sheet, QImage::Format_RGB32);
    if (image.isNull()) {
        throw Laufzeitfehler(fehler::kSpeicher);
    }
    const double pixels_per_mm = sheet.width() / page.paper.width;
    image.fill(Qt::white);
    {
        set_resolution(image, kDrawingDpi);
        PageDevice device(image, pixels_per_mm, tools);
        replay(page, device);
    }
    set_resolution(image, std::max(1.0, std::round(pixels_per_mm * kMmPerInch)));
    return image;
}

void save_page(const DrawnPage& page, const std::string& path, int dpi, PaintTools& tools) {
    if (dpi < 1 || dpi > kFinest) {
        throw Laufzeitfehler(fehler::kUngueltigerAufruf);
    }
    const QSizeF sheet = QSizeF(page.paper.width, page.paper.height) * (dpi / kMmPerInch);
    const QImage image = page_image(page, sheet.toSize(), tools);
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    const bool png = to_qt(path).endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
    if (!QImageWriter(&content, png ? "png" : "bmp").write(image)) {
        throw Laufzeitfehler(fehler::kSpeicher);
    }
    const QByteArray& bytes = content.data();
    datei_ersetzen(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace quittika
