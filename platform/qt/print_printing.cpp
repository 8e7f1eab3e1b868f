#include "platform/qt/print_printing.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/qt/print_printer.hpp"

namespace quittika {

std::unique_ptr<PrintDevice> QtPrinting::printer(const std::string& job_title) {
    QPrinter* const chosen = chosen_();
    if (chosen == nullptr) {
        throw Laufzeitfehler(fehler::kDrucker);
    }
    return std::make_unique<QtPrinterDevice>(metrics_, *chosen, job_title);
}

} // namespace quittika
