#pragma once

#include "platform/printing.hpp"
#include "platform/qt/print_metrics.hpp"

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
    explicit QtPrinting(std::function<QPrinter*()> chosen) : chosen_(std::move(chosen)) {}

    const QtFontMetrics& metrics() const override { return metrics_; }
    std::unique_ptr<PrintDevice> printer(const std::string& job_title) override;
    std::string output_file() const override;

private:
    QtFontMetrics metrics_;
    std::function<QPrinter*()> chosen_;
};

} // namespace quittika
