#pragma once

#include <span>
#include <string>

namespace quittika {

// What electronic invoices need and the invoice itself does not hold: as typed, UTF-8, empty where unknown.

struct Verkaeufer {
    std::string Name;
    std::string Strasse;
    std::string PLZ;
    std::string Ort;
    std::string Land; ///< two letters
    std::string USt_IdNr;
    std::string Steuernummer;
    std::string Kontakt; ///< person or department that answers questions
    std::string Telefon;
    std::string E_Mail;
    std::string IBAN;
    std::string BIC;
    std::string Zahlungstage; ///< days from the date of the invoice to the day it is due
    std::string Skonto_Prozent;
    std::string Skonto_Tage;
    std::string Befreiungsgrund; ///< code of a `Befreiung`; empty while none was chosen
    std::string Befreiungstext;  ///< the reason in words, where the code is that of another one
    std::string GiroCode;        ///< "1": printed on invoices
    bool operator==(const Verkaeufer&) const = default;
};

struct Kaeufer {
    std::string Name;
    std::string Zusatz; ///< second line of the address
    std::string Strasse;
    std::string PLZ;
    std::string Ort;
    std::string Land; ///< two letters
    std::string USt_IdNr;
    std::string E_Mail;
    std::string Leitweg_ID;
    bool operator==(const Kaeufer&) const = default;
};

/// A field of one of the two.
template <class T> struct Angabe {
    const char* name; ///< in the file
    const char* feld; ///< its control in `Form_ERechnung`
    std::string T::*wert;
};

/// All fields in the order of their files.
std::span<const Angabe<Verkaeufer>> VERKAEUFERANGABEN();
std::span<const Angabe<Kaeufer>> KAEUFERANGABEN();

/// Why an invoice shows no VAT.
struct Befreiung {
    const char* schluessel; ///< as `Verkaeufer::Befreiungsgrund` holds it
    const char* auswahl;    ///< as the window offers it
    const char* kategorie;  ///< of EN 16931: "E", "AE", "K", "G"
    const char* code;       ///< VATEX code, empty for none
    const char* text;       ///< the reason as the invoice states it; empty: `Verkaeufer::Befreiungstext`
};

/// All reasons, in the order of the choice.
std::span<const Befreiung> BEFREIUNGEN();
/// The reason with this key; none for every other text.
const Befreiung* BEFREIUNG(const std::string& schluessel);

/// The fields of `vorschlag` where `angaben` has none.
template <class T> T ERGAENZT(T angaben, const T& vorschlag, std::span<const Angabe<T>> felder) {
    for (const Angabe<T>& feld : felder) {
        if ((angaben.*feld.wert).empty()) {
            angaben.*feld.wert = vorschlag.*feld.wert;
        }
    }
    return angaben;
}

} // namespace quittika
