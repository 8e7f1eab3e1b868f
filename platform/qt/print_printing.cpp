#include "platform/qt/print_printing.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/qt/chart_sheet.hpp"
#include "platform/qt/print_page.hpp"
#include "platform/qt/print_pdf.hpp"
#include "platform/qt/print_printer.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/recording.hpp"

#include <QPrinter>

namespace quittika {

std::unique_ptr<PrintDevice> QtPrinting::printer(const PrintDocument& document) {
    QPrinter* const chosen = chosen_();
    if (chosen == nullptr) {
        throw Laufzeitfehler(fehler::kDrucker, "Es ist kein Drucker gewählt.");
    }
    if (!output_file().empty()) {
        return std::make_unique<QtPdfDevice>(tools_, chosen->outputFileName(), document,
                                             chosen->colorMode() == QPrinter::GrayScale);
    }
    return std::make_unique<QtPrinterDevice>(tools_, *chosen, document);
}

std::unique_ptr<PrintDevice> QtPrinting::pdf(const std::string& path, const PrintDocument& document) {
    return std::make_unique<QtPdfDevice>(tools_, path_to_qt(path), document);
}

std::unique_ptr<PrintDevice> QtPrinting::archive(const PrintDocument& document, TakeBytes take) {
    return std::make_unique<QtPdfDevice>(tools_, document, std::move(take));
}

std::unique_ptr<PrintDevice> QtPrinting::picture(PictureControl& control, const PrintDocument& document) {
    return draw_on(control, std::make_shared<RecordedJob>(document), tools_.pictures);
}

void QtPrinting::save_page(const DrawnPage& page, const std::string& path, int dpi) {
    quittika::save_page(page, path, dpi, tools_);
}

void QtPrinting::save_charts(const ChartSheet& sheet, const std::string& path) {
    quittika::save_charts(sheet, path);
}

std::string QtPrinting::output_file() const {
    const QPrinter* const chosen = chosen_();
    return chosen == nullptr ? std::string() : path_from_qt(chosen->outputFileName());
}

} // namespace quittika
