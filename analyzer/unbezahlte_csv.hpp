#pragma once

#include "analyzer/rechnungstabelle.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace quittika {

enum class Zeichensatz { Windows1252, Utf8 };

/// A file's content.
struct Csvinhalt {
    std::string bytes;
    int rechnungen = 0;
    std::size_t ersetzt = 0; ///< characters that the character set lacks
};

/// The unpaid invoices in the order of their files: a head line, then a line each, parted by semicolons, with
/// CR LF behind it. Amounts have a decimal comma and no marks of thousands; what is no amount stays as it
/// stands. UTF-8 begins with its mark, by which table programs know it.
/// `dateien`: the file of each invoice.
Csvinhalt UNBEZAHLTE_CSV(const Rechnungstabelle& daten, const std::vector<std::string>& dateien,
                         Zeichensatz zeichensatz);

} // namespace quittika
