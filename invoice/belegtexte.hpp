#pragma once

#include "invoice/form1.hpp"
#include "settings/frm_einstellungen.hpp"

#include <string>

namespace quittika {

/// Whether the document in hand is a delivery note or a copy of one.
bool IST_LIEFERSCHEIN(const Form1& form1);

/// Title and number, with the words for a delivery note before and those for a copy behind them.
std::string BELEGTITEL(const Form1& form1, const frm_einstellungen& einstellungen);

/// Words before the sum of the rows where it leaves the window: prices without their VAT add up to a
/// net sum, whatever the caption beside the amount due says.
std::string SUMMENBEZEICHNUNG(const Form1& form1);

/// Text of a customer field outside the window; empty while the field holds its placeholder.
std::string KUNDENTEXT(const Form1& form1, const TextBox& feld);

} // namespace quittika
