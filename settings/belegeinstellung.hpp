#pragma once

#include "invoice/vorgaben.hpp"

namespace quittika {

/// Gives an invoice, and the values that it is calculated with, what the settings dialog shows: column
/// headings, currency, title, kind of VAT and rates; of the text blocks only those that are ticked for it.
/// The price headings of the dialog get the currency first.
void BELEG_EINSTELLEN(Form1& form1, frm_einstellungen& einstellungen, PROGRAMMEINSTELLUNG& werte,
                      Vorgaben& vorgaben);

} // namespace quittika
