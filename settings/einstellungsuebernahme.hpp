#pragma once

#include "invoice/rechnungszustand.hpp"
#include "invoice/vorgaben.hpp"
#include "settings/einstellungsschreiber.hpp"
#include "settings/logo.hpp"
#include "settings/programmstil.hpp"

namespace quittika {

/// Makes what stands in the settings windows effective.
class Einstellungsuebernahme {
public:
    Einstellungsuebernahme(Form1& form1, frm_einstellungen& einstellungen, const frm_Programm& programm,
                           PROGRAMMEINSTELLUNG& werte, Rechnungszustand& zustand, Vorgaben& vorgaben,
                           Logo& logo, Programmstil& stil, Einstellungsschreiber& schreiber)
        : form1_(form1),
          einstellungen_(einstellungen),
          programm_(programm),
          werte_(werte),
          zustand_(zustand),
          vorgaben_(vorgaben),
          logo_(logo),
          stil_(stil),
          schreiber_(schreiber) {}

    /// Takes over all values, texts of the invoice in hand only where they are ticked for it, and saves them;
    /// hides the dialog then if `schliessen`.
    void ALLEUEBERNEHMEN(bool schliessen);

private:
    Form1& form1_;
    frm_einstellungen& einstellungen_;
    const frm_Programm& programm_;
    PROGRAMMEINSTELLUNG& werte_;
    Rechnungszustand& zustand_;
    Vorgaben& vorgaben_;
    Logo& logo_;
    Programmstil& stil_;
    Einstellungsschreiber& schreiber_;
};

} // namespace quittika
