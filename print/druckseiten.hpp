#pragma once

#include "invoice/form1.hpp"
#include "print/seitenumbruch.hpp"
#include "settings/frm_einstellungen.hpp"

#include <string>
#include <vector>

namespace quittika {

/// One page of the document in hand, calculated before anything is drawn.
struct Druckseite {
    int nummer = 1; ///< from 1
    int anzahl = 1; ///< pages of the document
    Zeilenbereich zeilen;
    std::string uebertrag = "0"; ///< carried from the pages before
    std::string zwischensumme;   ///< the sum so far: what the next page carries

    bool erste() const { return nummer == 1; }
    bool letzte() const { return nummer == anzahl; }
};

/// All pages of the document in hand, at least one.
std::vector<Druckseite> DRUCKSEITEN(const Form1& form1, const frm_einstellungen& einstellungen);

/// Sum of the line totals as text, with the decimals that are printed. What is not numeric adds nothing.
std::string SUMME_SEITE(const Form1& form1, Zeilenbereich zeilen);
/// `SUMME_SEITE` and the carry, as text; the carry alone where the sum is beyond all bounds.
std::string ZWISCHENSUMME(const Form1& form1, Zeilenbereich zeilen, const std::string& uebertrag);

} // namespace quittika
