#include "print/druckvorlage.hpp"

#include <cstddef>

namespace quittika {

void Druckvorlage::SEITE_DRUCKEN(Blatt& blatt, int nummer) const {
    zeichnen_(blatt, seiten_.at(static_cast<std::size_t>(nummer - 1)));
}

void Druckvorlage::DRUCKEN(PrintSurface& surface, Druckjustierung just) const {
    Blatt blatt{surface, just};
    for (const Druckseite& seite : seiten_) {
        if (!seite.erste()) {
            surface.NewPage();
        }
        zeichnen_(blatt, seite);
    }
    surface.EndDoc();
}

} // namespace quittika
