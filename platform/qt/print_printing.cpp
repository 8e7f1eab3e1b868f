#include "platform/qt/print_printing.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/qt/print_pdf.hpp"
#include "platform/qt/print_printer.hpp"
#include "platform/qt/qt_text.hpp"

#include <QPrinter>

namespace quittika {

std::unique_ptr<PrintDevice> QtPrinting::printer(const std::string& job_title) {
    QPrinter* const chosen = chosen_();
    if (chosen == nullptr) {
        throw Laufzeitfehler(fehler::kDrucker, "Es ist kein Drucker gewählt.");
    }
    if (!output_file().empty()) {
        return std::make_unique<QtPdfDevice>(metrics_, chosen->outputFileName(), job_title,
                                             chosen->colorMode() == QPrinter::GrayScale);
    }
    return std::make_unique<QtPrinterDevice>(metrics_, *chosen, job_title);
}

std::string QtPrinting::output_file() const {
    const QPrinter* const chosen = chosen_();
    return chosen == nullptr ? std::string() : path_from_qt(chosen->outputFileName());
}

} // namespace quittika
