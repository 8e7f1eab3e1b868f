#pragma once

#include "invoice/form1.hpp"
#include "print/blatt.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <string>
#include <vector>

namespace quittika {

inline constexpr double kSchriftFuss = 8; ///< points, of the bank lines

/// A field of the bank template.
struct Bankfeld {
    std::string text;
    double x; ///< mm, not adjusted
};
/// The fields of the bank template from left to right, with IBAN and BIC where they are printed.
std::vector<Bankfeld> BANKFELDER(const frm_einstellungen& einstellungen);

/// "Seite 2/3".
std::string SEITENZAHL(int seite, int seiten);

/// What stands below the positions and totals of a page.
class Druckfuss {
public:
    Druckfuss(const Form1& form1, const frm_einstellungen& einstellungen, const PROGRAMMEINSTELLUNG& programm)
        : form1_(form1), einstellungen_(einstellungen), programm_(programm) {}

    /// The four lines of remarks in their own size, some lines below the cursor: the fewer, the more lines
    /// the shipping took. Not above `ab` mm of the surface.
    void DRUCKE_BEMERKUNGEN(Blatt& blatt, double ab) const;
    /// Page number, rule and bank lines, at their fixed places.
    void DRUCKE_FUSSZEILE(Blatt& blatt, int seite, int seiten) const;

private:
    double grundlinie() const;
    void freie_zeilen(Blatt& blatt, double y) const;

    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& programm_;
};

} // namespace quittika
