#pragma once

#include "print/blatt.hpp"
#include "print/druckseiten.hpp"

#include <functional>
#include <utility>
#include <vector>

namespace quittika {

/// The document in hand made ready to be drawn: any of its pages can be drawn alone. Good as long as neither
/// document nor settings change.
class Druckvorlage {
public:
    using Zeichnen = std::function<void(Blatt& blatt, const Druckseite& seite)>;
    Druckvorlage(std::vector<Druckseite> seiten, Zeichnen zeichnen)
        : seiten_(std::move(seiten)), zeichnen_(std::move(zeichnen)) {}

    int seiten() const { return static_cast<int>(seiten_.size()); }
    /// Draws page `nummer`, from 1, on the empty sheet in hand. Throws what the surface throws.
    void SEITE_DRUCKEN(Blatt& blatt, int nummer) const;
    /// Draws all pages and ends the document. Throws what the surface throws.
    void DRUCKEN(PrintSurface& surface, Druckjustierung just) const;

private:
    std::vector<Druckseite> seiten_;
    Zeichnen zeichnen_;
};

} // namespace quittika
