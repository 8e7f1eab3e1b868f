#include "print/firmenkopf.hpp"

#include <array>

namespace quittika {

namespace {

enum class Buendig { Links, Rechts };

/// Where a sender block stands: its top, and the edge that its lines begin or end at.
struct Platz {
    double y;
    Buendig buendig;
    double x;
};

/// Places in mm of the logo and of the sender block beside and without it.
struct Firmenkopf {
    double logo_x;
    double logo_y;
    double logo_breite;
    double logo_hoehe;
    Platz mit_logo;
    Platz ohne_logo;
};

constexpr std::array<Firmenkopf, 8> kFirmenkopf{{
    {145, 8, 45, 30, {8, Buendig::Rechts, 140}, {8, Buendig::Rechts, 190}},
    {12, 8, 45, 30, {7, Buendig::Links, 62}, {8, Buendig::Links, 17}},
    {145, 8, 45, 30, {8, Buendig::Links, 17}, {8, Buendig::Links, 17}},
    {100, 8, 90, 30, {8, Buendig::Links, 17}, {8, Buendig::Links, 17}},
    {12, 8, 45, 30, {8, Buendig::Rechts, 190}, {8, Buendig::Rechts, 190}},
    {173, 6, 23, 45, {8, Buendig::Rechts, 168}, {8, Buendig::Rechts, 145}},
    {6, 5, 190, 35, {45, Buendig::Rechts, 195}, {45, Buendig::Rechts, 195}},
    {149, 8, 45, 30, {43, Buendig::Rechts, 191}, {43, Buendig::Rechts, 191}},
}};

void drucke_zeile(Blatt& blatt, const std::string& text, const Platz& platz) {
    if (platz.buendig == Buendig::Rechts) {
        DRUCKTEXT_RECHTS(blatt, text, platz.x, kUnveraendert);
        blatt.surface.Print("");
    } else {
        blatt.surface.CurrentX = blatt.X(platz.x);
        blatt.surface.Print(text);
    }
}

void drucke_block(Blatt& blatt, const frm_einstellungen& einstellungen, Color farbe, const Platz& platz) {
    blatt.surface.ForeColor = farbe;
    blatt.surface.CurrentY = blatt.Y(platz.y);
    blatt.surface.FontBold = einstellungen.Check_FETT_firma1.ticked();
    for (const std::string& zeile : FIRMENZEILEN(einstellungen)) {
        drucke_zeile(blatt, zeile, platz);
        blatt.surface.FontBold = false;
    }
    blatt.surface.ForeColor = color::kBlack;
}

} // namespace

std::vector<std::string> FIRMENZEILEN(const frm_einstellungen& e) {
    // The eighth field stands after the fourth.
    return {e.Text_firma_1.Text(), e.Text_firma_2.Text(), e.Text_firma_3.Text(), e.Text_firma_4.Text(),
            e.Text_firma_8.Text(), e.Text_firma_5.Text(), e.Text_firma_6.Text(), e.Text_firma_7.Text()};
}

void LAYOUT_FIRMENKOPF(Blatt& blatt, const frm_einstellungen& einstellungen, Color farbe, int layout) {
    if (layout < 1 || layout > static_cast<int>(kFirmenkopf.size())) {
        return;
    }
    const Firmenkopf& kopf = kFirmenkopf[static_cast<std::size_t>(layout - 1)];
    if (einstellungen.Check_keinlogo.Value() != 0) {
        drucke_block(blatt, einstellungen, farbe, kopf.ohne_logo);
        return;
    }
    blatt.surface.PaintPicture(einstellungen.Picture1.Picture(), blatt.X(kopf.logo_x), blatt.Y(kopf.logo_y),
                               kopf.logo_breite, kopf.logo_hoehe);
    drucke_block(blatt, einstellungen, farbe, kopf.mit_logo);
}

} // namespace quittika
