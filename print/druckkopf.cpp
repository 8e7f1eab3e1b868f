#include "print/druckkopf.hpp"

#include "invoice/belegtexte.hpp"
#include "print/drucktabelle.hpp"
#include "print/firmenkopf.hpp"

#include <algorithm>
#include <cmath>

namespace quittika {

namespace {

constexpr double kBlattbreite = 210;
constexpr double kBlatthoehe = 296.1;
constexpr Color kFarbeFaltmarken = color::rgb(120, 120, 120);
constexpr int kLeerzeilenVorKundennr = 2;
constexpr double kTabellenbeginn = 133; ///< the first rule follows 2 mm below

} // namespace

std::vector<std::string> KUNDENZEILEN(const Form1& form1) {
    const std::string telefon =
        form1.Check_tele_nichtdrucken.ticked() ? std::string() : KUNDENTEXT(form1, form1.Text_Kunde_4);
    return {KUNDENTEXT(form1, form1.Text_Kunde_1), KUNDENTEXT(form1, form1.Text_Kunde_2),
            KUNDENTEXT(form1, form1.Text_Kunde_3), telefon};
}

void Druckkopf::DRUCKE_WASSERZEICHEN(Blatt& blatt) const {
    if (einstellungen_.Check_mit_Wasserz.ticked()) {
        blatt.surface.PaintPicture(einstellungen_.Picture_wasserz.Picture(), 0, 0, blatt.X(kBlattbreite),
                                   blatt.Y(kBlatthoehe));
    }
}

void Druckkopf::DRUCKE_FALTMARKEN(Blatt& blatt) const {
    if (einstellungen_.Check_Faltmarke_MITDRUCKEN.ticked()) {
        for (const double y : {99.0, 198.0}) {
            // They belong to the sheet's edge, whatever the adjustment.
            blatt.surface.Line(0, blatt.Y(y), 2, blatt.Y(y), kFarbeFaltmarken);
        }
    }
}

void Druckkopf::kopfbeginn(Blatt& blatt) const {
    blatt.surface.FontName = programm_.RECHNUNGSSCHRIFT;
    DRUCKE_WASSERZEICHEN(blatt);
    DRUCKE_FALTMARKEN(blatt);
    blatt.gehe_zu(12, 0);
    blatt.schrift(kSchriftKopf, false);
    blatt.surface.ForeColor = color::kBlack;
}

void Druckkopf::firmenkopf(Blatt& blatt) const {
    LAYOUT_FIRMENKOPF(blatt, einstellungen_, programm_.FARBE_FIRMENDATEN, LAYOUT_GEWAEHLT(einstellungen_));
}

void Druckkopf::kundenblock(Blatt& blatt) const {
    PrintSurface& surface = blatt.surface;
    surface.FontBold = false;
    surface.CurrentY = blatt.Y(55);
    for (const std::string& zeile : KUNDENZEILEN(form1_)) {
        surface.CurrentX = blatt.X(29);
        surface.Print(zeile);
    }
    blatt.leerzeilen(kLeerzeilenVorKundennr);
    surface.CurrentX = blatt.X(29);
    surface.FontBold = true;
    surface.ForeColor = programm_.FARBE_KUNDENNR;
    surface.Print(KUNDENTEXT(form1_, form1_.Text_KundennrK));
    surface.FontBold = false;
}

void Druckkopf::werbespruch(Blatt& blatt) const {
    blatt.schrift(programm_.GROESSE_WERBUNG, true);
    blatt.surface.ForeColor = programm_.FARBE_WERBESPRUCH;
    blatt.gehe_zu(12, 105);
    blatt.surface.Print(einstellungen_.Text_Werbung.Text());
}

void Druckkopf::titel(Blatt& blatt) const {
    blatt.schrift(programm_.GROESSE_RECHNUNG, true);
    blatt.surface.CurrentX = blatt.X(12);
    blatt.surface.Print(BELEGTITEL(form1_, einstellungen_));
    blatt.schrift(kSchriftTabelle, false);
}

/// Prints the date at the cursor's height and leaves the cursor below it. Returns where the delivery date
/// ends, which stands there; 0 without one.
double Druckkopf::datum(Blatt& blatt) const {
    blatt.surface.CurrentX = blatt.X(172);
    blatt.surface.Print(form1_.Text_Datum.Text());
    if (!form1_.Check_LIEFERDATUM.ticked()) {
        return 0;
    }
    DRUCKTEXT_RECHTS(blatt, form1_.Text_LIEFERDATUM.Text(), 190, kUnveraendert);
    return blatt.surface.CurrentY + blatt.surface.TextHeight();
}

void Druckkopf::DRUCKE_KOPF_VOLL(Blatt& blatt, bool mit_werbespruch) const {
    kopfbeginn(blatt);
    firmenkopf(blatt);
    blatt.surface.CurrentY = blatt.Y(123);
    datum(blatt);
    kundenblock(blatt);
    if (mit_werbespruch) {
        werbespruch(blatt);
    }
    blatt.surface.ForeColor = color::kBlack;
    blatt.surface.CurrentY = blatt.Y(125);
    titel(blatt);
    const double frei = blatt.Y(kTabellenbeginn) - blatt.surface.CurrentY;
    blatt.leerzeilen(static_cast<int>(std::lround(frei / blatt.surface.TextHeight())));
}

void Druckkopf::datum_und_titel(Blatt& blatt) const {
    const double lieferdatum_ende = datum(blatt);
    // The adjustment counts twice here: documents laid out by it rely on the place.
    blatt.surface.CurrentY += blatt.just.Yjust;
    titel(blatt);
    blatt.surface.CurrentY = std::max(blatt.surface.CurrentY, lieferdatum_ende);
}

void Druckkopf::DRUCKE_KOPF_LOGO(Blatt& blatt) const {
    kopfbeginn(blatt);
    firmenkopf(blatt);
    blatt.surface.CurrentY += blatt.just.Yjust + 12;
    datum_und_titel(blatt);
}

void Druckkopf::DRUCKE_KOPF_KURZ(Blatt& blatt) const {
    kopfbeginn(blatt);
    blatt.surface.CurrentY = blatt.Y(30);
    datum_und_titel(blatt);
}

} // namespace quittika
