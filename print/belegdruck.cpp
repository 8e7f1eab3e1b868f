#include "print/belegdruck.hpp"

#include "print/eigenes_layout.hpp"

#include <utility>

namespace quittika {

Belegdruck::Belegdruck(const Form1& form1, const frm_einstellungen& einstellungen,
                       const PROGRAMMEINSTELLUNG& programm, Designdatei& designdatei, Girocode girocode)
    : form1_(form1),
      einstellungen_(einstellungen),
      programm_(programm),
      designdatei_(designdatei),
      girocode_(std::move(girocode)),
      rechnungsdruck_(form1, einstellungen, programm) {}

Druckvorlage Belegdruck::vorbereiten(const Druckoptionen& optionen, bool design_lesen) {
    if (LAYOUT_GEWAEHLT(einstellungen_) != kEigenesLayout) {
        return rechnungsdruck_.vorbereiten(mit_girocode(optionen));
    }
    if (design_lesen || !designdatei_.geladen()) {
        designdatei_.DESIGN_LADEN();
    }
    return vorbereiten(optionen, designdatei_.design);
}

Druckvorlage Belegdruck::vorbereiten(const Druckoptionen& optionen, const Design& entwurf) const {
    return DRUCKE_EIGENESLAYOUT(form1_, einstellungen_, programm_, entwurf, mit_girocode(optionen));
}

Druckoptionen Belegdruck::mit_girocode(Druckoptionen optionen) const {
    optionen.girocode = girocode_();
    return optionen;
}

} // namespace quittika
