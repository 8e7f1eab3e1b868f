#pragma once

#include "print/blatt.hpp"
#include "settings/frm_einstellungen.hpp"

#include <string>
#include <vector>

namespace quittika {

/// The lines of the sender block in the order in which they are printed.
std::vector<std::string> FIRMENZEILEN(const frm_einstellungen& einstellungen);

/// Prints the logo and the sender block of a built-in design, 1 to 8, and leaves the cursor below the block.
/// Any other number prints nothing.
void LAYOUT_FIRMENKOPF(Blatt& blatt, const frm_einstellungen& einstellungen, Color farbe, int layout);

} // namespace quittika
