#pragma once

#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/dialogs.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/frm_einstellungen.hpp"

namespace quittika {

/// Invoice numbers from the counter in RN.txt.
class Rechnungsnummern {
public:
    Rechnungsnummern(Form1& form1, frm_einstellungen& einstellungen, Rechnungszustand& zustand,
                     const Programmverzeichnis& verzeichnis, Dialogs& dialogs);

    /// Counter from RN.txt, or the settings' start value where that holds none; then `RNNUMMERZUWEISEN`.
    void RNStartLesen();
    /// Puts the next number into `Text_RNnr`; with numbering by hand a zero. Not an edit by the user.
    void RNNUMMERZUWEISEN();
    /// Uses up a number: raises the counter and writes it, if numbering is automatic.
    void NummerVerbrauchen();

private:
    void ZaehlerZeigen();

    Form1& form1_;
    frm_einstellungen& einstellungen_;
    Rechnungszustand& zustand_;
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
    int zaehler_ = 1;
};

} // namespace quittika
