#pragma once

#include "invoice/form1.hpp"
#include "platform/dialogs.hpp"
#include "platform/printing.hpp"
#include "print/belegdruck.hpp"
#include "print/exemplardruck.hpp"
#include "print/lieferscheinoptionen.hpp"
#include "settings/frm_einstellungen.hpp"

#include <functional>
#include <string>

namespace quittika {

/// Prints the document in hand, from the button to the end of the last copy.
class Druckauftrag {
public:
    /// `vor_der_ausgabe` brings the result fields of the main window up to date and may tell something.
    Druckauftrag(Form1& form1, const frm_einstellungen& einstellungen, Belegdruck& belegdruck,
                 Dialogs& dialogs, Printing& printing, const Lieferscheinoptionen& lieferscheinoptionen,
                 std::function<void()> vor_der_ausgabe);

    /// Asks for the printer and prints the copies, each a job of its own. Says in panel 2 of the
    /// status bar how it ended, in panel 3 why it failed, where a file lies and what is missing on paper;
    /// throws only what the recalculation throws.
    void Command_printform_Click();

private:
    void status(const std::string& text) { form1_.StatusBar1[2].Caption = text; }
    void drucke(Druckjustierung just, const Druckoptionen& optionen);

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Belegdruck& belegdruck_;
    const Lieferscheinoptionen& lieferscheinoptionen_;
    std::function<void()> vor_der_ausgabe_;
    Exemplardruck exemplare_;
};

} // namespace quittika
