#pragma once

#include "einvoice/belegpruefung.hpp"
#include "tests/pruefstand.hpp"

#include <string>

namespace quittika {

/// A seller and a buyer of whom nothing is missing, for either format.
inline Verkaeufer MUSTERVERKAEUFER() {
    Verkaeufer v;
    v.Name = "Tischlerei Hölzer";
    v.Strasse = "Sägeweg 7";
    v.PLZ = "50667";
    v.Ort = "Köln";
    v.Land = "DE";
    v.USt_IdNr = "DE136695976";
    v.Steuernummer = "214/5012/0815";
    v.Kontakt = "Petra Hölzer";
    v.Telefon = "0221 123456";
    v.E_Mail = "post@hoelzer.example";
    v.IBAN = "DE02 1203 0000 0000 2020 51";
    v.BIC = "BYLADEM1001";
    v.Zahlungstage = "14";
    v.Befreiungsgrund = "Kleinunternehmer";
    return v;
}

inline Kaeufer MUSTERKAEUFER() {
    Kaeufer k;
    k.Name = "Stadt Bonn";
    k.Strasse = "Berliner Platz 2";
    k.PLZ = "53111";
    k.Ort = "Bonn";
    k.Land = "DE";
    k.USt_IdNr = "ATU12345678";
    k.E_Mail = "rechnung@bonn.example";
    k.Leitweg_ID = "04011000-1234512345-06";
    return k;
}

/// An invoice with a date and an address, still without a row.
struct Musterrechnung : Pruefstand {
    Musterrechnung() {
        einstellungen.Option_BankVerb_Vorgabe.Value = true;
        form1.Text_RNnr.Text = "2026-17";
        form1.Text_Datum.Text = "23.11.2026";
        form1.Text_Kunde_1.Text = "Stadt Bonn";
        form1.Text_Kunde_2.Text = "Berliner Platz 2";
        form1.Text_Kunde_3.Text = "53111 Bonn";
        form1.Check_LIEFERDATUM.Value = 1;
        form1.Text_LIEFERDATUM.Text = "LIEFERDATUM: 20.11.2026";
        form1.Check_mengenartDECIMAL.Value = 1;
        modus(Mwst_Modus::Plus);
    }
    void modus(Mwst_Modus modus) {
        form1.Check_mwst.Value = modus == Mwst_Modus::Ohne ? 0 : 1;
        form1.Option_mwst_plus.Value = modus == Mwst_Modus::Plus;
        form1.Option_mwst_minus.Value = modus == Mwst_Modus::Minus;
        form1.Option_inkl_MwSt.Value = modus == Mwst_Modus::Inklusive;
        summen.jetztberechnen_List();
    }
    void kommentar(const std::string& text) {
        form1.Check_K.Value = 1;
        zeile("0", text, "0");
    }
    Belegquelle quelle() {
        summen.jetztberechnen_List();
        return BELEGQUELLE(form1, einstellungen, werte);
    }
};

} // namespace quittika
