#pragma once

#include "app/ereignisse.hpp"
#include "invoice/eingabezeile.hpp"
#include "invoice/form1.hpp"
#include "settings/einstellungsschreiber.hpp"

namespace quittika {

/// Discount, VAT, shipping and totals of the main window.
class Betraege {
public:
    Betraege(Form1& form1, const Ereignisse& ereignisse, Rechnungszustand& zustand,
             Eingabezeile& eingabezeile, Summen& summen, PROGRAMMEINSTELLUNG& werte,
             Einstellungsschreiber& einstellungsschreiber);

private:
    void SchalterVerdrahten(const Ereignisse& ereignisse);
    /// A rate, discount or shipping field: `rechnen` follows when it is left, and the Return key.
    void WertfeldVerdrahten(TextBox& feld, const Ereignisse& ereignisse, const Ereignisse::Ereignis& rechnen);
    void Check_mengenartDECIMAL_Click();
    void Check_mwst_Click();
    void Text_MwSt_LostFocus();
    void Command_berechnen_Click();

    Form1& form1_;
    Rechnungszustand& zustand_;
    Eingabezeile& eingabezeile_;
    Summen& summen_;
    PROGRAMMEINSTELLUNG& werte_;
    Einstellungsschreiber& einstellungsschreiber_;
};

} // namespace quittika
