#pragma once

#include "platform/qt/print_painter.hpp"

class QPrinter;

namespace quittika {

/// Draws one job on a printer of the system, over the whole sheet.
class QtPrinterDevice final : public PainterDevice {
public:
    /// `printer` outlives the job. Throws `Laufzeitfehler` 482 with the reason when it is unknown or takes
    /// no job.
    QtPrinterDevice(PaintTools& tools, QPrinter& printer, const PrintDocument& document);
    ~QtPrinterDevice() override;

    void new_page() override;
    void end_document() override;

private:
    QPrinter& printer_;
    bool ended_ = false;
};

} // namespace quittika
