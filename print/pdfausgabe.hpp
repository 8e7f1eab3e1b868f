#pragma once

#include "invoice/form1.hpp"
#include "platform/dialogs.hpp"
#include "platform/printing.hpp"
#include "platform/shell.hpp"
#include "print/belegdruck.hpp"
#include "print/lieferscheinoptionen.hpp"
#include "settings/frm_einstellungen.hpp"

#include <functional>
#include <string>

namespace quittika {

/// Saves the document in hand, as it is printed, as a PDF file.
class Pdfausgabe {
public:
    /// `vor_der_ausgabe` brings the result fields of the main window up to date and may tell something.
    Pdfausgabe(Form1& form1, const frm_einstellungen& einstellungen, Belegdruck& belegdruck,
               const Lieferscheinoptionen& lieferscheinoptionen, Printing& printing, Dialogs& dialogs,
               Shell& shell, std::function<void()> vor_der_ausgabe);

    /// Asks for a name, saves and offers to open the file. Says what went wrong.
    void m_Rechnung_pdf_export_Click();
    /// Writes the file; panel 3 says what is not on the pages as it should be. Throws the error of the file.
    void SCHREIBEN(const std::string& pfad, const Druckoptionen& optionen);

private:
    void ausgeben(const Druckoptionen& optionen);

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Belegdruck& belegdruck_;
    const Lieferscheinoptionen& lieferscheinoptionen_;
    Printing& printing_;
    Dialogs& dialogs_;
    Shell& shell_;
    std::function<void()> vor_der_ausgabe_;
};

} // namespace quittika
