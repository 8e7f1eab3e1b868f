#pragma once

#include "invoice/file/dateibefehle.hpp"
#include "invoice/positionen.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/script/script_dialogs.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <stdlib.h>

namespace quittika {

struct StehendeUhr : Clock {
    Zeitpunkt zeit{2008, 3, 5, 10, 20, 30};
    Zeitpunkt now() const override { return zeit; }
};

/// A folder of its own, gone at the end.
class Probenordner {
public:
    Probenordner() {
        const std::filesystem::path speicher = "/dev/shm"; // where writing through to the disk costs nothing
        const auto wurzel =
            std::filesystem::exists(speicher) ? speicher : std::filesystem::temp_directory_path();
        std::string muster = (wurzel / "quittika-XXXXXX").string();
        ordner_ = mkdtemp(muster.data());
    }
    Probenordner(const Probenordner&) = delete;
    Probenordner& operator=(const Probenordner&) = delete;
    ~Probenordner() {
        std::error_code egal;
        std::filesystem::remove_all(ordner_, egal);
    }
    std::string pfad(const std::string& name) const {
        return (std::filesystem::path(ordner_) / name).string();
    }
    const std::string& ordner() const { return ordner_; }
    std::string schreiben(const std::string& name, const std::string& bytes) const {
        std::ofstream(pfad(name), std::ios::binary) << bytes;
        return pfad(name);
    }
    std::string lesen(const std::string& name) const {
        std::ifstream datei(pfad(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(datei), {}};
    }

private:
    std::string ordner_;
};

/// The invoice with all its modules, without a window.
struct Pruefstand {
    ScriptDialogs dialoge;
    StehendeUhr uhr;
    Probenordner ordner;
    Programmverzeichnis verzeichnis{ordner.ordner()};
    PROGRAMMEINSTELLUNG werte;
    Rechnungszustand zustand;
    Form1 form1;
    frm_einstellungen einstellungen;
    frm_Programm programm;
    Eingabezeile eingabezeile{form1, dialoge};
    Rechnung rechnung{form1, zustand, eingabezeile, uhr};
    Vorgaben vorgaben{form1, einstellungen, programm, werte};
    Summen summen{form1, einstellungen, zustand, eingabezeile, uhr, [] { return 1; }};
    Positionen positionen{form1, zustand, eingabezeile, rechnung, summen, [](int) { return ""; }};
    Rechnungsnummern nummern{form1, einstellungen, zustand, verzeichnis, dialoge};
    Einstellungstabelle einstellungstabelle = EINSTELLUNGSTABELLE(form1, einstellungen, programm, werte);
    Einstellungsschreiber einstellungsschreiber{form1, einstellungstabelle, verzeichnis, dialoge};
    ZuletztGeoeffnet zuletzt{form1, werte, einstellungsschreiber};
    Dateistand stand;
    Rechnungsschreiber schreiber{form1, werte, zustand, verzeichnis, stand, dialoge, uhr};
    Rechnungsleser leser{form1, werte, zustand, rechnung, stand, dialoge};
    Rechnungssperre sperre{uhr};
    Dateibefehle befehle{form1,   zustand,   rechnung, vorgaben, summen,  stand,
                         dialoge, schreiber, leser,    nummern,  zuletzt, sperre};

    Pruefstand() {
        rechnung.RechnungLeeren();
        summen.jetztberechnen_List();
    }

    void zeile(const std::string& menge, const std::string& leistung, const std::string& preis) {
        form1.Text_Menge.Text = menge;
        form1.Text_leistung.Text = leistung;
        form1.Text_preis.Text = preis;
        positionen.Cmd_Add_To_list_Click();
    }
    bool speichern(const std::string& name) {
        dialoge.queue(choice::File{ordner.pfad(name)});
        return befehle.m_speichern_Click();
    }
    bool oeffnen(const std::string& name) {
        const bool gelesen = befehle.oeffneRN(ordner.pfad(name));
        summen.jetztberechnen_List();
        return gelesen;
    }
};

} // namespace quittika
