#pragma once

#include "invoice/form1.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// What a new invoice takes from the settings, at the start of the program and later alike.
class Vorgaben {
public:
    Vorgaben(Form1& form1, const frm_einstellungen& einstellungen, PROGRAMMEINSTELLUNG& werte);

    /// Rates, kind of VAT, text blocks, column headings and print font; discount and shipping are off.
    void uebernehmen();

private:
    void SpaltenBenennen();
    void TexteUebernehmen();
    void MwStUebernehmen();
    void SaetzeZeigen();
    void RabattAus();
    void VersandAus();

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    PROGRAMMEINSTELLUNG& werte_;
};

} // namespace quittika
