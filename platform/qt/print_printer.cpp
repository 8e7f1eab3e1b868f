#include "platform/qt/print_printer.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/qt/print_queue.hpp"

#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>

namespace quittika {

namespace {

constexpr int kResolution = 1200; ///< dots per inch
constexpr const char* kRefused = "Der Drucker hat den Auftrag nicht angenommen.";

} // namespace

QtPrinterDevice::QtPrinterDevice(const QtFontMetrics& metrics, QPrinter& printer, const std::string& title)
    : PainterDevice(metrics), printer_(printer) {
    if (const std::string obstacle = obstacle_to_printing(printer_.printerName()); !obstacle.empty()) {
        throw Laufzeitfehler(fehler::kDrucker, obstacle);
    }
    printer_.setResolution(kResolution);
    printer_.setPageSize(QPageSize(QPageSize::A4));
    printer_.setPageOrientation(QPageLayout::Portrait);
    printer_.setFullPage(true);
    printer_.setPageMargins(QMarginsF());
    // The program prints each copy as a job of its own.
    printer_.setCopyCount(1);
    printer_.setDocName(QString::fromStdString(title));
    printer_.setCreator(QStringLiteral("Quittika 2008"));
    if (!begin(printer_, printer_.resolution() / 25.4)) {
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
