#pragma once

#include "einvoice/angaben.hpp"
#include "einvoice/form_e_rechnung.hpp"
#include "einvoice/rechnungsbeleg.hpp"

namespace quittika {

// What stands in the fields of the window.

/// Fills the choice of reasons; the first entry is none.
void GRUENDE_ANBIETEN(Form_ERechnung& form);

Verkaeufer VERKAEUFER_LESEN(const Form_ERechnung& form);
void VERKAEUFER_ZEIGEN(Form_ERechnung& form, const Verkaeufer& angaben);
Kaeufer KAEUFER_LESEN(const Form_ERechnung& form);
void KAEUFER_ZEIGEN(Form_ERechnung& form, const Kaeufer& angaben);
/// Without an answer while the frame is not shown.
Bezug BEZUG_LESEN(const Form_ERechnung& form);
/// `gefragt`: whether the title of the invoice asks for an answer.
void BEZUG_ZEIGEN(Form_ERechnung& form, const Bezug& bezug, bool gefragt);

} // namespace quittika
