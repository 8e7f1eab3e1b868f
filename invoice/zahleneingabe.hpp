#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quittika {

/// A number as somebody typed it.
struct Zahleneingabe {
    double wert = 0;
    std::string text;           ///< the same with a comma as its only mark
    bool wie_tausender = false; ///< its one point, read as the decimal mark, stands like one of thousands
};

/// Reads a typed number. A comma is the decimal mark; points in front of it part thousands, strictly in
/// groups of three digits. Without a comma one point is the decimal mark. "5,-" is 5. Nothing for every other
/// text.
std::optional<Zahleneingabe> ZAHL_LESEN(std::string_view getippt);

/// The text with each point as a comma: how a text that is no number stays in its field.
std::string MIT_KOMMA(std::string_view text);

/// Beginning of a sentence that says so of a text, which may be a long one.
std::string KEINE_ZAHL(std::string_view getippt);

/// What a field makes of a number.
struct Feldwert {
    double wert = 0;     ///< what counts: the number that the field shows
    std::string text;    ///< what the field shows
    std::string hinweis; ///< what the user ought to know of it; empty for nothing
};

/// `wert`, made of what was typed, in a number format. Where the number typed was another one, the hint says
/// so and ends with `ausweg`, a sentence that names the way out.
Feldwert FELDWERT(std::string_view getippt, const Zahleneingabe& zahl, double wert, std::string_view muster,
                  const std::string& ausweg = {});

} // namespace quittika
