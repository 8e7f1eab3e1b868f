#pragma once

#include "invoice/form1.hpp"
#include "platform/dialogs.hpp"
#include "platform/verzeichnis.hpp"

#include <string>

namespace quittika {

/// Takes the customer of the invoice into the customer list.
class KundeAufnehmen {
public:
    KundeAufnehmen(Form1& form1, const Programmverzeichnis& verzeichnis, Dialogs& dialogs);

    /// Appends the customer to Kundenliste.txt; a message tells when that fails.
    void Command_KD_Add_Click();

private:
    Form1& form1_;
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
};

/// One line of the customer list: the five fields, each followed by "...".
std::string KUNDENZEILE(const Form1& form1);

} // namespace quittika
