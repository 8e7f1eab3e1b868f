#pragma once

#include "platform/printing.hpp"

#include <optional>

namespace quittika {

/// What a delivery note shows besides its rows and their quantities.
struct Lieferscheinangaben {
    bool werbespruch = true;
    bool bemerkungen = true;
    bool anschreiben = true; ///< in the user's own design
    bool preise = true;      ///< in the built-in designs
};

/// In what the ways to paper and to the screen differ.
struct Druckoptionen {
    Lieferscheinangaben lieferschein; ///< the other documents show everything
    double x_gesamt = 184;            ///< mm, right edge of the totals where position numbers are printed
    std::optional<SquareGrid> girocode = {}; ///< printed beside the totals
};

} // namespace quittika
