#include "print/druckauftrag.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/print_surface.hpp"
#include "print/drucktabelle.hpp"
#include "print/firmenkopf.hpp"
#include "print/nachsichtiges_geraet.hpp"

#include <memory>
#include <utility>

namespace quittika {

Druckauftrag::Druckauftrag(Form1& form1, const frm_einstellungen& einstellungen,
                           const PROGRAMMEINSTELLUNG& programm, Dialogs& dialogs, Printing& printing,
                           Desktop& desktop, std::function<void()> jetztberechnen_List)
    : form1_(form1),
      einstellungen_(einstellungen),
      dialogs_(dialogs),
      printing_(printing),
      desktop_(desktop),
      jetztberechnen_List_(std::move(jetztberechnen_List)),
      rechnungsdruck_(form1, einstellungen, programm, lieferschein_opt_) {
    lieferschein_opt_.CMD_weiter.Click = [this] { lieferschein_opt_.Close(); };
}

void Druckauftrag::check_LIEFERSCHEIN_PRINT() {
    if (!IST_LIEFERSCHEIN(form1_)) {
        return;
    }
    if (lieferschein_opt_.desktop() == nullptr) {
        desktop_.adopt(lieferschein_opt_);
    }
    lieferschein_opt_.Show(Modality::Modal);
}

std::string Druckauftrag::auftragstitel() const {
    return "QK-> " + form1_.Text_Kunde_1.Text() + " " + form1_.Text_rechnung.Text() + " " +
           form1_.Text_RNnr.Text();
}

void Druckauftrag::Command_printform_Click() {
    const Druckjustierung just = JUSTIERUNG_LESEN(einstellungen_);
    status("BERECHNEN...");
    jetztberechnen_List_();
    check_LIEFERSCHEIN_PRINT();
    status("BERECHNEN...DRUCKEN...");
    try {
        drucke(just);
        status("DRUCKEN...");
    } catch (const Laufzeitfehler& fehler) {
        status(fehler.nummer() == fehler::kDialogAbgebrochen ? "DRUCKEN ABGEBROCHEN."
                                                             : "FEHLER BEIM DRUCKEN!");
    }
}

void Druckauftrag::drucke(Druckjustierung just) {
    const int exemplare = dialogs_.choose_printer(1);
    const std::string titel = auftragstitel();
    form1_.Text1.Text = std::to_string(exemplare);
    for (int i = 1; i <= exemplare; ++i) {
        status("BERECHNEN...DRUCKEN...BLATT: " + std::to_string(i) + "/" + std::to_string(exemplare));
        drucke_exemplar(titel, just);
    }
}

void Druckauftrag::drucke_exemplar(const std::string& titel, Druckjustierung just) {
    if (LAYOUT_GEWAEHLT(einstellungen_) == 0) {
        return;
    }
    const std::unique_ptr<PrintDevice> drucker = printing_.printer(titel);
    NachsichtigesGeraet geraet(*drucker);
    PrintSurface surface(geraet, printing_.metrics());
    rechnungsdruck_.DRUCKE_RECHNUNG(surface, just);
}

} // namespace quittika
