#pragma once

#include "invoice/form1.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/frm_programm.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// What a new invoice takes from the settings, at the start of the program and later alike.
class Vorgaben {
public:
    Vorgaben(Form1& form1, const frm_einstellungen& einstellungen, const frm_Programm& programm,
             PROGRAMMEINSTELLUNG& werte);

    /// Rates, kind of VAT, text blocks, column headings, print font, decimals and automatic date; discount
    /// and shipping are off.
    void uebernehmen();
    /// The headings of both rows.
    void SpaltenBenennen();
    /// The two rates to choose from; the chosen one is the rate of the invoice.
    void SaetzeZeigen();

private:
    void TexteUebernehmen();
    void MwStUebernehmen();
    void RabattAus();
    void VersandAus();
    void SchalterUebernehmen();

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const frm_Programm& programm_;
    PROGRAMMEINSTELLUNG& werte_;
};

} // namespace quittika
