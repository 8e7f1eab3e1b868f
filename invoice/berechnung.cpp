#include "invoice/berechnung.hpp"

#include "platform/laufzeitfehler.hpp"

#include <cmath>

namespace quittika {

namespace {

constexpr int kUeberlauf = 6;
constexpr int kDivisionDurchNull = 11;

double geteilt(double zaehler, double nenner) {
    if (nenner == 0) {
        throw Laufzeitfehler(kDivisionDurchNull);
    }
    return endlich(zaehler / nenner);
}

} // namespace

double endlich(double wert) {
    if (!std::isfinite(wert)) {
        throw Laufzeitfehler(kUeberlauf);
    }
    return wert;
}

Rechenergebnis RECHNUNGSBETRAEGE(const Rechenvorgabe& vorgabe) {
    Rechenergebnis e;
    if (vorgabe.rabatt) {
        e.Rabattbetrag = endlich(vorgabe.Rabattprozent / 100 * vorgabe.Listensumme);
    }
    e.Summe_nach_Rabatt = endlich(vorgabe.Listensumme - e.Rabattbetrag);
    const double p = vorgabe.MwSt_Satz / 100 + 1;
    double betrag = e.Summe_nach_Rabatt;
    switch (vorgabe.mwst) {
    case Mwst_Modus::Ohne:
        break;
    case Mwst_Modus::Plus:
        betrag = endlich(p * e.Summe_nach_Rabatt);
        e.MwSt_Betrag = endlich(betrag - e.Summe_nach_Rabatt);
        break;
    case Mwst_Modus::Minus:
        betrag = geteilt(e.Summe_nach_Rabatt, p);
        e.MwSt_Betrag = endlich(-(e.Summe_nach_Rabatt - betrag));
        break;
    case Mwst_Modus::Inklusive:
        e.MwSt_Betrag = endlich(e.Summe_nach_Rabatt - geteilt(e.Summe_nach_Rabatt, p));
        break;
    }
    e.Gesamtbetrag = endlich(vorgabe.Versand_Eingabe + betrag);
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
