#pragma once

#include "print/blatt.hpp"
#include "print/satzspiegel.hpp"

namespace quittika {

/// The room of a GiroCode beside totals that begin at `y` mm on paper, with its quiet zone, in mm of the
/// surface: close below the rule above them.
Kasten GIROCODE_KASTEN(const Blatt& blatt, const SquareGrid& code, double y);

/// Prints it there. The device leaves it out where something stands already.
void DRUCKE_GIROCODE(Blatt& blatt, const SquareGrid& code, double y);

} // namespace quittika
