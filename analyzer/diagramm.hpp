#pragma once

#include "analyzer/betragssumme.hpp"
#include "analyzer/rechnungstabelle.hpp"

#include <string>
#include <vector>

namespace quittika {

/// Gross amounts of some invoices, and which invoices these are. An amount that is none counts 0.
struct Diagrammteil {
    Betragssumme summe;
    std::vector<int> rechnungen;
};

/// One column of a chart.
struct Saeule {
    std::string name;
    Diagrammteil bezahlt;
    Diagrammteil unbezahlt;
};

struct Monatsbild {
    std::vector<Saeule> saeulen;
    int ohne_datum = 0; ///< invoices without a date that can be read; they stand in the last column
};

/// By month, "11.2008". Months without an invoice are there too, unless the dates lie more than 20 years
/// apart.
Monatsbild NACH_MONATEN(const Rechnungstabelle& daten);

/// The unpaid ones by dunning level, as far as there are any; first those that were not dunned.
std::vector<Saeule> NACH_MAHNSTUFEN(const Rechnungstabelle& daten);

} // namespace quittika
