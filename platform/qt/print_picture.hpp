#pragma once

#include "platform/qt/print_painter.hpp"

#include <QImage>

#include <vector>

namespace quittika {

/// Draws every page on a white picture of its own.
class QtPictureDevice final : public PainterDevice {
public:
    /// `dpi` dots an inch; with `only_page` above 0 that page alone is kept, the others are not drawn.
    QtPictureDevice(const QtFontMetrics& metrics, int dpi, int only_page = 0);
    ~QtPictureDevice() override;

    void text(double left, double top, double width, const PrintFont& font, Color color,
              std::string_view text) override;
    void line(double x1, double y1, double x2, double y2, Color color) override;
    void picture(double left, double top, double width, double height, const std::string& path) override;
    void new_page() override;
    void end_document() override { end(); }

    /// The pages drawn; complete after the end of the document.
    const std::vector<QImage>& pages() const { return pages_; }

private:
    bool wanted() const { return only_page_ == 0 || page_ == only_page_; }

    int dpi_;
    int only_page_;
    int page_ = 0;
    std::vector<QImage> pages_;
};

} // namespace quittika
