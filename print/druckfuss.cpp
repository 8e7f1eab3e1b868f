#include "print/druckfuss.hpp"

#include <string>

namespace quittika {

namespace {

constexpr double kGrundlinie = 272; ///< mm, with one line below the rule
constexpr double kJeWeitereZeile = 5;
constexpr double kBlattbreite = 297; ///< the rule runs over the sheet's right edge
constexpr double kSchriftFuss = 8;

} // namespace

void Druckfuss::DRUCKE_BEMERKUNGEN(Blatt& blatt) const {
    const bool versand = form1_.Check_Versandkosten.ticked();
    const bool versand_mwst =
        form1_.Check_VersandMwStEXTRA.ticked() || form1_.Check_VersandINKL_MwSt.ticked();
    blatt.leerzeilen(!versand ? 4 : versand_mwst ? 2 : 3);
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

void Druckfuss::bankvorlage(Blatt& blatt, double y) const {
    struct Feld {
        const TextBox& text;
        double x;
        double x_mit_iban;
    };
    const frm_einstellungen& e = einstellungen_;
    const bool iban = e.Check_mit_IBAN_BIC_Drucken.ticked();
    for (const Feld& feld : {Feld{e.Text_Institut, 21, 10}, {e.Text_BLZ, 88, 45}, {e.Text_KTO, 149, 70}}) {
        DRUCKTEXT_LINKS(blatt, feld.text.Text(), iban ? feld.x_mit_iban : feld.x, y + 7);
    }
    if (iban) {
        DRUCKTEXT_LINKS(blatt, e.Text_IBAN.Text(), 99, y + 7);
        DRUCKTEXT_LINKS(blatt, e.Text_BIC.Text(), 150, y + 7);
    }
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
        DRUCKTEXT_MITTE(blatt, "Seite " + std::to_string(seite) + "/" + std::to_string(seiten), 100, y);
    }
    if (einstellungen_.Check_BANKLINIE.ticked()) {
        blatt.surface.Line(blatt.X(0), blatt.Y(y + 5), blatt.X(kBlattbreite), blatt.Y(y + 5),
                           programm_.FARBE_LINIEN);
    }
    blatt.schrift(kSchriftFuss, false);
    blatt.surface.ForeColor = programm_.FARBE_BANKDATEN;
    const bool vorlage = einstellungen_.Option_BankVerb_Vorgabe.Value();
    if (vorlage) {
        bankvorlage(blatt, y);
    }
    blatt.surface.ForeColor = color::kBlack;
    if (!vorlage) {
        freie_zeilen(blatt, y); // free lines are no bank data and stay black
    }
}

} // namespace quittika
