#pragma once

#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// A print colour and its row in the dialog. Colour and sliders may differ: what is printed is the colour.
struct Druckfarbe {
    const char* schluessel;
    Color PROGRAMMEINSTELLUNG::*wert;
    frm_einstellungen::Farbzeile frm_einstellungen::*zeile;
};

inline constexpr Druckfarbe kDruckfarben[] = {
    {"FARBE_LINIEN", &PROGRAMMEINSTELLUNG::FARBE_LINIEN, &frm_einstellungen::Linien},
    {"FARBE_WERBESPRUCH", &PROGRAMMEINSTELLUNG::FARBE_WERBESPRUCH, &frm_einstellungen::Werbespruch},
    {"FARBE_BANKDATEN", &PROGRAMMEINSTELLUNG::FARBE_BANKDATEN, &frm_einstellungen::Bankdaten},
    {"FARBE_BEMERKUNGEN", &PROGRAMMEINSTELLUNG::FARBE_BEMERKUNGEN, &frm_einstellungen::Bemerkungen},
    {"FARBE_FIRMENDATEN", &PROGRAMMEINSTELLUNG::FARBE_FIRMENDATEN, &frm_einstellungen::Firmendaten},
    {"FARBE_KUNDENNR", &PROGRAMMEINSTELLUNG::FARBE_KUNDENNR, &frm_einstellungen::Kundennr},
};

/// Shows the print colours in the dialog's samples.
inline void DRUCKVORLAGE(frm_einstellungen& einstellungen, const PROGRAMMEINSTELLUNG& werte) {
    for (const Druckfarbe& farbe : kDruckfarben) {
        (einstellungen.*farbe.zeile).Muster.BackColor = werte.*farbe.wert;
    }
}

/// Takes the print colours from the dialog's samples.
inline void DRUCKFARBEN_UEBERNEHMEN(PROGRAMMEINSTELLUNG& werte, const frm_einstellungen& einstellungen) {
    for (const Druckfarbe& farbe : kDruckfarben) {
        werte.*farbe.wert = (einstellungen.*farbe.zeile).Muster.BackColor();
    }
}

} // namespace quittika
