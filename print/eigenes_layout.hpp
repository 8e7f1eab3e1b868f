#pragma once

#include "designer/design.hpp"
#include "invoice/form1.hpp"
#include "print/druckoptionen.hpp"
#include "print/druckvorlage.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// The document in hand made ready to be drawn in the user's own design: each block where the design puts it,
/// or below what stands there already.
Druckvorlage DRUCKE_EIGENESLAYOUT(const Form1& form1, const frm_einstellungen& einstellungen,
                                  const PROGRAMMEINSTELLUNG& programm, const Design& design,
                                  const Druckoptionen& optionen);

} // namespace quittika
