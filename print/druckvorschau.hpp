#pragma once

#include "platform/forms/opened_window.hpp"
#include "print/bildausgabe.hpp"
#include "print/druckauftrag.hpp"
#include "print/form_druckvorschau.hpp"
#include "print/pdfausgabe.hpp"
#include "print/vorschauzeichnung.hpp"

#include <cstdint>
#include <memory>

namespace quittika {

/// The preview in its window: turns pages, magnifies and scrolls them. A page is drawn when it is shown, and
/// once more when the document has changed meanwhile.
class Druckvorschau {
public:
    Druckvorschau(Form_Druckvorschau& form, const Vorschauzeichnung& zeichnung, Druckauftrag& druckauftrag,
                  Bildausgabe& bildausgabe, Pdfausgabe& pdfausgabe);

    /// Draws the page in hand once more.
    void auffrischen() { seite_zeichnen(true); }

private:
    enum class Massstab : std::uint8_t { Seitenbreite, GanzeSeite, Frei };

    void seiten_verdrahten();
    void massstab_verdrahten();
    void Form_Load();
    void seite_zeichnen(bool design_lesen);
    void zur_seite(int nummer);
    void massstab_setzen(Massstab massstab, double vergroesserung = 1);
    void anordnen();
    void rollen(const WheelEvent& rad);
    void am_rand_blaettern(int richtung);

    Form_Druckvorschau& form_;
    const Vorschauzeichnung& zeichnung_;
    Vorschauseite seite_;
    Massstab massstab_ = Massstab::Seitenbreite;
    double vergroesserung_ = 1;
    int raddrehung_ = 0; ///< of the wheel, that did nothing yet
};

/// The one preview of the program.
using Vorschaufenster = OpenedWindow<Form_Druckvorschau, Druckvorschau>;

} // namespace quittika
