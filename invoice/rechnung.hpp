#pragma once

#include "invoice/eingabezeile.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/shell.hpp"
#include "settings/programmeinstellung.hpp"

#include <string>

namespace quittika {

/// The invoice in hand as a whole: reset, and the visible list.
class Rechnung {
public:
    Rechnung(Form1& form1, Rechnungszustand& zustand, Eingabezeile& eingabezeile, const Clock& uhr);

    /// Puts the values of an empty invoice into the controls; the number stays.
    void RechnungLeeren();
    /// Rebuilds `List_DARSTELLUNG` from the six lists, from row `ab` on: those before are as they were shown
    /// last. Afterwards nothing is selected in it, and the last row in the six.
    void DarstellungAufbauen(int ab = 0);

    /// The note, with its line breaks as "#$§$#".
    void NotizSetzen(const std::string& notiz);

private:
    void KopfLeeren();
    void StatusLeeren();
    void RasterLeeren();

    Form1& form1_;
    Rechnungszustand& zustand_;
    Eingabezeile& eingabezeile_;
    const Clock& uhr_;
};

/// Switches on the rate that `Text_MwSt` holds, or none of the two where it is another.
void SatzAuswahlZeigen(Form1& form1, const PROGRAMMEINSTELLUNG& einstellung);

/// Takes the headings of the columns over the input line from those over the list.
void ZweiteKopfzeileZeigen(Form1& form1);

/// Ticks `Check_datum` or not; the date of an invoice on disk stays what it is.
void DatumAutomatisch(Form1& form1, Rechnungszustand& zustand, int haekchen);

/// Enables the delivery date by `Check_LIEFERDATUM`: white then, else in the colour of its frame.
void LieferdatumFreigeben(Form1& form1);

} // namespace quittika
