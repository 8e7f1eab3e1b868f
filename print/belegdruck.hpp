#pragma once

#include "designer/designdatei.hpp"
#include "invoice/form1.hpp"
#include "print/druckvorlage.hpp"
#include "print/rechnungsdruck.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <functional>
#include <optional>

namespace quittika {

/// Makes the document in hand ready to be drawn, for paper and screen.
class Belegdruck {
public:
    using Girocode = std::function<std::optional<SquareGrid>()>;
    /// `girocode` gives the code that stands beside the totals.
    Belegdruck(const Form1& form1, const frm_einstellungen& einstellungen,
               const PROGRAMMEINSTELLUNG& programm, Designdatei& designdatei, Girocode girocode);

    /// In the page design that is chosen. For the user's own its file is read, and a box says where that is
    /// missing; without `design_lesen` the one read last holds, if there is one. Drawing needs this object.
    Druckvorlage vorbereiten(const Druckoptionen& optionen = {}, bool design_lesen = true);
    /// In a design of the user's own that need not be saved.
    Druckvorlage vorbereiten(const Druckoptionen& optionen, const Design& entwurf) const;

private:
    Druckoptionen mit_girocode(Druckoptionen optionen) const;

    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& programm_;
    Designdatei& designdatei_;
    Girocode girocode_;
    Rechnungsdruck rechnungsdruck_;
};

} // namespace quittika
