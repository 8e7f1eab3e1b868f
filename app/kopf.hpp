#pragma once

#include "app/ereignisse.hpp"
#include "invoice/form1.hpp"
#include "masterdata/kunde_aufnehmen.hpp"
#include "platform/shell.hpp"

namespace quittika {

/// The head of the invoice in the main window: document, customer, text blocks and status.
class Kopf {
public:
    Kopf(Form1& form1, const Ereignisse& ereignisse, KundeAufnehmen& kunde_aufnehmen, const Clock& uhr);

    /// Moves to the first field of the customer, where an invoice begins.
    void KundeAnwaehlen();

private:
    void DokumentVerdrahten(const Ereignisse& ereignisse);
    void KundeVerdrahten(const Ereignisse& ereignisse, KundeAufnehmen& kunde_aufnehmen);
    void TexteVerdrahten(const Ereignisse& ereignisse);
    void StatusVerdrahten(const Ereignisse& ereignisse);
    /// Marks the whole text of a customer field that holds its placeholder, so that typing replaces it.
    void PlatzhalterMarkieren(TextBox& feld);
    void Check_datum_Click();
    void Check_LIEFERDATUM_Click();
    void Check_abgemahnt_Click();
    void Option_anschreiben_Click();

    Form1& form1_;
    const Clock& uhr_;
};

} // namespace quittika
