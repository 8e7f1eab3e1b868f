#pragma once

#include <cstdint>

namespace quittika {

enum class Mwst_Modus : std::uint8_t {
    Ohne,      ///< no VAT, or no mode chosen
    Plus,      ///< net prices, VAT is added
    Minus,     ///< gross prices, VAT is taken off
    Inklusive, ///< gross prices, VAT is named
};

enum class Versand_Modus : std::uint8_t {
    Unveraendert, ///< neither option or both: the split keeps its former values
    Getrennt,     ///< net and VAT shown apart
    Enthalten,    ///< gross shown, VAT named
};

/// All amounts unrounded, in units of the currency; rates in per cent.
struct Rechenvorgabe {
    double Listensumme = 0;
    bool rabatt = false;
    double Rabattprozent = 0;
    Mwst_Modus mwst = Mwst_Modus::Ohne;
    double MwSt_Satz = 0;
    double Versand_Eingabe = 0; ///< gross
};

/// What cannot be calculated, and all that rests on it, is 0.
struct Rechenergebnis {
    double Rabattbetrag = 0;
    double Summe_nach_Rabatt = 0;
    double MwSt_Betrag = 0; ///< negative in `Minus`
    double Gesamtbetrag = 0;
    int fehler = 0; ///< 11 for a rate of -100 where it divides, 6 for an overflow, 0 for none
};

struct Versandaufteilung {
    double Versand_Netto = 0;
    double Versand_MwSt = 0;
};

/// Discount, VAT and amount due.
Rechenergebnis RECHNUNGSBETRAEGE(const Rechenvorgabe& vorgabe);

/// Splits gross shipping at `satz` per cent; `bisher` is what stays where nothing is to be split.
/// Throws `Laufzeitfehler` 11 for a rate of -100, 6 on overflow.
Versandaufteilung VERSAND_AUFTEILEN(Versand_Modus modus, double Versand_Eingabe, double satz,
                                    Versandaufteilung bisher);

/// `wert` itself; throws `Laufzeitfehler` 6 where it is infinite or no number.
double endlich(double wert);

} // namespace quittika
