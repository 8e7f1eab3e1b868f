#include "print/nachsichtiges_geraet.hpp"

#include "platform/laufzeitfehler.hpp"

namespace quittika {

namespace {

/// A document without its logo is worth more than none. Returns whether the drawing succeeded.
template <class Zeichnung> bool nachsichtig(const Zeichnung& zeichnung) {
    try {
        zeichnung();
        return true;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace

void NachsichtigesGeraet::text(double left, double top, double width, const PrintFont& font, Color color,
                               std::string_view text) {
    ueberdruck_.text(left, top, width, font, text);
    nachsichtig([&] { geraet_.text(left, top, width, font, color, text); });
}

void NachsichtigesGeraet::line(double x1, double y1, double x2, double y2, Color color) {
    nachsichtig([&] { geraet_.line(x1, y1, x2, y2, color); });
}

void NachsichtigesGeraet::picture(double left, double top, double width, double height,
                                  const std::string& path) {
    if (!nachsichtig([&] { geraet_.picture(left, top, width, height, path); }) && fehlendes_bild_.empty()) {
        fehlendes_bild_ = path;
    }
}

void NachsichtigesGeraet::new_page() {
    ueberdruck_.neue_seite();
    geraet_.new_page();
}

} // namespace quittika
