#pragma once

#include "platform/script/script_clock.hpp"
#include "platform/script/script_desktop.hpp"
#include "settings/einstellungsfelder.hpp"
#include "settings/einstellungsfenster.hpp"
#include "settings/einstellungsstart.hpp"
#include "tests/pruefstand.hpp"

namespace quittika {

/// The invoice and its settings with their files, without a window.
struct Einstellungsstand : Pruefstand {
    PictureHeaders bilder;
    Logo logo{form1, einstellungen, werte};
    ScriptClock skriptuhr;
    ScriptDesktop desktop{skriptuhr};
    Programmstil stil{form1, einstellungen, programm, werte, desktop, [] {}};
    Folgeschritte folgeschritte{form1, einstellungen, programm, werte, verzeichnis, bilder, zuletzt, stil};
    Einstellungsuebernahme uebernahme{form1, einstellungen,        programm, werte, zustand, vorgaben, logo,
                                      stil,  einstellungsschreiber};
    Einstellungsleser einstellungsleser{einstellungstabelle, verzeichnis, folgeschritte, uebernahme,
                                        einstellungsschreiber};

    Einstellungsstart start{einstellungen, programm, werte, verzeichnis, einstellungsleser};
    Einstellungsfelder felder{einstellungen, werte, zustand, nummern, dialoge};
    Bilderwahl bilderwahl{einstellungen, verzeichnis, dialoge, bilder};
    Einstellungsfenster fenster{einstellungen, werte, zustand,    uebernahme, einstellungsschreiber,
                                nummern,       logo,  bilderwahl, summen,     dialoge};

    /// Reads the settings as the program does when it starts.
    void starten() {
        const Rechnungszustand::Sperre still(zustand);
        start.Laden();
        logo.LayoutZeigen();
        vorgaben.uebernehmen();
        nummern.RNStartLesen();
    }
    /// What the owners of the lines hold.
    std::vector<std::string> texte() const { return ZEILENTEXTE(einstellungstabelle); }
};

} // namespace quittika
