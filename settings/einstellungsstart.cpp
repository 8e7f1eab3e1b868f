#include "settings/einstellungsstart.hpp"

#include "settings/schriftgroessen.hpp"

#include <string>

namespace quittika {

void Einstellungsstart::Laden() {
    BilderLaden();
    einstellungen_.ensure_loaded();
    programm_.ensure_loaded();
    leser_.EINSTELLUNGEN_LADEN();
    SCHRIFTGROESSEN_UEBERNEHMEN(werte_, einstellungen_);
}

void Einstellungsstart::BilderLaden() {
    struct Bild {
        PictureControl& feld;
        const char* datei;
    };
    for (const Bild& bild : {Bild{einstellungen_.Picture1, "\\ihrlogo.bmp"},
                             {einstellungen_.Picture_wasserz, "\\wasserzqk2008.bmp"},
                             {programm_.Image_Speicher_stroh, "\\stroh.png"},
                             {programm_.Image_Speicher_strohbraun, "\\strohbraun.png"}}) {
        const std::string pfad = verzeichnis_.pfad(bild.datei);
        if (bild.feld.Picture().empty() && datei_vorhanden(pfad)) {
            bild.feld.Picture = systempfad(pfad);
        }
    }
}

} // namespace quittika
