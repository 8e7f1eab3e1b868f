#pragma once

#include "print/blatt.hpp"
#include "settings/frm_einstellungen.hpp"

namespace quittika {

/// Prints the logo and the sender block of a built-in design, 1 to 8, and leaves the cursor below the block.
/// The user's own design has the block of design 2; any other number prints nothing.
void LAYOUT_FIRMENKOPF(Blatt& blatt, const frm_einstellungen& einstellungen, Color farbe, int layout);

} // namespace quittika
