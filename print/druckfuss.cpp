#include "print/druckfuss.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr double kGrundlinie = 272; ///< mm, with one line below the rule
constexpr double kJeWeitereZeile = 5;
constexpr double kBlattbreite = 297; ///< the rule runs over the sheet's right edge

} // namespace

std::vector<Bankfeld> BANKFELDER(const frm_einstellungen& e) {
    if (e.Check_mit_IBAN_BIC_Drucken.ticked()) {
        return {{e.Text_Institut.Text(), 10},
                {e.Text_BLZ.Text(), 45},
                {e.Text_KTO.Text(), 70},
                {e.Text_IBAN.Text(), 99},
                {e.Text_BIC.Text(), 150}};
    }
    return {{e.Text_Institut.Text(), 21}, {e.Text_BLZ.Text(), 88}, {e.Text_KTO.Text(), 149}};
}

std::string SEITENZAHL(int seite, int seiten) {
    return "Seite " + std::to_string(seite) + "/" + std::to_string(seiten);
}

void Druckfuss::DRUCKE_BEMERKUNGEN(Blatt& blatt, double ab) const {
    const bool versand = form1_.Check_Versandkosten.ticked();
    const bool versand_mwst =
        form1_.Check_VersandMwStEXTRA.ticked() || form1_.Check_VersandINKL_MwSt.ticked();
    blatt.leerzeilen(!versand ? 4 : versand_mwst ? 2 : 3);
    blatt.surface.CurrentY = std::max(blatt.surface.CurrentY, ab);
    const double schrift_tabelle = blatt.surface.FontSize;
    blatt.surface.FontSize = programm_.GROESSE_BEMERKUNGEN;
    blatt.surface.ForeColor = programm_.FARBE_BEMERKUNGEN;
    for (const auto* zeile : {&form1_.Text_Bemerkung1, &form1_.Text_Bemerkung2, &form1_.Text_Bemerkung3,
                              &form1_.Text_Bemerkung4}) {
        blatt.surface.CurrentX = blatt.X(12);
        blatt.surface.Print((*zeile)[1].Text());
    }
    blatt.surface.ForeColor = color::kBlack;
    blatt.surface.FontSize = schrift_tabelle;
    blatt.leerzeilen(3);
}

double Druckfuss::grundlinie() const {
    if (einstellungen_.Option_BankVerb_Vorgabe.Value()) {
        return kGrundlinie;
    }
    const int weitere = (einstellungen_.Check_Bankverb_Zeile2.ticked() ? 1 : 0) +
                        (einstellungen_.Check_Bankverb_Zeile3.ticked() ? 1 : 0);
    return kGrundlinie - weitere * kJeWeitereZeile;
}

void Druckfuss::freie_zeilen(Blatt& blatt, double y) const {
    DRUCKTEXT_LINKS(blatt, einstellungen_.Text_Bankverb1.Text(), 10, y + 7);
    if (einstellungen_.Check_Bankverb_Zeile2.ticked()) {
        DRUCKTEXT_LINKS(blatt, einstellungen_.Text_Bankverb2.Text(), 10, y + 11);
    }
    if (einstellungen_.Check_Bankverb_Zeile3.ticked()) {
        DRUCKTEXT_LINKS(blatt, einstellungen_.Text_Bankverb3.Text(), 10, y + 15);
    }
}

void Druckfuss::DRUCKE_FUSSZEILE(Blatt& blatt, int seite, int seiten) const {
    const double y = grundlinie();
    if (einstellungen_.Check_SEITENZAHLDRUCKEN.ticked()) {
        DRUCKTEXT_MITTE(blatt, SEITENZAHL(seite, seiten), 100, y);
    }
    if (einstellungen_.Check_BANKLINIE.ticked()) {
        blatt.surface.Line(blatt.X(0), blatt.Y(y + 5), blatt.X(kBlattbreite), blatt.Y(y + 5),
                           programm_.FARBE_LINIEN);
    }
    blatt.schrift(kSchriftFuss, false);
    blatt.surface.ForeColor = programm_.FARBE_BANKDATEN;
    const bool vorlage = einstellungen_.Option_BankVerb_Vorgabe.Value();
    if (vorlage) {
        for (const Bankfeld& feld : BANKFELDER(einstellungen_)) {
            DRUCKTEXT_LINKS(blatt, feld.text, feld.x, y + 7);
        }
    }
    blatt.surface.ForeColor = color::kBlack;
    if (!vorlage) {
        freie_zeilen(blatt, y); // free lines are no bank data and stay black
    }
}

} // namespace quittika
