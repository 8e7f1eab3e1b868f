#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quittika {

enum class Schwere : std::uint8_t {
    Hinweis, ///< the user ought to know it, nothing stands in the way
    Fatal,   ///< no electronic invoice can be made like this
};

/// What is missing or wrong, for the user to mend.
struct Mangel {
    Schwere schwere = Schwere::Fatal;
    std::string feld; ///< name of the control to go to: of the main window, `Form_ERechnung` or the settings
    std::string text; ///< German sentences
    int zeile = -1;   ///< row of the position lists from 0 where the control is `List_DARSTELLUNG`
    bool operator==(const Mangel&) const = default;
};

using Maengel = std::vector<Mangel>;

/// Whether one of them stands in the way.
bool IST_FATAL(const Maengel& maengel);

} // namespace quittika
