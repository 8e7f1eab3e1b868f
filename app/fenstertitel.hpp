#pragma once

#include "invoice/rechnungszustand.hpp"

#include <string>

namespace quittika {

/// Title of the main window: name of the file in hand, place of the mark for unsaved changes, program.
std::string FENSTERTITEL(const Rechnungszustand& zustand);

} // namespace quittika
