#include "print/girodruck.hpp"

namespace quittika {

namespace {

constexpr double kLinks = 12;        ///< mm
constexpr double kSeite = 25;        ///< mm
constexpr double kUnterLinie = -1.4; ///< mm, where the quiet zone begins above the first line of the totals

double ruhezone(const SquareGrid& code) {
    return kSeite / code.side * code.quiet;
}

} // namespace

Kasten GIROCODE_KASTEN(const Blatt& blatt, const SquareGrid& code, double y) {
    const double rand = ruhezone(code);
    const double links = blatt.X(kLinks) - rand;
    const double oben = y + kUnterLinie;
    return {links, oben, links + kSeite + 2 * rand, oben + kSeite + 2 * rand};
}

void DRUCKE_GIROCODE(Blatt& blatt, const SquareGrid& code, double y) {
    blatt.surface.PaintSquares(code, blatt.X(kLinks), y + kUnterLinie + ruhezone(code), kSeite);
}

} // namespace quittika
