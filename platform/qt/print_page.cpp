#include "platform/qt/print_page.hpp"

#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/qt/print_painter.hpp"
#include "platform/qt/print_paper.hpp"
#include "platform/qt/qt_text.hpp"

#include <QIODevice>
#include <QImageWriter>
#include <QSizeF>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

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

/// Lets the toolkit write a file of ours. It knows no exceptions: they wait until it is done.
class FileContent final : public QIODevice {
public:
    explicit FileContent(const Bytesenke& target) : target_(target) { open(WriteOnly | Unbuffered); }
    bool isSequential() const override { return true; }

    /// Writes what is left. Throws what writing threw.
    void finish() {
        flush();
        if (error_) {
            std::rethrow_exception(error_);
        }
    }

protected:
    qint64 readData(char* /*data*/, qint64 /*most*/) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override {
        waiting_.append(data, static_cast<std::size_t>(size));
        if (waiting_.size() >= kPortion) {
            flush();
        }
        return error_ ? -1 : size;
    }

private:
    static constexpr std::size_t kPortion = std::size_t{64} * 1024;

    void flush() {
        try {
            if (!error_) {
                target_(waiting_);
            }
        } catch (const Laufzeitfehler&) {
            error_ = std::current_exception();
        }
        waiting_.clear();
    }

    const Bytesenke& target_;
    std::string waiting_;
    std::exception_ptr error_;
};

} // namespace

QSize sheet_size(const Paper& paper, const QSize& room) {
    const QSizeF sheet = QSizeF(paper.width, paper.height).scaled(room, Qt::KeepAspectRatio);
    return sheet.toSize().expandedTo({1, 1});
}

QImage page_image(const DrawnPage& page, const QSize& sheet, PaintTools& tools) {
    QImage image(sheet, page.transparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull()) {
        throw Laufzeitfehler(fehler::kSpeicher);
    }
    const double pixels_per_mm = sheet.width() / page.paper.width;
    image.fill(page.transparent ? Qt::transparent : Qt::white);
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
    const bool png = to_qt(path).endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
    datei_ersetzen(path, [&](const Bytesenke& target) {
        FileContent content(target);
        const bool written = QImageWriter(&content, png ? "png" : "bmp").write(image);
        content.finish();
        if (!written) {
            throw Laufzeitfehler(fehler::kSpeicher);
        }
    });
}

} // namespace quittika
