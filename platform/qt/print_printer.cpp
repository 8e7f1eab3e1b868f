#include "platform/qt/print_printer.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/qt/print_paper.hpp"
#include "platform/qt/print_queue.hpp"
#include "platform/qt/qt_text.hpp"

#include <QPrinter>

namespace quittika {

namespace {

constexpr const char* kRefused = "Der Drucker hat den Auftrag nicht angenommen.";

} // namespace

QtPrinterDevice::QtPrinterDevice(PaintTools& tools, QPrinter& printer, const PrintDocument& document)
    : PainterDevice(tools), printer_(printer) {
    if (const std::string obstacle = obstacle_to_printing(printer_.printerName()); !obstacle.empty()) {
        throw Laufzeitfehler(fehler::kDrucker, obstacle);
    }
    printer_.setResolution(kDrawingDpi);
    printer_.setPageLayout(page_layout(document.paper));
    // The program prints each copy as a job of its own.
    printer_.setCopyCount(1);
    printer_.setDocName(to_qt(document.title));
    printer_.setCreator(QStringLiteral("Quittika 2008"));
    if (!begin(printer_, printer_.resolution() / kMmPerInch)) {
        throw Laufzeitfehler(fehler::kDrucker, kRefused);
    }
}

QtPrinterDevice::~QtPrinterDevice() {
    if (!ended_) {
        printer_.abort();
        end();
    }
}

void QtPrinterDevice::new_page() {
    if (!printer_.newPage()) {
        throw Laufzeitfehler(fehler::kDrucker, kRefused);
    }
}

void QtPrinterDevice::end_document() {
    ended_ = true;
    if (!end() || printer_.printerState() == QPrinter::Error) {
        throw Laufzeitfehler(fehler::kDrucker, kRefused);
    }
}

} // namespace quittika
