#include "print/nachsichtiges_geraet.hpp"

#include "platform/laufzeitfehler.hpp"

namespace quittika {

namespace {

template <class Zeichnung> void nachsichtig(const Zeichnung& zeichnung) {
    try {
        zeichnung();
    } catch (const Laufzeitfehler&) {
        // A document without its logo is worth more than none.
    }
}

} // namespace

void NachsichtigesGeraet::text(double left, double top, double width, const PrintFont& font, Color color,
                               std::string_view text) {
    nachsichtig([&] { geraet_.text(left, top, width, font, color, text); });
}

void NachsichtigesGeraet::line(double x1, double y1, double x2, double y2, Color color) {
    nachsichtig([&] { geraet_.line(x1, y1, x2, y2, color); });
}

void NachsichtigesGeraet::picture(double left, double top, double width, double height,
                                  const std::string& path) {
    nachsichtig([&] { geraet_.picture(left, top, width, height, path); });
}

} // namespace quittika
