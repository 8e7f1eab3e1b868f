#include "print/summenblock.hpp"

#include "invoice/belegtexte.hpp"

#include <string>

namespace quittika {

namespace {

constexpr double kLinks = 112;
constexpr double kRechts = 188;
constexpr double kRechtsAmEnde = 200; ///< the closing rule is longer
constexpr const char* kTrenner = "    ";

class Summenblock {
public:
    Summenblock(Blatt& blatt, const Form1& form1, Color farbe, double x_gesamt)
        : blatt_(blatt), form1_(form1), farbe_(farbe), x_gesamt_(x_gesamt) {}

    void summe() const {
        SUMMENZEILE(blatt_, SUMMENBEZEICHNUNG(form1_) + "   " + form1_.Text_summe.Text(), x_gesamt_);
    }

    void rabatt() const {
        zeile("Rabatt " + form1_.Text_Rabatt.Text() + " %:", form1_.Text_summeRabatt);
        linie(2, kRechts);
        zeile(form1_.Label_summeNACHRABATT.Caption(), form1_.Text_summeNACHRABATT);
    }

    void mwst() const {
        const char* wort = form1_.Option_inkl_MwSt.Value() ? "Enthaltene MwSt. " : "MwSt. ";
        zeile(wort + form1_.Text_MwSt.Text() + " %:", form1_.Text_summemwst);
        linie(2, kRechts);
    }

    void versandkosten() const {
        zeile(form1_.Label_Versandkosten.Caption(), form1_.Text_PreisVersankosten);
        if (form1_.Check_VersandMwStEXTRA.ticked() || form1_.Check_VersandINKL_MwSt.ticked()) {
            zeile(form1_.Label_VersandkostenMWST.Caption(), form1_.Text_PreisVersankostenMwST);
        }
        linie(2, kRechts);
    }

    void gesamtbetrag() const {
        blatt_.surface.FontBold = true;
        zeile(form1_.Label_gesamtbetrag.Caption(), form1_.Text_gesamtbetrag);
        blatt_.surface.FontBold = false;
        linie(1, kRechtsAmEnde);
    }

private:
    void zeile(const std::string& text, const TextBox& wert) const {
        SUMMENZEILE(blatt_, text + kTrenner + wert.Text(), x_gesamt_);
    }

    void linie(double abstand, double bis) const {
        PrintSurface& surface = blatt_.surface;
        surface.CurrentY += abstand;
        surface.Line(blatt_.X(kLinks), surface.CurrentY, blatt_.X(bis), surface.CurrentY, farbe_);
        surface.CurrentY += 2;
    }

    Blatt& blatt_;
    const Form1& form1_;
    Color farbe_;
    double x_gesamt_;
};

} // namespace

void DRUCKE_SUMMENBLOCK(Blatt& blatt, const Form1& form1, Color farbe_linien, double x_gesamt) {
    const Summenblock block(blatt, form1, farbe_linien, x_gesamt);
    block.summe();
    if (form1.Check_RABATT.ticked()) {
        block.rabatt();
    }
    if (form1.Check_mwst.ticked()) {
        block.mwst();
    }
    if (form1.Check_Versandkosten.ticked()) {
        block.versandkosten();
    }
    block.gesamtbetrag();
}

std::optional<double> DRUCKE_BETRAEGE(Blatt& blatt, const Druckseite& seite, const Drucktabelle& tabelle,
                                      const Form1& form1, Color farbe_linien) {
    if (!tabelle.zeigt_preise()) {
        return std::nullopt;
    }
    if (!seite.erste()) {
        tabelle.DRUCKE_UEBERTRAG(blatt, seite.uebertrag);
    }
    if (!seite.letzte()) {
        tabelle.DRUCKE_ZWISCHENSUMME(blatt, seite.zwischensumme);
        return std::nullopt;
    }
    const double oben = blatt.surface.CurrentY;
    DRUCKE_SUMMENBLOCK(blatt, form1, farbe_linien, tabelle.spalten().X_Gesamt);
    return oben;
}

} // namespace quittika
