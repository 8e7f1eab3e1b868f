#pragma once

#include "designer/designseite.hpp"

#include <array>

namespace quittika {

/// What guides the eye on the page: the help lines at a block's edges, the marks of DIN 5008, the frame of
/// the selected block and those of blocks that stand in each other's way.
class Hilfslinien {
public:
    Hilfslinien(FORM_DESIGNER& form, const Designseite& seite);

    /// Shows what is ticked, and places it anew.
    void anordnen();
    /// The help lines go to the edges of a block.
    void folgen(std::size_t nummer);
    /// Frames the selected block.
    void auswahl_zeigen(std::size_t nummer);
    /// Frames in red the blocks that cannot print where they stand.
    void kollisionen_zeigen(const std::array<Blocklage, kDesignbloecke>& lagen);
    /// The red frame of a block under way goes.
    void kollision_verbergen(std::size_t nummer);

private:
    FORM_DESIGNER& form_;
    const Designseite& seite_;
    std::size_t zuletzt_ = 0; ///< the block at whose edges the help lines are
};

} // namespace quittika
