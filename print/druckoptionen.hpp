#pragma once

namespace quittika {

/// In what the ways to paper and to the screen differ.
struct Druckoptionen {
    /// A delivery note shows no prices, and its remarks only if they were asked for.
    bool lieferschein_ohne_preise = false;
    double x_gesamt = 184; ///< mm, right edge of the totals where position numbers are printed
};

} // namespace quittika
