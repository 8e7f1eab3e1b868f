#include "print/druckauftrag.hpp"

#include "invoice/file/hindernis.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/print_surface.hpp"
#include "print/nachsichtiges_geraet.hpp"
#include "print/pdfname.hpp"

#include <memory>
#include <utility>

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

Druckauftrag::Druckauftrag(Form1& form1, const frm_einstellungen& einstellungen,
                           const PROGRAMMEINSTELLUNG& programm, Dialogs& dialogs, Printing& printing,
                           const Lieferscheinoptionen& lieferscheinoptionen,
                           std::function<void()> jetztberechnen_List)
    : form1_(form1),
      einstellungen_(einstellungen),
      dialogs_(dialogs),
      printing_(printing),
      lieferscheinoptionen_(lieferscheinoptionen),
      jetztberechnen_List_(std::move(jetztberechnen_List)),
      rechnungsdruck_(form1, einstellungen, programm) {}

std::string Druckauftrag::auftragstitel() const {
    return "QK-> " + form1_.Text_Kunde_1.Text() + " " + form1_.Text_rechnung.Text() + " " +
           form1_.Text_RNnr.Text();
}

void Druckauftrag::Command_printform_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    const Druckjustierung just = JUSTIERUNG_LESEN(einstellungen_);
    status("BERECHNEN...");
    jetztberechnen_List_();
    try {
        const Druckoptionen optionen{lieferscheinoptionen_.check_LIEFERSCHEIN_PRINT()};
        status("BERECHNEN...DRUCKEN...");
        drucke(just, optionen);
        status("DRUCKEN...");
    } catch (const Laufzeitfehler& fehler) {
        if (fehler.nummer() == fehler::kDialogAbgebrochen) {
            status("DRUCKEN ABGEBROCHEN.");
            return;
        }
        status("FEHLER BEIM DRUCKEN!");
        form1_.Hinweise.melden(DRUCKHINDERNIS(fehler));
    }
}

void Druckauftrag::drucke(Druckjustierung just, const Druckoptionen& optionen) {
    const int exemplare = dialogs_.choose_printer({1, PDFNAME_VORSCHLAGEN(form1_, einstellungen_)});
    form1_.Text1.Text = std::to_string(exemplare);
    if (LAYOUT_GEWAEHLT(einstellungen_) == 0) {
        form1_.Hinweise.melden("Es ist kein Layout gewählt, deshalb wurde nichts gedruckt.");
        return;
    }
    exemplare_drucken(exemplare, just, optionen);
    if (const std::string datei = printing_.output_file(); !datei.empty()) {
        form1_.Hinweise.melden("Die PDF-Datei liegt hier: " + datei);
    }
}

void Druckauftrag::exemplare_drucken(int anzahl, Druckjustierung just, const Druckoptionen& optionen) {
    int fertig = 0;
    try {
        while (fertig < anzahl) {
            status("BERECHNEN...DRUCKEN...BLATT: " + std::to_string(fertig + 1) + "/" +
                   std::to_string(anzahl));
            drucke_exemplar(just, optionen);
            ++fertig;
        }
    } catch (const Laufzeitfehler&) {
        if (fertig > 0) {
            form1_.Hinweise.melden("Gedruckt: " + std::to_string(fertig) + " von " + std::to_string(anzahl) +
                                   " Exemplaren.");
        }
        throw;
    }
}

void Druckauftrag::drucke_exemplar(Druckjustierung just, const Druckoptionen& optionen) {
    const std::unique_ptr<PrintDevice> drucker = printing_.printer({auftragstitel()});
    NachsichtigesGeraet geraet(*drucker);
    PrintSurface surface(geraet, printing_.metrics());
    rechnungsdruck_.DRUCKE_RECHNUNG(surface, just, optionen);
    if (!geraet.fehlendes_bild().empty()) {
        form1_.Hinweise.melden("Ohne das Bild " + geraet.fehlendes_bild() + " gedruckt.");
    }
    form1_.Hinweise.melden(geraet.ueberdruck().hinweis());
}

} // namespace quittika
