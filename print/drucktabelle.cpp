#include "print/drucktabelle.hpp"

#include "invoice/belegtexte.hpp"
#include "platform/zahlen.hpp"

#include <cmath>

namespace quittika {

namespace {

constexpr double kPositionsnummer = 20;     ///< right edge of the position number
constexpr double kVersatz = 3;              ///< quantities and headings stand right of their column by it
constexpr double kLinks = 12;               ///< left end of the rules
constexpr double kRechts = 188;             ///< right end of the rules
constexpr double kRechtsUnterKopf = 200;    ///< right end of the rule below the headings
constexpr double kLinksZwischensumme = 112; ///< left end of the rule below the subtotal
constexpr double kAbstand = 2;              ///< above and below a rule

Spalten spalten_fuer(bool positionsnummern, const Druckoptionen& optionen) {
    return positionsnummern ? Spalten{32, 40, 147, optionen.x_gesamt} : Spalten{26, 33, 141, 178};
}

/// A rule at the cursor, on a whole millimetre, that falls by `gefaelle` mm; the cursor passes it.
void linie(Blatt& blatt, double von, double bis, Color farbe, double gefaelle = 0) {
    blatt.surface.CurrentY += kAbstand;
    const double y = std::nearbyint(blatt.surface.CurrentY);
    blatt.surface.Line(blatt.X(von), y, blatt.X(bis), y + gefaelle, farbe);
    blatt.surface.CurrentY += kAbstand;
}

} // namespace

void SUMMENZEILE(Blatt& blatt, std::string_view text, double x_gesamt) {
    DRUCKTEXT_RECHTS(blatt, text, x_gesamt, kUnveraendert);
    blatt.surface.Print(" ");
}

Drucktabelle::Drucktabelle(const Form1& form1, const frm_einstellungen& einstellungen,
                           const PROGRAMMEINSTELLUNG& programm, const Druckoptionen& optionen)
    : form1_(form1),
      einstellungen_(einstellungen),
      programm_(programm),
      spalten_(spalten_fuer(einstellungen.Check_Positionendruck.ticked(), optionen)),
      preise_(optionen.lieferschein.preise || !IST_LIEFERSCHEIN(form1)) {}

void Drucktabelle::DRUCKE_POSITIONEN(Blatt& blatt, Zeilenbereich zeilen) const {
    linie(blatt, kLinks, kRechts, programm_.FARBE_LINIEN, 1);
    UEBERSCHRIFTEN(blatt);
    linie(blatt, kLinks, kRechtsUnterKopf, programm_.FARBE_LINIEN);
    for (int index = zeilen.von; index <= zeilen.bis; ++index) {
        ZEILE(blatt, index);
    }
    linie(blatt, kLinks, kRechts, programm_.FARBE_LINIEN);
}

void Drucktabelle::UEBERSCHRIFTEN(Blatt& blatt) const {
    if (zeigt_positionen()) {
        DRUCKTEXT_RECHTS(blatt, form1_.Label_Pos.Caption(), kPositionsnummer, kUnveraendert);
    }
    DRUCKTEXT_RECHTS(blatt, form1_.Label_Menge.Caption(), spalten_.X_Menge + kVersatz, kUnveraendert);
    DRUCKTEXT_LINKS(blatt, form1_.Label_Leistung.Caption(), spalten_.X_Leistung, kUnveraendert);
    if (preise_) {
        DRUCKTEXT_RECHTS(blatt, form1_.Label_preis.Caption(), spalten_.X_Einzelpreis + kVersatz,
                         kUnveraendert);
        DRUCKTEXT_RECHTS(blatt, form1_.Label_gesamtp.Caption(), spalten_.X_Gesamt + kVersatz, kUnveraendert);
    }
    blatt.surface.Print(" ");
}

bool Drucktabelle::DRUCKT(int index) const {
    const std::string& art = form1_.List_K.List(index);
    // A quantity that is no number at all is billed, so it is printed.
    return art == "K" || (art == "-" && double_versuch(form1_.List_Menge.List(index)) != 0.0);
}

double Drucktabelle::TEXTENDE(const PrintSurface& surface, int index) const {
    return spalten_.X_Leistung + surface.TextWidth(form1_.List_Leistung.List(index));
}

void Drucktabelle::ZEILE(Blatt& blatt, int index) const {
    if (!DRUCKT(index)) {
        return;
    }
    if (form1_.List_K.List(index) == "-") {
        position(blatt, index);
    } else {
        DRUCKTEXT_LINKS(blatt, form1_.List_Leistung.List(index), spalten_.X_Leistung, kUnveraendert);
    }
    blatt.surface.Print(" ");
}

void Drucktabelle::position(Blatt& blatt, int index) const {
    if (zeigt_positionen()) {
        const std::string& nummer = form1_.List_pos.List(index);
        const auto wert = double_versuch(nummer);
        DRUCKTEXT_RECHTS(blatt, wert ? format_zahl(*wert, "000") : nummer, kPositionsnummer, kUnveraendert);
    }
    DRUCKTEXT_RECHTS(blatt, form1_.List_Menge.List(index), spalten_.X_Menge + kVersatz, kUnveraendert);
    DRUCKTEXT_LINKS(blatt, form1_.List_Leistung.List(index), spalten_.X_Leistung, kUnveraendert);
    if (preise_) {
        DRUCKTEXT_RECHTS(blatt, form1_.List_Preis.List(index), spalten_.X_Einzelpreis, kUnveraendert);
        DRUCKTEXT_RECHTS(blatt, form1_.List_Gesamtp.List(index), spalten_.X_Gesamt, kUnveraendert);
    }
}

void Drucktabelle::DRUCKE_UEBERTRAG(Blatt& blatt, const std::string& uebertrag) const {
    SUMMENZEILE(blatt, "Übertrag:   " + uebertrag, spalten_.X_Gesamt);
    linie(blatt, kLinks, kRechts, programm_.FARBE_LINIEN);
}

void Drucktabelle::DRUCKE_ZWISCHENSUMME(Blatt& blatt, const std::string& zwischensumme) const {
    SUMMENZEILE(blatt, "Zwischensumme:    " + zwischensumme, spalten_.X_Gesamt);
    linie(blatt, kLinksZwischensumme, kRechts, programm_.FARBE_LINIEN);
}

} // namespace quittika
