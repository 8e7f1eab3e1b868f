#pragma once

#include "invoice/file/zuletzt_geoeffnet.hpp"
#include "platform/pictures.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/einstellungsanzeige.hpp"
#include "settings/programmstil.hpp"

namespace quittika {

/// What follows from the settings that were read.
class Folgeschritte {
public:
    Folgeschritte(Form1& form1, frm_einstellungen& einstellungen, frm_Programm& programm,
                  PROGRAMMEINSTELLUNG& werte, const Programmverzeichnis& verzeichnis, Pictures& bilder,
                  ZuletztGeoeffnet& zuletzt, Programmstil& stil)
        : form1_(form1),
          einstellungen_(einstellungen),
          programm_(programm),
          werte_(werte),
          verzeichnis_(verzeichnis),
          bilder_(bilder),
          zuletzt_(zuletzt),
          stil_(stil) {}

    /// What follows even from a file without its mark.
    void PreiskoepfeZeigen() { WAEHRUNG_IN_PREISKOEPFE(einstellungen_, werte_); }
    /// Labels, companions of the option buttons, what can be used, rates, colours, page design and pictures.
    /// Paths come from the design file; a picture that does not load leaves the one that is there.
    void ausfuehren();

private:
    void Bildpfade();
    void Anzeigen();
    void Gegenstuecke();
    void Spaltenkoepfe();
    void MwStUndWaehrung();
    void Individualfarben();
    void Layout();
    void Programmfarben();
    void BilderLaden();
    void BildLaden(PictureBox& feld, const std::string& pfad);

    Form1& form1_;
    frm_einstellungen& einstellungen_;
    frm_Programm& programm_;
    PROGRAMMEINSTELLUNG& werte_;
    const Programmverzeichnis& verzeichnis_;
    Pictures& bilder_;
    ZuletztGeoeffnet& zuletzt_;
    Programmstil& stil_;
};

} // namespace quittika
