#pragma once

#include "invoice/form1.hpp"

#include <string>

namespace quittika {

/// File name offered on saving: date, title, number, customer number and name, without the characters that
/// file names must not hold, at most 127 characters before ".qk8".
/// Throws `Laufzeitfehler` 13 when `Text_Datum` is no date.
std::string DATEINAME_VORSCHLAGEN(const Form1& form1);

} // namespace quittika
