#pragma once

#include "platform/print_surface.hpp"
#include "settings/frm_einstellungen.hpp"

#include <string_view>

namespace quittika {

/// Print adjustment in whole millimetres, read once for a job.
struct Druckjustierung {
    int Xjust = 0;
    int Yjust = 0;
};

/// The adjustment that the sliders of the settings dialog show.
Druckjustierung JUSTIERUNG_LESEN(const frm_einstellungen& einstellungen);

/// The sheet in hand: the surface, and the adjustment of the job that draws on it.
struct Blatt {
    PrintSurface& surface;
    Druckjustierung just;

    double X(double mm) const { return just.Xjust + mm; } ///< mm from the left, adjusted
    double Y(double mm) const { return just.Yjust + mm; } ///< mm from the top, adjusted

    /// Puts the cursor at an adjusted place.
    void gehe_zu(double x, double y) {
        surface.CurrentX = X(x);
        surface.CurrentY = Y(y);
    }
    void schrift(double groesse, bool fett) {
        surface.FontSize = groesse;
        surface.FontBold = fett;
    }
    /// Steps down by `anzahl` lines of the present font.
    void leerzeilen(int anzahl);
};

/// Leaves a coordinate as it is.
inline constexpr double kUnveraendert = -1;

/// Prints `text` without a line end, beginning at `x`, `y` mm; the adjustment is added unless `absolut`.
/// The cursor returns to where it was unless `position_behalten`, which leaves it behind the text.
void DRUCKTEXT_LINKS(Blatt& blatt, std::string_view text, double x, double y, bool absolut = false,
                     bool position_behalten = false);
/// The same, centred on `x`.
void DRUCKTEXT_MITTE(Blatt& blatt, std::string_view text, double x, double y, bool absolut = false,
                     bool position_behalten = false);
/// The same, ending at `x`.
void DRUCKTEXT_RECHTS(Blatt& blatt, std::string_view text, double x, double y, bool absolut = false,
                      bool position_behalten = false);

} // namespace quittika
