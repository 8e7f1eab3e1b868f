#pragma once

#include <string>
#include <string_view>

namespace quittika {

/// What lists tell of an invoice, read from the bytes of its file.
struct Belegauszug {
    bool lesbar = false;     ///< it is one
    std::string gespeichert; ///< date and time
    std::string datum;
    std::string kunde;
    std::string nummer;
    std::string betrag;
};

Belegauszug BELEGAUSZUG(std::string_view bytes);

} // namespace quittika
