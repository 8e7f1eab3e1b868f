#include "app/programm.hpp"

#include "app/ausgabe.hpp"
#include "app/betraege.hpp"
#include "app/eingabe.hpp"
#include "app/ereignisse.hpp"
#include "app/erinnerung.hpp"
#include "app/form_start.hpp"
#include "app/hauptfenster.hpp"
#include "app/kopf.hpp"
#include "app/ladefolge.hpp"
#include "app/menue_bearbeiten.hpp"
#include "app/menue_datei.hpp"
#include "app/menue_drucken.hpp"
#include "app/menue_einstellungen.hpp"
#include "app/menue_extras.hpp"
#include "app/menue_hilfe.hpp"
#include "app/menue_listen.hpp"
#include "app/raster.hpp"
#include "app/startfenster.hpp"
#include "app/werkzeuge.hpp"
#include "designer/designer.hpp"
#include "einvoice/e_rechnungsfenster.hpp"
#include "einvoice/girocode.hpp"
#include "einvoice/mailversand.hpp"
#include "einvoice/pflichtpruefung.hpp"
#include "invoice/erste_rechnung.hpp"
#include "invoice/file/textexport.hpp"
#include "print/druckauftrag.hpp"
#include "print/einstellungsmuster.hpp"
#include "print/leistungsspalte.hpp"
#include "print/lieferscheinoptionen.hpp"
#include "print/seitenumbruch.hpp"
#include "safety/entwurf.hpp"
#include "safety/fassungsablage.hpp"
#include "safety/fassungsfenster.hpp"
#include "safety/wiederherstellung.hpp"
#include "settings/bilderwahl.hpp"
#include "settings/designeraufruf.hpp"
#include "settings/einstellungsaustausch.hpp"
#include "settings/einstellungsfelder.hpp"
#include "settings/einstellungsfenster.hpp"
#include "settings/logo.hpp"
#include "settings/programmfenster.hpp"

#include <utility>

namespace quittika {

/// All windows and modules, in the order in which they build on each other.
struct Programm::Teile {
    Teile(Platform p, std::string ordner) : platform(p), verzeichnis(std::move(ordner)) {
        platform.desktop.adopt(form1);
        platform.desktop.adopt(einstellungen);
        platform.desktop.adopt(programm);
        platform.desktop.adopt(form_start);
        MENUE_BEARBEITEN(form1, ereignisse, rueckgaengig);
        MENUE_LISTEN(form1, ereignisse, platform.dialogs, kundenfenster, artikeluebernahme);
        MENUE_DRUCKEN(form1, etiketten);
        MENUE_EINSTELLUNGEN(form1, einstellungen, ereignisse, einstellungsfenster, programmfenster,
                            designeraufruf, designerfenster);
        MENUE_EXTRAS(form1, ereignisse, eingabezeile, pflichtpruefung, barcodefenster, analyzerfenster,
                     nummernpruefung, datensicherung, rueckspielfenster, updatecheck);
        WERKZEUGE(form1, ereignisse, zustand, notizfenster, verzeichnis, platform.dialogs, platform.desktop);
        dateibefehle.VorVerlust = [this] { fassungsablage.EntwurfAufheben(entwurf.Abbild()); };
    }

    /// The window first, so that what the program asks and says stands in front of one that is there.
    void HauptfensterZeigen() {
        form1.Show();
        platform.desktop.later([this] { WennDasFensterDaIst(); });
    }
    /// What was lost last time comes first, the program's other questions before the invoice that it was
    /// started with, which is a step that can be taken back.
    void WennDasFensterDaIst() {
        const Activity::Hold als_ganzes(platform.desktop.activity());
        wiederherstellung.Anbieten();
        rueckgaengig.beginnen();
        form1.Hinweise.melden(SICHERUNGSERINNERUNG(verzeichnis, platform.clock.now()));
        updatecheck.Updatecheck_Start();
        if (!startrechnung.empty()) {
            dateibefehle.Oeffnen(startrechnung);
        }
    }

    /// Opens an invoice that was chosen in another window.
    void ImHauptfensterOeffnen(const std::string& pfad) {
        const bool frei = !zustand.geaendert() || dateibefehle.VorherSpeichern(Buttons::YesNoCancel);
        if (frei && dateibefehle.oeffneRN(pfad)) {
            form1.Show();
        }
    }

    void VorDerAusgabe() {
        summen.jetztberechnen_List();
        pflichtpruefung.ERSTEN_PUNKT_NENNEN();
    }
    /// The code that is printed with the invoice in hand. Without the user's data there is none.
    std::optional<SquareGrid> Girocode() {
        try {
            return GIROCODE(BELEGQUELLE(form1, einstellungen, werte), angabenspeicher.verkaeufer());
        } catch (const Laufzeitfehler& fehler) {
            form1.Hinweise.melden(ANGABENHINDERNIS(fehler));
            return std::nullopt;
        }
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
    Einstellungstabelle einstellungstabelle = EINSTELLUNGSTABELLE(form1, einstellungen, programm, werte);
    Einstellungsschreiber einstellungsschreiber{form1, einstellungstabelle, verzeichnis, platform.dialogs};
    ZuletztGeoeffnet zuletzt{form1, werte, einstellungsschreiber};
    Dateistand stand;
    Rechnungsschreiber schreiber{form1, werte, zustand, verzeichnis, stand, platform.dialogs, platform.clock};
    Rechnungsleser leser{form1, werte, zustand, rechnung, stand, platform.dialogs};
    Rechnungssperre sperre{platform.clock};
    Dateibefehle dateibefehle{form1,     zustand, rechnung, vorgaben, summen, stand, platform.dialogs,
                              schreiber, leser,   nummern,  zuletzt,  sperre};
    Fassungsablage fassungsablage{verzeichnis, platform.clock, form1.Hinweise};
    Entwurf entwurf{form1, zustand, schreiber, nummern, verzeichnis, platform.clock};
    Wiederherstellung wiederherstellung{entwurf, fassungsablage, dateibefehle, platform.dialogs};
    Textexport textexport{form1, einstellungen, summen, verzeichnis, platform.dialogs, platform.shell};
    Lieferscheinoptionen lieferscheinoptionen{form1, einstellungen, platform.desktop};
    Designdatei designdatei{verzeichnis, platform.dialogs, form1.Hinweise};
    Angabenspeicher angabenspeicher{verzeichnis};
    Pflichtpruefung pflichtpruefung{form1, einstellungen, werte, zustand, zuletzt, platform.dialogs};
    Belegdruck belegdruck{form1, einstellungen, werte, designdatei, [this] { return Girocode(); }};
    Druckauftrag druckauftrag{
        form1, einstellungen, belegdruck, platform.dialogs, platform.printing, lieferscheinoptionen, [this] {
            VorDerAusgabe();
        }};
    Etiketten etiketten{form1, einstellungen, werte, platform.desktop, platform.dialogs, platform.printing};
    Vorschauzeichnung vorschauzeichnung{
        form1, einstellungen, belegdruck, lieferscheinoptionen, platform.printing, platform.pictures};
    Bildausgabe bildausgabe{form1,
                            vorschauzeichnung,
                            platform.printing,
                            platform.dialogs,
                            platform.shell,
                            platform.progress,
                            [this] { summen.jetztberechnen_List(); }};
    Pdfausgabe pdfausgabe{form1,
                          einstellungen,
                          belegdruck,
                          lieferscheinoptionen,
                          platform.printing,
                          platform.dialogs,
                          platform.shell,
                          [this] { VorDerAusgabe(); }};
    E_Rechnungsausgabe e_rechnungsausgabe{form1,           einstellungen, werte,
                                          angabenspeicher, belegdruck,    platform.printing};
    ERechnungsfenster e_rechnungsfenster{platform.desktop, [this](Form_ERechnung& form) {
                                             return std::make_unique<ERechnung>(
                                                 form, form1, einstellungen, e_rechnungsausgabe,
                                                 angabenspeicher, platform.dialogs, platform.shell,
                                                 [this] { VorDerAusgabe(); });
                                         }};
    Mailversand mailversand{form1,
                            einstellungen,
                            e_rechnungsausgabe,
                            pdfausgabe,
                            lieferscheinoptionen,
                            verzeichnis,
                            platform.dialogs,
                            platform.shell,
                            [this] { VorDerAusgabe(); }};
    Vorschaufenster vorschaufenster{platform.desktop, [this](Form_Druckvorschau& form) {
                                        return std::make_unique<Druckvorschau>(
                                            form, vorschauzeichnung, druckauftrag, bildausgabe, pdfausgabe);
                                    }};
    Artikelzustand artikelzustand{verzeichnis};
    Artikeltabelle ARTIKEL{artikelzustand};
    Kundenfenster kundenfenster{platform.desktop, [this](Form_Kundenverwaltung& form) {
                                    return std::make_unique<Kundenverwaltung>(form, form1, artikelzustand,
                                                                              verzeichnis, platform.dialogs);
                                }};
    KundeAufnehmen kunde_aufnehmen{form1, verzeichnis, platform.dialogs, kundenfenster};
    Artikeluebernahme artikeluebernahme{form1,         artikelzustand, ARTIKEL,          summen,
                                        kundenfenster, verzeichnis,    platform.desktop, platform.dialogs};
    Barcodefenster barcodefenster{platform.desktop, [this](Form_Etp_Barcode& form) {
                                      return std::make_unique<Barcodemodus>(form, form1, werte, ARTIKEL,
                                                                            artikelzustand, summen,
                                                                            platform.desktop);
                                  }};
    Analyzerfenster analyzerfenster{platform.desktop, [this](Form_Analyzer& form) {
                                        return std::make_unique<Analyzer>(
                                            form, verzeichnis, platform.desktop, platform.dialogs,
                                            platform.printing, platform.shell, platform.clock,
                                            platform.progress,
                                            [this](const std::string& pfad) { ImHauptfensterOeffnen(pfad); });
                                    }};
    Logo logo{form1, einstellungen, werte};
    Programmstil stil{form1, einstellungen, programm, werte, platform.desktop, [this] {
                          if (Kundenverwaltung* kunden = kundenfenster.module()) {
                              kunden->FarbenUebernehmen();
                          }
                          artikeluebernahme.FarbenUebernehmen();
                      }};
    Folgeschritte folgeschritte{form1,       einstellungen,     programm, werte,
                                verzeichnis, platform.pictures, zuletzt,  stil};
    Einstellungsuebernahme uebernahme{form1, einstellungen,        programm, werte, zustand, vorgaben, logo,
                                      stil,  einstellungsschreiber};
    Fassungsfenster fassungsfenster{
        form1, zustand, fassungsablage, dateibefehle, platform.desktop, platform.dialogs, [this] {
            return std::make_unique<Musterbeleg>(form1, einstellungen, programm, werte, verzeichnis,
                                                 platform.dialogs, platform.clock,
                                                 platform.printing.metrics(), platform.pictures);
        }};
    Bilderwahl bilderwahl{einstellungen, verzeichnis, platform.dialogs, platform.pictures};
    Einstellungsmuster einstellungsmuster{form1, einstellungen, [this] {
                                              return std::make_unique<Musterbeleg>(
                                                  form1, einstellungen, programm, werte, verzeichnis,
                                                  platform.dialogs, platform.clock,
                                                  platform.printing.metrics(), platform.pictures);
                                          }};
    Einstellungsleser einstellungsleser{einstellungstabelle, verzeichnis, folgeschritte, uebernahme,
                                        einstellungsschreiber};
    Einstellungsstart einstellungsstart{einstellungen, programm, werte, verzeichnis, einstellungsleser};
    Einstellungsfelder einstellungsfelder{einstellungen, werte, zustand, nummern, platform.dialogs};
    Einstellungsfenster einstellungsfenster{
        einstellungen, werte, zustand,    uebernahme, einstellungsschreiber,
        nummern,       logo,  bilderwahl, summen,     platform.dialogs};
    Programmfenster programmfenster{
        form1,       programm,         werte,           zustand, stil, einstellungsschreiber,
        verzeichnis, platform.dialogs, platform.desktop};
    Blockbilder blockbilder{form1, einstellungen, werte, platform.printing.metrics()};
    Designerfenster designerfenster{platform.desktop, [this](FORM_DESIGNER& form) {
                                        return std::make_unique<Designer>(
                                            form, designdatei, einstellungen, einstellungsfenster, bilderwahl,
                                            blockbilder, vorschauzeichnung, vorschaufenster, verzeichnis,
                                            platform.dialogs, platform.pictures);
                                    }};
    Designeraufruf designeraufruf{platform.dialogs, platform.clock,
                                  [this] { einstellungsfenster.UEBERNEHMEN(false); },
                                  [this] { designerfenster.open(); }};
    Notizfenster notizfenster{
        platform.desktop, [this](Form_Notiz& form) { return std::make_unique<Notiz>(form, form1, zustand); }};
    Updatecheck updatecheck{form1, verzeichnis, platform.dialogs, platform.shell, platform.clock};
    ErsteRechnung erste_rechnung{form1, einstellungen, vorgaben, rechnung, nummern, platform.clock};

    // The main window: its areas, then the window, then its menus.
    Standaufnahme standaufnahme{form1,  werte,      zustand, eingabezeile, rechnung,
                                summen, positionen, nummern, stand,        sperre};
    Rueckgaengig rueckgaengig{form1, zustand, standaufnahme, platform.desktop.activity()};
    Ereignisse ereignisse{form1.Hinweise, zustand, summen, rueckgaengig};
    Kopf kopf{form1, ereignisse, kunde_aufnehmen, platform.clock};
    Eingabe eingabe{form1, ereignisse, eingabezeile, positionen, zeilenmenue, artikeluebernahme};
    Betraege betraege{form1, ereignisse, zustand, eingabezeile, summen, werte, einstellungsschreiber};
    Raster raster{form1, ereignisse, artikeluebernahme};
    Erinnerung erinnerung{form1, zustand};
    Ladefolge ladefolge{form1, zustand,        platform.desktop, verzeichnis, einstellungsstart,
                        logo,  erste_rechnung, raster,           summen};
    Hauptfenster hauptfenster{
        form1, zustand, ladefolge, kopf, dateibefehle, entwurf, verzeichnis, platform.desktop, [this] {
            return designerfenster.module() == nullptr || designerfenster.module()->SCHLIESSEN();
        }};
    Einstellungsaustausch einstellungsaustausch{
        form1,       einstellungen,    einstellungsschreiber,
        verzeichnis, platform.dialogs, [this] { hauptfenster.m_beenden_Click(); }};
    MenueDatei menue_datei{
        form1,       ereignisse,   dateibefehle,    textexport, druckauftrag, e_rechnungsfenster,
        mailversand, hauptfenster, fassungsfenster, kopf,       raster};
    Ausgabe ausgabe{form1, ereignisse, summen, vorschauzeichnung, vorschaufenster, bildausgabe, pdfausgabe};
    MenueHilfe menue_hilfe{form1,          ereignisse,       verzeichnis,     werte,
                           platform.shell, platform.dialogs, platform.desktop};
    Nummernpruefung nummernpruefung{platform.desktop, [this](Form_Nummernpruefung& form) {
                                        return std::make_unique<Nummernfenster>(
                                            form, verzeichnis, platform.desktop, platform.dialogs,
                                            platform.progress, [this] { return zustand.AktuellerPfad(); },
                                            [this](const std::string& pfad) { ImHauptfensterOeffnen(pfad); });
                                    }};
    Datensicherung datensicherung{platform.desktop, [this](Form_Datensicherung& form) {
                                      return std::make_unique<Sicherungsfenster>(
                                          form, form1, einstellungen, verzeichnis, platform.desktop,
                                          platform.dialogs, platform.clock, platform.progress);
                                  }};
    Rueckspielfenster rueckspielfenster{verzeichnis,
                                        platform.desktop,
                                        platform.dialogs,
                                        platform.progress,
                                        {[this] { return hauptfenster.ArbeitSichern(); },
                                         [this] {
                                             einstellungsschreiber.SPEICHERN_GESPERRT = true;
                                             hauptfenster.SofortBeenden();
                                         }}};
    Startfenster startfenster{form_start, werte, verzeichnis, platform.clock,
                              [this] { HauptfensterZeigen(); }};
    std::string startrechnung; ///< what the program was started with
};

Programm::Programm(Platform platform, std::string verzeichnis)
    : teile_(std::make_unique<Teile>(platform, std::move(verzeichnis))) {}

Programm::~Programm() = default;

void Programm::starten(const std::string& rechnung) {
    teile_->startrechnung = rechnung;
    teile_->form_start.Show();
}

void Programm::hauptfenster_zeigen() {
    teile_->form1.Show();
}

Form& Programm::hauptfenster() {
    return teile_->form1;
}

} // namespace quittika
