#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quittika {

/// How numbers and truth values are written.
struct Locale {
    char decimal_mark = ',';
    char thousands = '.';
    std::string_view true_word = "Wahr";
    std::string_view false_word = "Falsch";
};

/// The program's own conventions: decimal comma, dates as dd.mm.yyyy.
const Locale& deutsch();

/// Value of a text that is a number: blanks around it, a sign before or behind, thousands marks before the
/// decimal mark, an exponent (e or d). Nothing for every other text, for a value beyond a double, and for a
/// text of more than 500 characters.
std::optional<double> double_versuch(std::string_view text, const Locale& locale = deutsch());

/// The numeric test.
bool ist_numerisch(std::string_view text, const Locale& locale = deutsch());

/// Throws `Laufzeitfehler` 13 for a text that is no number, 6 for a value beyond a double.
double nach_double(std::string_view text, const Locale& locale = deutsch());

/// Rounds half to even. Throws `Laufzeitfehler` 6 outside the bounds of the type.
std::int16_t nach_int16(double wert);
std::int32_t nach_int32(double wert);
/// The same for a text; throws `Laufzeitfehler` 13 for one that is no number, 6 as above.
std::int16_t nach_int16(std::string_view text, const Locale& locale = deutsch());
std::int32_t nach_int32(std::string_view text, const Locale& locale = deutsch());

/// 15 significant digits without trailing zeros; with an exponent from 1E+15 on and where more than 15
/// decimals would be needed. Throws `Laufzeitfehler` 6 for what is not finite.
std::string zahl_text(double wert, const Locale& locale = deutsch());

/// To text and back: removes binary noise behind the 15th digit. Throws `Laufzeitfehler` 6 for what is not
/// finite before or after it.
double dezimal_bereinigt(double wert);

/// Formats by a pattern of zeros with a decimal point: "0.00", "000". The decimal text of 15 digits is
/// rounded half away from zero; a result of zeros only has no sign. A "-" at the front of the pattern is
/// always put. Throws `Laufzeitfehler` 6 for what is not finite.
std::string format_zahl(double wert, std::string_view muster, const Locale& locale = deutsch());

/// "True", "False", the locale's words in any case, or a number: non-zero is true. Nothing for every other
/// text.
std::optional<bool> wahrheitswert(std::string_view text, const Locale& locale = deutsch());

/// "True" or "False".
std::string wahrheit_text(bool wert);

} // namespace quittika
