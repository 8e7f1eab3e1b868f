#include "settings/einstellungsstart.hpp"

#include "platform/textdatei.hpp"

#include <string>

namespace quittika {

Einstellungsstart::Einstellungsstart(frm_einstellungen& einstellungen, frm_Programm& programm,
                                     PROGRAMMEINSTELLUNG& werte, const Programmverzeichnis& verzeichnis)
    : einstellungen_(einstellungen), programm_(programm), werte_(werte), verzeichnis_(verzeichnis) {}

void Einstellungsstart::Laden() {
    SpaltenBenennen();
    BilderLaden();
    einstellungen_.ensure_loaded();
    programm_.ensure_loaded();
    SchriftgroessenPruefen();
}

void Einstellungsstart::SpaltenBenennen() {
    einstellungen_.Label_preis.Caption = "Einzelpreis[" + werte_.WAEHRUNG + "]";
    einstellungen_.Label_gesamtp.Caption = "Gesamtpreis[" + werte_.WAEHRUNG + "]";
}

void Einstellungsstart::BilderLaden() {
    struct Bild {
        PictureBox& feld;
        const char* datei;
    };
    for (const Bild& bild : {Bild{einstellungen_.Picture1, "\\ihrlogo.bmp"},
                             {einstellungen_.Picture_wasserz, "\\wasserzqk2008.bmp"}}) {
        const std::string pfad = verzeichnis_.pfad(bild.datei);
        if (bild.feld.Picture().empty() && datei_vorhanden(pfad)) {
            bild.feld.Picture = systempfad(pfad);
        }
    }
}

void Einstellungsstart::SchriftgroessenPruefen() {
    struct Groesse {
        HScrollBar& regler;
        int& wert;
        int vorgabe;
    };
    frm_einstellungen& e = einstellungen_;
    PROGRAMMEINSTELLUNG& w = werte_;
    for (const Groesse& g : {Groesse{e.HScroll_GROESSE_RECHNUNG, w.GROESSE_RECHNUNG, 10},
                             {e.HScroll_GROESSE_WERBUNG, w.GROESSE_WERBUNG, 10},
                             {e.HScroll_GROESSE_ANSCHREIBEN, w.GROESSE_ANSCHREIBEN, 11},
                             {e.HScroll_GROESSE_BEMERKUNGEN, w.GROESSE_BEMERKUNGEN, 10},
                             {e.HScroll_GROESSE_ZUSATZ_1, w.GROESSE_ZUSATZ_1, 10},
                             {e.HScroll_GROESSE_ZUSATZ_2, w.GROESSE_ZUSATZ_2, 10}}) {
        if (g.regler.Value() <= 0) {
            g.regler.Value = g.vorgabe;
        }
        g.wert = g.regler.Value();
    }
}

} // namespace quittika
