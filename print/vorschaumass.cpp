#include "print/vorschaumass.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace quittika {

namespace {

constexpr double kTwipsJeMm = 1440 / 25.4;
constexpr int kRand = 150; ///< twips around the page
constexpr std::array kStufen{0.1, 0.25, 0.33, 0.5, 0.67, 0.75, 0.9, 1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0};
constexpr double kGleich = 0.005; ///< magnifications that read alike

/// The magnification at which `mm` of paper fill `twips`.
double fuellend(double mm, int twips) {
    return std::clamp((twips - 2 * kRand) / (mm * kTwipsJeMm), kStufen.front(), kStufen.back());
}

Rollbereich rollbereich(int laenge, int raum) {
    const int frei = raum - laenge;
    if (frei >= 2 * kRand) {
        return {kBildanfang - frei / 2, kBildanfang - frei / 2}; // in the middle
    }
    return {kBildanfang - kRand, kBildanfang + kRand - frei};
}

} // namespace

Bildmass scrollerJustierung(const Paper& blatt, const Vorschauraum& raum, double vergroesserung) {
    const auto twips = [vergroesserung](double mm) {
        return static_cast<int>(mm * kTwipsJeMm * vergroesserung); // what fills the room must not pass it
    };
    const int breite = twips(blatt.width);
    const int hoehe = twips(blatt.height);
    return {breite, hoehe, rollbereich(breite, raum.breite), rollbereich(hoehe, raum.hoehe)};
}

double AUF_SEITENBREITE(const Paper& blatt, const Vorschauraum& raum) {
    return fuellend(blatt.width, raum.breite);
}

double AUF_GANZE_SEITE(const Paper& blatt, const Vorschauraum& raum) {
    return std::min(AUF_SEITENBREITE(blatt, raum), fuellend(blatt.height, raum.hoehe));
}

double NAECHSTE_STUFE(double vergroesserung, int richtung) {
    if (richtung > 0) {
        const auto* const groesser =
            std::upper_bound(kStufen.begin(), kStufen.end(), vergroesserung + kGleich);
        return groesser == kStufen.end() ? kStufen.back() : *groesser;
    }
    const auto* const ab = std::lower_bound(kStufen.begin(), kStufen.end(), vergroesserung - kGleich);
    return ab == kStufen.begin() ? kStufen.front() : *std::prev(ab);
}

} // namespace quittika
