#pragma once

#include "settings/frm_einstellungen.hpp"

#include <string>
#include <string_view>

namespace quittika {

// What the user ought to know of an entry, in a sentence; empty for nothing. Nobody is stopped by it.

/// Of a rate that the calculation will not understand.
std::string SATZHINWEIS(std::string_view satz);

/// Of an IBAN, "IBAN:" in front of it or not, that was mistyped. An empty one is none.
std::string IBANHINWEIS(std::string_view zeile);

/// The number in such a line, without the word in front, blanks and small letters.
std::string IBAN_NUMMER(std::string_view zeile);

/// Of company lines that name no tax number.
std::string STEUERHINWEIS(const frm_einstellungen& einstellungen);

/// Shows them all beside their fields.
void FELDHINWEISE_ZEIGEN(frm_einstellungen& einstellungen);

} // namespace quittika
