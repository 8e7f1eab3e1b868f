#include "print/satzspiegel.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr double kLuft = 1; ///< mm between what moved and what it moved away from

bool bedeckt(const Kasten& a, const Kasten& b) {
    return a.links < b.rechts && b.links < a.rechts && a.oben < b.unten && b.oben < a.unten;
}

} // namespace

bool Satzspiegel::frei(const Kasten& kasten) const {
    return kasten.unten <= unterkante_ &&
           std::none_of(belegt_.begin(), belegt_.end(),
                        [&kasten](const Kasten& k) { return bedeckt(k, kasten); });
}

double Satzspiegel::ausweichen(Kasten kasten) const {
    const double anfang = kasten.oben;
    const double hoehe = kasten.unten - kasten.oben;
    while (kasten.unten <= unterkante_) {
        const auto hindernis = std::find_if(belegt_.begin(), belegt_.end(),
                                            [&kasten](const Kasten& k) { return bedeckt(k, kasten); });
        if (hindernis == belegt_.end()) {
            return kasten.oben - anfang;
        }
        kasten.oben = hindernis->unten + kLuft;
        kasten.unten = kasten.oben + hoehe;
    }
    return 0;
}

double Satzspiegel::frei_unter(double y) const {
    double unten = y;
    for (const Kasten& kasten : belegt_) {
        if (kasten.oben < y) {
            unten = std::max(unten, kasten.unten);
        }
    }
    return unten;
}

} // namespace quittika
