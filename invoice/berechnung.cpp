#include "invoice/berechnung.hpp"

#include "platform/laufzeitfehler.hpp"

#include <cmath>

namespace quittika {

namespace {

double geteilt(double zaehler, double nenner) {
    if (nenner == 0) {
        throw Laufzeitfehler(fehler::kDivisionDurchNull);
    }
    return endlich(zaehler / nenner);
}

/// Fills the amounts one behind the other; none is put before it is known to be one.
void berechnen(const Rechenvorgabe& vorgabe, Rechenergebnis& e) {
    if (vorgabe.rabatt) {
        e.Rabattbetrag = endlich(vorgabe.Rabattprozent / 100 * vorgabe.Listensumme);
    }
    const double summe = e.Summe_nach_Rabatt = endlich(vorgabe.Listensumme - e.Rabattbetrag);
    const double p = vorgabe.MwSt_Satz / 100 + 1;
    double betrag = summe;
    double mwst = 0;
    switch (vorgabe.mwst) {
    case Mwst_Modus::Ohne:
        break;
    case Mwst_Modus::Plus:
        betrag = endlich(p * summe);
        mwst = betrag - summe;
        break;
    case Mwst_Modus::Minus:
        betrag = geteilt(summe, p);
        mwst = -(summe - betrag);
        break;
    case Mwst_Modus::Inklusive:
        mwst = summe - geteilt(summe, p);
        break;
    }
    e.MwSt_Betrag = endlich(mwst);
    e.Gesamtbetrag = endlich(vorgabe.Versand_Eingabe + betrag);
}

} // namespace

double endlich(double wert) {
    if (!std::isfinite(wert)) {
        throw Laufzeitfehler(fehler::kUeberlauf);
    }
    return wert;
}

Rechenergebnis RECHNUNGSBETRAEGE(const Rechenvorgabe& vorgabe) {
    Rechenergebnis e;
    try {
        berechnen(vorgabe, e);
    } catch (const Laufzeitfehler& fehler) {
        e.fehler = fehler.nummer();
    }
    return e;
}

Versandaufteilung VERSAND_AUFTEILEN(Versand_Modus modus, double Versand_Eingabe, double satz,
                                    Versandaufteilung bisher) {
    if (modus == Versand_Modus::Unveraendert) {
        return bisher;
    }
    const double netto = geteilt(Versand_Eingabe, satz / 100 + 1);
    const double mwst = endlich(Versand_Eingabe - netto);
    return {modus == Versand_Modus::Getrennt ? netto : Versand_Eingabe, mwst};
}

} // namespace quittika
