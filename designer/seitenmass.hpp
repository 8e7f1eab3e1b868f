#pragma once

#include <string_view>

namespace quittika {

inline constexpr double kSeitenbreite = 210; ///< mm
inline constexpr double kSeitenhoehe = 297;  ///< mm

/// Where a block stands and how big it is, mm.
struct Blockmasse {
    double x = 0;
    double y = 0;
    double b = 0;
    double h = 0;
    bool operator==(const Blockmasse&) const = default;
};

/// What a drawn page of A4 measures inside a room, twips: as large as its proportions allow.
struct Seitenmass {
    int breite = 0;
    int hoehe = 0;
    /// Twips per millimetre.
    double FAKTOR() const { return breite / kSeitenbreite; }
};
Seitenmass SEITE_EINPASSEN(int breite, int hoehe);

/// A length typed into a size field, mm: text that is no number, or less than 1, leaves `bisher`; what is
/// longer than the page ends at its edge, for a block that begins at `anfang`. What fits the page but runs
/// over its edge stays as it was typed.
double GROESSE_LESEN(std::string_view text, double bisher, double anfang, double seite);

} // namespace quittika
