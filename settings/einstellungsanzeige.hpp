#pragma once

#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

// What controls of the invoice settings show because of others: the same after reading, opening, each change
// and taking back.

/// The two shifts in words, and the small page moved by as many millimetres.
void JUSTIERUNG_ZEIGEN(frm_einstellungen& einstellungen);

/// Each font size beside its scroll bar.
void SCHRIFTGROESSEN_ZEIGEN(frm_einstellungen& einstellungen);

/// Of the two frames of bank data the one that is chosen.
void BANKRAHMEN_ZEIGEN(frm_einstellungen& einstellungen);

/// What can be used only together with another choice.
void FREIGABEN_ZEIGEN(frm_einstellungen& einstellungen);

/// The first company line as bold as it is printed.
void FETTSCHRIFT_ZEIGEN(frm_einstellungen& einstellungen);

/// Price headings of the program's own form name the currency, whatever they named before.
void WAEHRUNG_IN_PREISKOEPFE(frm_einstellungen& einstellungen, const PROGRAMMEINSTELLUNG& werte);

/// The headings of the columns in the fields for new ones: who changes one keeps the others.
void SPALTENNAMEN_ZEIGEN(frm_einstellungen& einstellungen);

/// The name of the print font.
void DRUCKERSCHRIFT_ZEIGEN(frm_einstellungen& einstellungen, const PROGRAMMEINSTELLUNG& werte);

} // namespace quittika
