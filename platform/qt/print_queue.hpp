#pragma once

#include <string>

class QString;

namespace quittika {

/// Why no job can be printed on a printer, as a German sentence with the way out: the print server does not
/// answer, it does not know the printer, or the queue is stopped or closed. Empty where nothing speaks
/// against it, or nothing can be found out.
std::string obstacle_to_printing(const QString& printer_name);

} // namespace quittika
