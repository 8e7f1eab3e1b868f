#include "print/nachsichtiges_geraet.hpp"

#include "platform/laufzeitfehler.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr double kMmJePunkt = 25.4 / 72;
// Of the font's size, from the top of the line box: what letters fill.
constexpr double kVersalien = 0.18;
constexpr double kUnterlaengen = 1.15;
constexpr double kHintergrund = 150; ///< mm; pictures this large are the ground of a page

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
    const double hoehe = font.size * kMmJePunkt;
    belegt_.belegen({left, top + kVersalien * hoehe, left + width, top + kUnterlaengen * hoehe});
    nachsichtig([&] { geraet_.text(left, top, width, font, color, text); });
}

void NachsichtigesGeraet::line(double x1, double y1, double x2, double y2, Color color) {
    belegt_.belegen({std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)});
    nachsichtig([&] { geraet_.line(x1, y1, x2, y2, color); });
}

void NachsichtigesGeraet::picture(double left, double top, double width, double height,
                                  const std::string& path) {
    if (std::min(width, height) < kHintergrund) {
        belegt_.belegen({left, top, left + width, top + height});
    }
    if (!nachsichtig([&] { geraet_.picture(left, top, width, height, path); }) && fehlendes_bild_.empty()) {
        fehlendes_bild_ = path;
    }
}

void NachsichtigesGeraet::squares(double left, double top, double size, const SquareGrid& grid) {
    const double rand = size / grid.side * grid.quiet;
    const Kasten kasten{left - rand, top - rand, left + size + rand, top + size + rand};
    const bool auf_dem_blatt = kasten.links >= -kOriginLeft && kasten.rechts <= papier_.width - kOriginLeft &&
                               kasten.unten <= papier_.height - kOriginTop;
    if (auf_dem_blatt && belegt_.frei(kasten)) {
        nachsichtig([&] { geraet_.squares(left, top, size, grid); });
    } else {
        code_fehlt_ = true;
    }
}

void NachsichtigesGeraet::new_page() {
    belegt_ = Satzspiegel(papier_.height);
    ueberdruck_.neue_seite();
    geraet_.new_page();
}

} // namespace quittika
