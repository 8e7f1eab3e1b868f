#include "print/textblock.hpp"

#include "platform/printing.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr double kMmJePunkt = 25.4 / 72;
// Of the font's size, from the top of a line: where its letters begin and end.
constexpr double kOberlaenge = 0.18;
constexpr double kUnterlaenge = 0.95;
constexpr double kRand = 4; ///< mm that stay free at the sheet's edges
constexpr Paper kBlatt;

/// Lines up to the last one that shows something.
std::size_t gedruckte_zeilen(const Textblock& block) {
    std::size_t anzahl = block.zeilen.size();
    while (anzahl > 0 && block.zeilen[anzahl - 1].find_first_not_of(' ') == std::string::npos) {
        --anzahl;
    }
    return anzahl;
}

} // namespace

Blockmass BLOCK_MESSEN(Blatt& blatt, const Textblock& block) {
    Blockmass mass;
    const std::size_t anzahl = gedruckte_zeilen(block);
    for (std::size_t i = 0; i < anzahl; ++i) {
        blatt.schrift(block.groesse, i < block.fette_zeilen);
        mass.breite = std::max(mass.breite, blatt.surface.TextWidth(block.zeilen[i]));
        mass.zeilenhoehe = blatt.surface.TextHeight();
        mass.hoehe += mass.zeilenhoehe;
    }
    return mass;
}

Kasten BLOCK_KASTEN(const Textblock& block, const Blockmass& mass) {
    const double hoehe = block.groesse * kMmJePunkt;
    const double letzte = block.y + mass.hoehe - mass.zeilenhoehe;
    return {block.x, block.y + kOberlaenge * hoehe, block.x + mass.breite, letzte + kUnterlaenge * hoehe};
}

double RECHTER_RAND(const Blatt& blatt) {
    return kBlatt.width - kOriginLeft - kRand - blatt.just.Xjust;
}

void AUFS_BLATT_RUECKEN(const Blatt& blatt, Textblock& block, const Blockmass& mass) {
    const double rechts = RECHTER_RAND(blatt);
    if (block.x + mass.breite > rechts) {
        block.x = std::max(std::min(block.x, kRand), rechts - mass.breite);
    }
}

double UNTERKANTE(const Blatt& blatt) {
    return kBlatt.height - kOriginTop - kRand - blatt.just.Yjust;
}

void BLOCK_DRUCKEN(Blatt& blatt, const Textblock& block) {
    PrintSurface& surface = blatt.surface;
    surface.ForeColor = block.farbe;
    surface.CurrentY = blatt.Y(block.y);
    for (std::size_t i = 0; i < block.zeilen.size(); ++i) {
        blatt.schrift(block.groesse, i < block.fette_zeilen);
        surface.CurrentX = blatt.X(block.x);
        surface.Print(block.zeilen[i]);
    }
    surface.FontBold = false;
    surface.ForeColor = color::kBlack;
}

double BLOCK_SETZEN(Blatt& blatt, Satzspiegel& satz, Textblock block) {
    const Blockmass mass = BLOCK_MESSEN(blatt, block);
    if (mass.hoehe == 0) {
        return block.y;
    }
    AUFS_BLATT_RUECKEN(blatt, block, mass);
    block.y += satz.ausweichen(BLOCK_KASTEN(block, mass));
    satz.belegen(BLOCK_KASTEN(block, mass));
    BLOCK_DRUCKEN(blatt, block);
    return block.y + mass.hoehe;
}

} // namespace quittika
