#pragma once

#include "invoice/form1.hpp"
#include "platform/pictures.hpp"
#include "platform/printing.hpp"
#include "print/belegdruck.hpp"
#include "print/lieferscheinoptionen.hpp"
#include "settings/frm_einstellungen.hpp"

#include <optional>
#include <string>
#include <utility>

namespace quittika {

/// A page as the preview shows it.
struct Vorschauseite {
    int nummer = 1;
    int seiten = 1;
    std::string hinweis;  ///< what is wrong on it, as a sentence; empty where all is right
    bool entwurf = false; ///< in a design that need not be what prints
};

/// Draws single pages of the document in hand on a picture. On screen a delivery note shows no prices in any
/// design; slogan and remarks stand on it as the printer's window proposes them.
class Vorschauzeichnung {
public:
    Vorschauzeichnung(const Form1& form1, const frm_einstellungen& einstellungen, Belegdruck& belegdruck,
                      const Lieferscheinoptionen& lieferscheinoptionen, Printing& printing,
                      Pictures& pictures);

    /// From now on the pages are drawn in a design that need not be saved, whatever the settings choose;
    /// without one, in what they choose.
    void ENTWURF(std::optional<Design> entwurf) { entwurf_ = std::move(entwurf); }

    /// Draws page `wunsch`, or the nearest that there is. For the user's own design its file is read, unless
    /// `design_lesen` is off.
    Vorschauseite VORSCHAU_RECHNUNG(PictureControl& bild, int wunsch, bool design_lesen = true) const;
    /// Whether the page that `bild` shows would look otherwise, or have another number, if it were drawn now.
    bool VERALTET(const PictureControl& bild, const Vorschauseite& seite) const;

private:
    Druckvorlage vorlage(bool design_lesen) const;
    std::string zeichnen(PrintDevice& geraet, const PrintDocument& dokument,
                         const Druckvorlage& vorlage) const;

    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Belegdruck& belegdruck_;
    const Lieferscheinoptionen& lieferscheinoptionen_;
    Printing& printing_;
    Pictures& pictures_;
    std::optional<Design> entwurf_;
};

} // namespace quittika
