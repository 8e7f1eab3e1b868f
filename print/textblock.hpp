#pragma once

#include "print/blatt.hpp"
#include "print/satzspiegel.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace quittika {

/// Lines below each other that begin at one place, in mm without the print adjustment.
struct Textblock {
    double x = 0;
    double y = 0;
    double groesse = 10; ///< points
    std::size_t fette_zeilen = 0;
    Color farbe = color::kBlack;
    std::vector<std::string> zeilen;
};

/// How wide and high `block` is drawn. Empty lines at its end take no room.
struct Blockmass {
    double breite = 0;
    double hoehe = 0;
    double zeilenhoehe = 0;
};
Blockmass BLOCK_MESSEN(Blatt& blatt, const Textblock& block);

/// The room that the letters of `block` take where it stands.
Kasten BLOCK_KASTEN(const Textblock& block, const Blockmass& mass);

/// Right end of the room for texts on the sheet in hand, mm.
double RECHTER_RAND(const Blatt& blatt);
/// Shifts a block that would run over the sheet's right edge to the left.
void AUFS_BLATT_RUECKEN(const Blatt& blatt, Textblock& block, const Blockmass& mass);

/// Prints the block where it stands.
void BLOCK_DRUCKEN(Blatt& blatt, const Textblock& block);

/// Prints the block where nothing stands, at its place or below, and takes that room. Returns its lower end,
/// mm; its y for a block without text.
double BLOCK_SETZEN(Blatt& blatt, Satzspiegel& satz, Textblock block);

/// Lowest place of a text on the sheet in hand, mm.
double UNTERKANTE(const Blatt& blatt);

} // namespace quittika
