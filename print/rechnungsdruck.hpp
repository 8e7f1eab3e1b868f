#pragma once

#include "invoice/form1.hpp"
#include "print/blatt.hpp"
#include "print/druckfuss.hpp"
#include "print/druckkopf.hpp"
#include "print/druckoptionen.hpp"
#include "print/drucktabelle.hpp"
#include "print/druckvorlage.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// Draws the document in hand, page by page, in one of the built-in designs.
class Rechnungsdruck {
public:
    Rechnungsdruck(const Form1& form1, const frm_einstellungen& einstellungen,
                   const PROGRAMMEINSTELLUNG& programm)
        : form1_(form1),
          einstellungen_(einstellungen),
          programm_(programm),
          kopf_(form1, einstellungen, programm),
          fuss_(form1, einstellungen, programm) {}

    /// Cuts the pages and calculates their carries; drawing them needs this object.
    Druckvorlage vorbereiten(const Druckoptionen& optionen = {}) const;
    /// Draws all pages and ends the document. Throws what the surface throws.
    void DRUCKE_RECHNUNG(PrintSurface& surface, Druckjustierung just,
                         const Druckoptionen& optionen = {}) const {
        vorbereiten(optionen).DRUCKEN(surface, just);
    }

private:
    void kopf(Blatt& blatt, bool erste_seite, const Lieferscheinangaben& angaben) const;
    void seite_drucken(Blatt& blatt, const Druckseite& seite, const Druckoptionen& optionen) const;
    bool mit_bemerkungen(bool letzte_seite, const Lieferscheinangaben& angaben) const;

    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& programm_;
    Druckkopf kopf_;
    Druckfuss fuss_;
};

} // namespace quittika
