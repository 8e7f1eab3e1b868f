#pragma once

#include "invoice/file/dateiablage.hpp"
#include "invoice/form1.hpp"
#include "invoice/summen.hpp"
#include "platform/dialogs.hpp"
#include "platform/shell.hpp"
#include "settings/frm_einstellungen.hpp"

#include <string>

namespace quittika {

/// Writes the invoice in hand as a page of plain text.
class Textexport {
public:
    Textexport(Form1& form1, const frm_einstellungen& einstellungen, Summen& summen,
               const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Shell& shell);

    /// Asks for the file, and before it replaces one; offers to open what it has written. A cancel ends it in
    /// silence, a failed write shows its message.
    void m_Rechnung_txt_export_Click();

private:
    std::string Dateiwahl();
    bool Schreiben(const std::string& pfad);

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Summen& summen_;
    Dialogs& dialogs_;
    Shell& shell_;
    Dateiablage ablage_;
};

} // namespace quittika
