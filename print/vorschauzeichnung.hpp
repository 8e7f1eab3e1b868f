#pragma once

#include "invoice/form1.hpp"
#include "platform/printing.hpp"
#include "print/belegdruck.hpp"
#include "print/lieferscheinoptionen.hpp"
#include "settings/frm_einstellungen.hpp"

#include <string>

namespace quittika {

/// A page as the preview shows it.
struct Vorschauseite {
    int nummer = 1;
    int seiten = 1;
    std::string hinweis; ///< what is wrong on it, as a sentence; empty where all is right
};

/// Draws single pages of the document in hand on a picture. On screen a delivery note shows no prices in any
/// design; slogan and remarks stand on it as the printer's window proposes them.
class Vorschauzeichnung {
public:
    Vorschauzeichnung(const Form1& form1, const frm_einstellungen& einstellungen, Belegdruck& belegdruck,
                      const Lieferscheinoptionen& lieferscheinoptionen, Printing& printing);

    /// Draws page `wunsch`, or the nearest that there is. `design_lesen`: as `Belegdruck::vorbereiten`.
    Vorschauseite VORSCHAU_RECHNUNG(PictureControl& bild, int wunsch, bool design_lesen = true) const;

private:
    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Belegdruck& belegdruck_;
    const Lieferscheinoptionen& lieferscheinoptionen_;
    Printing& printing_;
};

} // namespace quittika
