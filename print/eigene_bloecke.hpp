#pragma once

#include "designer/design.hpp"
#include "invoice/form1.hpp"
#include "print/druckoptionen.hpp"
#include "print/druckseiten.hpp"
#include "print/textblock.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <optional>
#include <vector>

namespace quittika {

/// Below the last rule of rows and amounts, mm.
inline constexpr double kTabellenschluss = 2;

/// The blocks of the user's own design, each at its place in the design, in its size and colour.
class EigeneBloecke {
public:
    EigeneBloecke(const Form1& form1, const frm_einstellungen& einstellungen,
                  const PROGRAMMEINSTELLUNG& programm, const Design& design)
        : form1_(form1), einstellungen_(einstellungen), programm_(programm), design_(design) {}

    Textblock absender() const;
    Textblock kunde() const;
    Textblock kundennummer() const;
    Textblock datum() const;
    Textblock lieferdatum() const; ///< without lines while the delivery date is not ticked
    Textblock werbespruch() const;
    Textblock titel() const;
    Textblock anschreiben() const;
    Textblock bemerkungen() const;
    Textblock seitenzahl(const Druckseite& seite) const; ///< without lines while page numbers are off
    /// The bank data, a block each; each begins behind the one before where that is wider than its column,
    /// and one line further down where no room is left beside it.
    std::vector<Textblock> bankzeilen(Blatt& blatt) const;
    /// Room and drawing of the rule above the bank data; neither where it is not wanted.
    std::optional<Kasten> banklinie() const;
    void BANKLINIE_DRUCKEN(Blatt& blatt) const;
    /// Where a table ends, and where its totals begin, in mm of the surface; nothing for a page without.
    struct Tabellenende {
        double linie; ///< mm, the last rule; the cursor is below it
        std::optional<double> summen;
    };
    /// Prints rows and amounts of a page from `y` mm on.
    Tabellenende TABELLE_DRUCKEN(Blatt& blatt, const Druckseite& seite, const Druckoptionen& optionen,
                                 double y) const;

private:
    std::vector<std::string> textzeilen(int block) const;
    std::vector<Textblock> freie_zeilen() const;

    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& programm_;
    const Design& design_;
};

} // namespace quittika
