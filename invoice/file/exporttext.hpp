#pragma once

#include "invoice/form1.hpp"
#include "settings/frm_einstellungen.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// How a text stands in its column.
enum class Spaltenart : std::uint8_t {
    Zahl, ///< centred; a number with at least three digits
    Links,
    Rechts,
    Mitte, ///< of an odd rest the larger half behind the text
};

/// The text in a column of `breite` characters; one that is longer loses its end, and ".." stands for it.
std::string ExportSpalte(Spaltenart art, std::string_view text, std::size_t breite);

struct Exporttext {
    std::vector<std::string> zeilen;
    bool gekuerzt = false; ///< the end of a line is left out
};

/// The invoice in hand as a page of plain text, 118 characters wide.
Exporttext EXPORTTEXT(const Form1& form1, const frm_einstellungen& einstellungen);

} // namespace quittika
