#pragma once

#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// The font size of a region of the page: its control, the label beside it and the value that is printed.
struct Schriftgroesse {
    HScrollBar frm_einstellungen::*regler;
    Label frm_einstellungen::*anzeige;
    int PROGRAMMEINSTELLUNG::*wert;
    int ersatz; ///< for a size that is none
};

inline constexpr Schriftgroesse kSchriftgroessen[] = {
    {&frm_einstellungen::HScroll_GROESSE_RECHNUNG, &frm_einstellungen::Label_GROESSE_RECHNUNG,
     &PROGRAMMEINSTELLUNG::GROESSE_RECHNUNG, 10},
    {&frm_einstellungen::HScroll_GROESSE_WERBUNG, &frm_einstellungen::Label_GROESSE_WERBUNG,
     &PROGRAMMEINSTELLUNG::GROESSE_WERBUNG, 10},
    {&frm_einstellungen::HScroll_GROESSE_ANSCHREIBEN, &frm_einstellungen::Label_GROESSE_ANSCHREIBEN,
     &PROGRAMMEINSTELLUNG::GROESSE_ANSCHREIBEN, 11},
    {&frm_einstellungen::HScroll_GROESSE_BEMERKUNGEN, &frm_einstellungen::Label_GROESSE_BEMERKUNGEN,
     &PROGRAMMEINSTELLUNG::GROESSE_BEMERKUNGEN, 10},
    {&frm_einstellungen::HScroll_GROESSE_ZUSATZ_1, &frm_einstellungen::Label_GROESSE_ZUSATZ_1,
     &PROGRAMMEINSTELLUNG::GROESSE_ZUSATZ_1, 10},
    {&frm_einstellungen::HScroll_GROESSE_ZUSATZ_2, &frm_einstellungen::Label_GROESSE_ZUSATZ_2,
     &PROGRAMMEINSTELLUNG::GROESSE_ZUSATZ_2, 10},
};

/// Takes the sizes that the dialog shows.
inline void SCHRIFTGROESSEN_UEBERNEHMEN(PROGRAMMEINSTELLUNG& werte, const frm_einstellungen& einstellungen) {
    for (const Schriftgroesse& groesse : kSchriftgroessen) {
        werte.*groesse.wert = (einstellungen.*groesse.regler).Value();
    }
}

} // namespace quittika
