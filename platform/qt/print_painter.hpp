#pragma once

#include "platform/printing.hpp"
#include "platform/qt/print_metrics.hpp"

#include <QDateTime>
#include <QFont>
#include <QImage>
#include <QPainter>

#include <string>
#include <unordered_map>
#include <utility>
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

protected:
    explicit PainterDevice(const QtFontMetrics& metrics) : metrics_(metrics) {}

    /// Starts drawing; `pixels_per_mm` is the device's resolution. Returns whether the device takes it.
    bool begin(QPaintDevice& device, double pixels_per_mm);
    /// From here on colours and pictures become their greys.
    void draw_grey() { grey_ = true; }
    /// Returns whether a drawing was under way and is complete.
    bool end() { return painter_.isActive() && painter_.end(); }

private:
    struct ReadyFont {
        PrintFont font;
        QFont paper;
        double ascent; ///< mm
    };
    struct LoadedPicture {
        QDateTime modified;
        QImage image;
    };

    const ReadyFont& ready(const PrintFont& font);
    const QImage& load(const std::string& path);
    QColor ink(Color color) const;

    const QtFontMetrics& metrics_;
    QPainter painter_;
    double pixels_per_mm_ = 1;
    bool grey_ = false;
    std::vector<ReadyFont> fonts_;
    std::size_t set_font_ = 0; ///< one more than the index of the painter's font, 0 at first
    std::unordered_map<std::string, LoadedPicture> pictures_;
};

} // namespace quittika
