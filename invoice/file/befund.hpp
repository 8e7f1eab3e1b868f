#pragma once

#include "invoice/file/dateifelder.hpp"

#include <string>
#include <vector>

namespace quittika {

/// What is wrong with an invoice file that was read.
struct Befund {
    bool gekuerzt = false;      ///< fewer lines than the program writes, or a last line without its end
    bool abgeschnitten = false; ///< more lines than are read
    int positionen = 0;         ///< position lines damaged
    int werte = 0;              ///< values not understood
};

/// What panel 3 says of it; empty when nothing is wrong.
std::string BEFUND_MELDUNG(const Befund& befund);

/// Whether a position line has its six values, and those of an amount are numbers.
bool POSITION_HEIL(const Positionszeile& zeile);

/// How many lines hold something that is not of their control's kind. Lines that are empty or not set do not
/// count.
int UNVERSTANDENE_WERTE(const Dateizeilen& zeilen, const std::vector<Dateifeld>& felder);

} // namespace quittika
