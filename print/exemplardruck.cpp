#include "print/exemplardruck.hpp"

#include "invoice/file/hindernis.hpp"
#include "print/belegausgabe.hpp"

#include <memory>

namespace quittika {

namespace {

/// Why a job failed, and the way out. The print system names its reason itself.
std::string DRUCKHINDERNIS(const Laufzeitfehler& fehler) {
    if (fehler.nummer() != fehler::kDrucker) {
        return SPEICHERHINDERNIS(fehler);
    }
    return fehler.ort().empty() ? "Der Drucker meldet einen Fehler: bitte prüfen und noch einmal drucken."
                                : fehler.ort();
}

} // namespace

Exemplardruck::Exemplardruck(Form1& form1, Dialogs& dialogs, Printing& printing, const Druckworte& worte)
    : form1_(form1), dialogs_(dialogs), printing_(printing), worte_(worte) {}

int Exemplardruck::drucker_waehlen(const std::string& dateiname) {
    const int anzahl = dialogs_.choose_printer({1, dateiname});
    form1_.Text1.Text = std::to_string(anzahl);
    return anzahl;
}

void Exemplardruck::drucken(int anzahl, const std::string& titel, const Zeichnung& zeichnung) {
    int fertig = 0;
    try {
        while (fertig < anzahl) {
            form1_.StatusBar1[2].Caption =
                worte_.blatt + std::to_string(fertig + 1) + "/" + std::to_string(anzahl);
            exemplar(titel, zeichnung);
            ++fertig;
        }
    } catch (const Laufzeitfehler&) {
        if (fertig > 0) {
            form1_.Hinweise.melden("Gedruckt: " + std::to_string(fertig) + " von " + std::to_string(anzahl) +
                                   " Exemplaren.");
        }
        throw;
    }
    if (const std::string datei = printing_.output_file(); !datei.empty()) {
        form1_.Hinweise.melden("Die PDF-Datei liegt hier: " + datei);
    }
}

void Exemplardruck::exemplar(const std::string& titel, const Zeichnung& zeichnung) {
    const PrintDocument dokument{titel};
    const std::unique_ptr<PrintDevice> drucker = printing_.printer(dokument);
    const Zeichenbefund befund = AUSGEBEN(*drucker, dokument, printing_.metrics(), worte_.ausweg, zeichnung);
    form1_.Hinweise.melden(befund.hinweis("gedruckt"));
}

void Exemplardruck::gescheitert(const Laufzeitfehler& fehler) {
    if (fehler.nummer() == fehler::kDialogAbgebrochen) {
        form1_.StatusBar1[2].Caption = worte_.abgebrochen;
        return;
    }
    form1_.StatusBar1[2].Caption = "FEHLER BEIM DRUCKEN!";
    form1_.Hinweise.melden(DRUCKHINDERNIS(fehler));
}

} // namespace quittika
