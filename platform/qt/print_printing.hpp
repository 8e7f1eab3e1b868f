#pragma once

#include "platform/qt/paint_tools.hpp"

#include "platform/printing.hpp"

#include <functional>
#include <memory>
#include <string>
#include <utility>

class QPrinter;

namespace quittika {

/// Prints on the printer, or into the PDF file, that the user chose.
class QtPrinting final : public Printing {
public:
    /// `chosen` gives the printer chosen last, null if there was none.
    QtPrinting(PaintTools& tools, std::function<QPrinter*()> chosen)
        : tools_(tools), chosen_(std::move(chosen)) {}

    const QtFontMetrics& metrics() const override { return tools_.metrics; }
    std::unique_ptr<PrintDevice> printer(const PrintDocument& document) override;
    std::unique_ptr<PrintDevice> pdf(const std::string& path, const PrintDocument& document) override;
    std::unique_ptr<PrintDevice> archive(const PrintDocument& document, TakeBytes take) override;
    std::unique_ptr<PrintDevice> picture(PictureControl& control, const PrintDocument& document) override;
    void save_page(const DrawnPage& page, const std::string& path, int dpi) override;
    void save_charts(const ChartSheet& sheet, const std::string& path) override;
    std::string output_file() const override;

private:
    PaintTools& tools_;
    std::function<QPrinter*()> chosen_;
};

} // namespace quittika
