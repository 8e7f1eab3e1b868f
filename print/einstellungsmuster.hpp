#pragma once

#include "invoice/form1.hpp"
#include "print/musterbeleg.hpp"
#include "settings/frm_einstellungen.hpp"

#include <functional>
#include <memory>

namespace quittika {

/// The page beside the settings, and the small ones of the page designs: they follow what the dialog and
/// the main window show while the dialog is in sight, a moment after the last change.
class Einstellungsmuster {
public:
    /// `beleg` is made when the dialog comes into sight for the first time.
    Einstellungsmuster(Form1& form1, frm_einstellungen& einstellungen,
                       std::function<std::unique_ptr<Musterbeleg>()> beleg);

private:
    void Form_Shown();
    void Etwas_Geaendert(const Control& womit);
    void Rechnung_Geaendert(const Control& womit);
    void veralten();
    void Timer_Muster_Timer();
    void MUSTER_ZEICHNEN();
    void LAYOUTBILD_ZEICHNEN();
    void anordnen();
    void warten(int ms);
    bool layouts_in_sicht() const;

    frm_einstellungen& einstellungen_;
    std::function<std::unique_ptr<Musterbeleg>()> beleg_machen_;
    std::unique_ptr<Musterbeleg> beleg_;
    bool bei_der_arbeit_ = false;  ///< its own changes are none of the user's
    bool veraltet_ = false;        ///< something was changed since the page was drawn
    std::size_t layoutbilder_ = 0; ///< how many of the small pages are as the settings are
};

} // namespace quittika
