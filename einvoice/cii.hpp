#pragma once

#include "einvoice/belegpruefung.hpp"

#include <string>
#include <string_view>

namespace quittika {

/// The invoice as XML (Cross Industry Invoice, UTF-8). Characters that no XML holds are left out. The result
/// was held against the schema of what the program writes; throws `Laufzeitfehler` 5 where it does not fit.
std::string CII_XML(const Rechnungsbeleg& beleg, E_Format format);

/// What the schema finds in an XML text: a line of English for each place; empty for nothing.
std::string CII_SCHEMAFEHLER(std::string_view xml);

} // namespace quittika
