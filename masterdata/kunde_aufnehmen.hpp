#pragma once

#include "invoice/form1.hpp"
#include "masterdata/kundenverwaltung.hpp"
#include "platform/dialogs.hpp"
#include "platform/verzeichnis.hpp"

#include <string>

namespace quittika {

/// Takes the customer of the invoice into the customer list.
class KundeAufnehmen {
public:
    KundeAufnehmen(Form1& form1, const Programmverzeichnis& verzeichnis, Dialogs& dialogs,
                   Kundenfenster& kundenfenster);

    /// Appends the customer to Kundenliste.txt and to the open list; panel 2 tells that it is done, a message
    /// that it failed. Asks first where nothing is filled in, or the list holds the same line already. The
    /// list is not offered meanwhile.
    void Command_KD_Add_Click();

private:
    void Aufnehmen();
    bool Bestaetigt(const std::string& pfad, const std::string& zeile);
    bool nur_platzhalter() const;
    void FehlerMelden(const std::string& pfad, int fehlernummer);

    Form1& form1_;
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
    Kundenfenster& kundenfenster_;
};

/// One line of the customer list: the five fields, each followed by "...".
std::string KUNDENZEILE(const Form1& form1);

} // namespace quittika
