#pragma once

#include "invoice/eingabezeile.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnung.hpp"
#include "invoice/rechnungszustand.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace quittika {

/// What a field belongs to. A step that changes fields of several is named by the first of them.
enum class Feldart : std::uint8_t {
    Rechnung, ///< in the invoice's file
    Kunde,    ///< the same
    Druck,    ///< how the invoice is printed
    Eingabe,  ///< the input line, beyond the row fetched there; its texts go back after that row
};

/// One of the values, as text, that make an invoice besides its rows. Amounts are none: they follow.
struct Standfeld {
    std::function<std::string()> lesen;
    std::function<void(const std::string&)> setzen;
    Feldart art;
    const char* schritt; ///< what the user did who changed this field alone
};

/// All of them; each puts its text back in the order in which they stand.
std::vector<Standfeld> STANDFELDER(Form1& form1, Rechnungszustand& zustand, Rechnung& rechnung,
                                   Eingabezeile& eingabezeile);

/// Index of `Text_RNnr` among them.
std::size_t NUMMERNFELD(const std::vector<Standfeld>& felder);

} // namespace quittika
