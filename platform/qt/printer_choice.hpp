#pragma once

#include <QPrinter>

#include <memory>

namespace quittika {

/// The printer that the user chose last, with what was set for it.
class PrinterChoice {
public:
    /// The printer; the system's default one if nobody has chosen yet. It is looked for at the first call.
    QPrinter& printer() {
        if (!printer_) {
            printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        }
        return *printer_;
    }

private:
    std::unique_ptr<QPrinter> printer_;
};

} // namespace quittika
