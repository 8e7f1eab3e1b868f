#pragma once

#include <string>

namespace quittika {

/// A PDF/A with the XML of an invoice in it, as ZUGFeRD (Factur-X) in profile EN 16931 has it. `pdf`: pages
/// with their fonts and the profile of their colours, as `Printing::archive` makes them. Throws
/// `Laufzeitfehler` 5 for bytes that are no such PDF.
std::string ZUGFERD(const std::string& pdf, const std::string& xml);

} // namespace quittika
