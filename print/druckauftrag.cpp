#include "print/druckauftrag.hpp"

#include "platform/laufzeitfehler.hpp"
#include "print/belegausgabe.hpp"
#include "print/dokumentnamen.hpp"

#include <utility>

namespace quittika {

namespace {

constexpr Druckworte kWorte{"BERECHNEN...DRUCKEN...BLATT: ", "DRUCKEN ABGEBROCHEN.", kAusweg};

} // namespace

Druckauftrag::Druckauftrag(Form1& form1, const frm_einstellungen& einstellungen, Belegdruck& belegdruck,
                           Dialogs& dialogs, Printing& printing,
                           const Lieferscheinoptionen& lieferscheinoptionen,
                           std::function<void()> vor_der_ausgabe)
    : form1_(form1),
      einstellungen_(einstellungen),
      belegdruck_(belegdruck),
      lieferscheinoptionen_(lieferscheinoptionen),
      vor_der_ausgabe_(std::move(vor_der_ausgabe)),
      exemplare_(form1, dialogs, printing, kWorte) {}

void Druckauftrag::Command_printform_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    const Druckjustierung just = JUSTIERUNG_LESEN(einstellungen_);
    status("BERECHNEN...");
    vor_der_ausgabe_();
    try {
        const Druckoptionen optionen{lieferscheinoptionen_.check_LIEFERSCHEIN_PRINT()};
        status("BERECHNEN...DRUCKEN...");
        drucke(just, optionen);
        status("DRUCKEN...");
    } catch (const Laufzeitfehler& fehler) {
        exemplare_.gescheitert(fehler);
    }
}

void Druckauftrag::drucke(Druckjustierung just, const Druckoptionen& optionen) {
    const int anzahl = exemplare_.drucker_waehlen(PDFNAME_VORSCHLAGEN(form1_, einstellungen_));
    if (LAYOUT_GEWAEHLT(einstellungen_) == 0) {
        form1_.Hinweise.melden("Es ist kein Layout gewählt, deshalb wurde nichts gedruckt.");
        return;
    }
    const Druckvorlage vorlage = belegdruck_.vorbereiten(optionen);
    exemplare_.drucken(anzahl, AUFTRAGSTITEL(form1_),
                       [just, &vorlage](PrintSurface& surface) { vorlage.DRUCKEN(surface, just); });
}

} // namespace quittika
