#include "app/programm.hpp"

#include "app/erinnerung.hpp"
#include "app/form_start.hpp"
#include "app/hauptfenster.hpp"
#include "app/ladefolge.hpp"
#include "app/startfenster.hpp"
#include "print/leistungsspalte.hpp"
#include "print/seitenumbruch.hpp"

#include <utility>

namespace quittika {

/// All windows and modules, in the order in which they build on each other.
struct Programm::Teile {
    Teile(Platform p, std::string ordner) : platform(p), verzeichnis(std::move(ordner)) {
        platform.desktop.adopt(form1);
        platform.desktop.adopt(einstellungen);
        platform.desktop.adopt(programm);
        platform.desktop.adopt(form_start);
    }

    Platform platform;
    Programmverzeichnis verzeichnis;
    PROGRAMMEINSTELLUNG werte;
    Rechnungszustand zustand;
    Form1 form1;
    frm_einstellungen einstellungen;
    frm_Programm programm;
    Form_START form_start;

    Eingabezeile eingabezeile{form1, platform.dialogs};
    Rechnung rechnung{form1, zustand, eingabezeile, platform.clock};
    Vorgaben vorgaben{form1, einstellungen, programm, werte};
    Summen summen{form1,          einstellungen,
                  zustand,        eingabezeile,
                  platform.clock, [this] { return ANZAHL_DRUCKSEITEN(form1.List_K.items(), einstellungen); }};
    Leistungsspalte leistungsspalte{form1, einstellungen, werte, platform.printing.metrics()};
    Positionen positionen{form1,    zustand, eingabezeile,
                          rechnung, summen,  [this](int zeile) {
            return leistungsspalte.HINWEIS(zeile); }};
    Zeilenmenue zeilenmenue{form1, zustand, eingabezeile, rechnung, summen, positionen};
    Rechnungsnummern nummern{form1, einstellungen, zustand, verzeichnis, platform.dialogs};
    ZuletztGeoeffnet zuletzt{form1, werte};
    Dateistand stand;
    Rechnungsschreiber schreiber{form1, werte, zustand, verzeichnis, stand, platform.dialogs, platform.clock};
    Rechnungsleser leser{form1, werte, zustand, rechnung, stand, platform.dialogs};
    Dateibefehle dateibefehle{form1,     zustand, rechnung, vorgaben, summen, stand, platform.dialogs,
                              schreiber, leser,   nummern,  zuletzt};
    Druckauftrag druckauftrag{
        form1, einstellungen, werte, platform.dialogs, platform.printing, platform.desktop, [this] {
            summen.jetztberechnen_List();
        }};
    KundeAufnehmen kunde_aufnehmen{form1, verzeichnis, platform.dialogs};
    Erinnerung erinnerung{form1, zustand};
    Ladefolge ladefolge{{form1, einstellungen, programm, werte, zustand, verzeichnis, platform, summen,
                         rechnung, vorgaben, dateibefehle, nummern, zuletzt}};
    Hauptfenster hauptfenster{{form1, einstellungen, werte, zustand, verzeichnis, platform, eingabezeile,
                               summen, positionen, zeilenmenue, dateibefehle, druckauftrag, kunde_aufnehmen,
                               erinnerung, ladefolge}};
    Startfenster startfenster{form_start, werte, verzeichnis, platform.clock, [this] { form1.Show(); }};
};

Programm::Programm(Platform platform, std::string verzeichnis)
    : teile_(std::make_unique<Teile>(platform, std::move(verzeichnis))) {}

Programm::~Programm() = default;

void Programm::starten() {
    teile_->form_start.Show();
}

void Programm::hauptfenster_zeigen() {
    teile_->form1.Show();
}

Form& Programm::hauptfenster() {
    return teile_->form1;
}

} // namespace quittika
