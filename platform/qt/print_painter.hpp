#pragma once

#include "platform/printing.hpp"
#include "platform/qt/paint_tools.hpp"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QRawFont>

#include <string>
#include <unordered_map>
#include <vector>

class QPaintDevice;

namespace quittika {

/// Draws on anything that a painter can draw on; what the real devices share.
/// Fonts and pictures are prepared once for a job.
class PainterDevice : public PrintDevice {
public:
    void text(double left, double top, double width, const PrintFont& font, Color color,
              std::string_view text) override;
    void line(double x1, double y1, double x2, double y2, Color color) override;
    void picture(double left, double top, double width, double height, const std::string& path) override;
    void squares(double left, double top, double size, const SquareGrid& grid) override;

protected:
    explicit PainterDevice(PaintTools& tools) : tools_(tools) {}

    /// Starts drawing, so large that a millimetre has this many of the device's pixels. Returns whether the
    /// device takes it.
    bool begin(QPaintDevice& device, double pixels_per_mm);
    /// From here on colours and pictures become their greys.
    void draw_grey() { grey_ = true; }
    /// Returns whether a drawing was under way and is complete.
    bool end() { return painter_.isActive() && painter_.end(); }

private:
    struct ReadyFont {
        PrintFont font;
        QFont paper;
        QRawFont outlines;
        double ascent; ///< mm
    };
    /// A picture in the colours and, at most, the resolution of the device.
    struct ReadyPicture {
        qint64 source; ///< cache key of what it was made from
        QSize box;     ///< pixels that it is drawn over
        QImage image;
    };

    const ReadyFont& ready(const PrintFont& font);
    const QImage& ready(const std::string& path, const QSize& box);
    QColor ink(Color color) const;

    PaintTools& tools_;
    QPainter painter_;
    double pixels_per_mm_ = 1; ///< as the painter counts them
    double dpi_ = 1;           ///< of the device
    bool grey_ = false;
    std::vector<ReadyFont> fonts_;
    std::size_t set_font_ = 0; ///< one more than the index of the painter's font, 0 at first
    std::unordered_map<std::string, ReadyPicture> pictures_;
};

} // namespace quittika
