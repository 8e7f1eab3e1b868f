#pragma once

#include "platform/printing.hpp"

namespace quittika {

/// What stands below the picture's place in the preview: a picture at `kBildanfang` has its scroll bar at 0.
inline constexpr int kBildanfang = 600; ///< twips

/// Where the pages are seen, in twips.
struct Vorschauraum {
    int breite = 0;
    int hoehe = 0;
};

/// Bounds of a scroll bar, in twips; equal where there is nothing to scroll.
struct Rollbereich {
    int min = 0;
    int max = 0;
    bool operator==(const Rollbereich&) const = default;
};

/// Size of the shown page in twips, and how far it can be scrolled.
struct Bildmass {
    int breite = 0;
    int hoehe = 0;
    Rollbereich waagrecht;
    Rollbereich senkrecht;
};

/// At a magnification of 1 a millimetre on the screen is one of the paper.
Bildmass scrollerJustierung(const Paper& blatt, const Vorschauraum& raum, double vergroesserung);

/// The magnification at which the page fills the room in its width, or wholly; within the bounds.
double AUF_SEITENBREITE(const Paper& blatt, const Vorschauraum& raum);
double AUF_GANZE_SEITE(const Paper& blatt, const Vorschauraum& raum);
/// The next larger (`richtung` 1) or smaller (-1) of the usual magnifications; the outermost stays.
double NAECHSTE_STUFE(double vergroesserung, int richtung);

} // namespace quittika
