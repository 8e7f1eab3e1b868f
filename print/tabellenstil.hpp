#pragma once

#include "print/blatt.hpp"
#include "print/drucktabelle.hpp"

namespace quittika {

/// Prints headings and rows in one of the five styles of the user's own design, 0 to 4: light rules, box,
/// shaded rows, coloured heading, hardly any rule. Another number counts as 0. All take the same room.
void DRUCKE_TABELLE(Blatt& blatt, const Drucktabelle& tabelle, Zeilenbereich zeilen, int stil, Color farbe);

} // namespace quittika
