#include "designer/seitenmass.hpp"

#include "platform/forms/twips.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>
#include <cmath>

namespace quittika {

namespace {

constexpr double kKleinste = 1; ///< mm; what is smaller could not be taken hold of any more

} // namespace

Seitenmass SEITE_EINPASSEN(int breite, int hoehe) {
    const int passend =
        std::min(breite, static_cast<int>(std::floor(hoehe * kSeitenbreite / kSeitenhoehe + 0.5)));
    // Whole pixels, so that the page's own edge is sharp.
    const int ganze = std::max(1, passend / kTwipsPerPixel) * kTwipsPerPixel;
    return {ganze, static_cast<int>(std::lround(ganze * kSeitenhoehe / kSeitenbreite))};
}

double GROESSE_LESEN(std::string_view text, double bisher, double anfang, double seite) {
    const double wert = double_versuch(text).value_or(0);
    if (wert < kKleinste) {
        return bisher;
    }
    return wert > seite ? std::max(kKleinste, seite - anfang) : wert;
}

} // namespace quittika
