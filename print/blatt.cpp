#include "print/blatt.hpp"

namespace quittika {

namespace {

/// `anteil` is the part of the text's width that lies left of the given place.
void drucke(Blatt& blatt, std::string_view text, double x, double y, double anteil, bool absolut,
            bool position_behalten) {
    PrintSurface& surface = blatt.surface;
    const double alt_x = surface.CurrentX;
    const double alt_y = surface.CurrentY;
    if (x != kUnveraendert) {
        surface.CurrentX = absolut ? x : blatt.X(x);
    }
    if (y != kUnveraendert) {
        surface.CurrentY = absolut ? y : blatt.Y(y);
    }
    if (anteil > 0) {
        surface.CurrentX -= surface.TextWidth(text) * anteil;
    }
    surface.PrintOn(text);
    if (!position_behalten) {
        surface.CurrentX = alt_x;
        surface.CurrentY = alt_y;
    }
}

} // namespace

Druckjustierung JUSTIERUNG_LESEN(const frm_einstellungen& einstellungen) {
    return {einstellungen.HScroll_druckj.Value(), einstellungen.VScrollDruckj.Value()};
}

void Blatt::leerzeilen(int anzahl) {
    for (int n = 0; n < anzahl; ++n) {
        surface.Print("");
    }
}

void DRUCKTEXT_LINKS(Blatt& blatt, std::string_view text, double x, double y, bool absolut,
                     bool position_behalten) {
    drucke(blatt, text, x, y, 0, absolut, position_behalten);
}

void DRUCKTEXT_MITTE(Blatt& blatt, std::string_view text, double x, double y, bool absolut,
                     bool position_behalten) {
    drucke(blatt, text, x, y, 0.5, absolut, position_behalten);
}

void DRUCKTEXT_RECHTS(Blatt& blatt, std::string_view text, double x, double y, bool absolut,
                      bool position_behalten) {
    drucke(blatt, text, x, y, 1, absolut, position_behalten);
}

} // namespace quittika
