#pragma once

#include "invoice/form1.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/frm_programm.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// The colours of the windows. While no style is on, the windows are painted in the program's own look.
class Programmstil {
public:
    Programmstil(Form1& form1, frm_einstellungen& einstellungen, frm_Programm& programm,
                 PROGRAMMEINSTELLUNG& werte)
        : form1_(form1), einstellungen_(einstellungen), programm_(programm), werte_(werte) {}

    /// The two colours become those of the style that is on; without one they stay.
    void FARBEN_WAEHLEN();
    /// The style's picture as the main window's background picture; without one that stays.
    void HINTERGRUNDBILD_NEHMEN();
    /// Spreads the two colours over the windows.
    void Command_Vorschau_Click();

private:
    Form1& form1_;
    frm_einstellungen& einstellungen_;
    frm_Programm& programm_;
    PROGRAMMEINSTELLUNG& werte_;
};

} // namespace quittika
