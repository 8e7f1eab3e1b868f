#pragma once

#include "platform/script/script_clock.hpp"
#include "platform/script/script_desktop.hpp"
#include "settings/einstellungsleser.hpp"
#include "tests/pruefstand.hpp"

namespace quittika {

/// The invoice and its settings with their files, without a window.
struct Einstellungsstand : Pruefstand {
    PictureHeaders bilder;
    Logo logo{form1, einstellungen, werte};
    ScriptClock skriptuhr;
    ScriptDesktop desktop{skriptuhr};
    Programmstil stil{form1, einstellungen, programm, werte, desktop};
    Folgeschritte folgeschritte{form1, einstellungen, programm, werte, verzeichnis, bilder, zuletzt, stil};
    Einstellungsuebernahme uebernahme{form1,    einstellungen, programm, werte,
                                      vorgaben, logo,          stil,     einstellungsschreiber};
    Einstellungsleser einstellungsleser{einstellungstabelle, verzeichnis, folgeschritte, uebernahme,
                                        einstellungsschreiber};

    /// What the owners of the lines hold.
    std::vector<std::string> texte() const {
        std::vector<std::string> alle;
        for (const Einstellungszeile& zeile : einstellungstabelle) {
            alle.push_back(ZEILENTEXT(zeile));
        }
        return alle;
    }
};

} // namespace quittika
