#include "print/vorschauzeichnung.hpp"

#include "print/belegausgabe.hpp"
#include "print/dokumentnamen.hpp"

#include <algorithm>
#include <memory>

namespace quittika {

namespace {

constexpr double kXGesamt = 185; ///< mm

} // namespace

Vorschauzeichnung::Vorschauzeichnung(const Form1& form1, const frm_einstellungen& einstellungen,
                                     Belegdruck& belegdruck, const Lieferscheinoptionen& lieferscheinoptionen,
                                     Printing& printing)
    : form1_(form1),
      einstellungen_(einstellungen),
      belegdruck_(belegdruck),
      lieferscheinoptionen_(lieferscheinoptionen),
      printing_(printing) {}

Vorschauseite Vorschauzeichnung::VORSCHAU_RECHNUNG(PictureControl& bild, int wunsch,
                                                   bool design_lesen) const {
    Druckoptionen optionen;
    optionen.lieferschein = lieferscheinoptionen_.vorgabe();
    optionen.lieferschein.preise = false;
    optionen.x_gesamt = kXGesamt;
    const Druckvorlage vorlage = belegdruck_.vorbereiten(optionen, design_lesen);
    Vorschauseite seite{std::clamp(wunsch, 1, vorlage.seiten()), vorlage.seiten(), {}};
    const PrintDocument dokument{AUFTRAGSTITEL(form1_), {}, seite.nummer};
    const std::unique_ptr<PrintDevice> geraet = printing_.picture(bild, dokument);
    const auto zeichnen = [&](PrintSurface& surface) {
        Blatt blatt{surface, JUSTIERUNG_LESEN(einstellungen_)};
        vorlage.SEITE_DRUCKEN(blatt, seite.nummer);
        surface.EndDoc();
    };
    seite.hinweis = AUSGEBEN(*geraet, dokument, printing_.metrics(), kAusweg, zeichnen).hinweis("gezeichnet");
    return seite;
}

} // namespace quittika
