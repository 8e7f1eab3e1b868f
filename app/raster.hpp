#pragma once

#include "invoice/form1.hpp"

namespace quittika {

/// A row of the grid follows its tick: ticked, quantity and price are "0", grey and locked.
void RasterzeileFreigeben(Form1::Rasterzeile& zeile, int seite);

} // namespace quittika
