#include "print/pdfausgabe.hpp"

#include "print/ausgabedatei.hpp"
#include "print/belegausgabe.hpp"
#include "print/dokumentnamen.hpp"
#include "tools/dokument_oeffnen.hpp"

#include <memory>
#include <utility>

namespace quittika {

namespace {

constexpr const char* kEndung = ".pdf";

} // namespace

Pdfausgabe::Pdfausgabe(Form1& form1, const frm_einstellungen& einstellungen, Belegdruck& belegdruck,
                       const Lieferscheinoptionen& lieferscheinoptionen, Printing& printing, Dialogs& dialogs,
                       Shell& shell, std::function<void()> vor_der_ausgabe)
    : form1_(form1),
      einstellungen_(einstellungen),
      belegdruck_(belegdruck),
      lieferscheinoptionen_(lieferscheinoptionen),
      printing_(printing),
      dialogs_(dialogs),
      shell_(shell),
      vor_der_ausgabe_(std::move(vor_der_ausgabe)) {}

void Pdfausgabe::m_Rechnung_pdf_export_Click() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    vor_der_ausgabe_();
    try {
        ausgeben({lieferscheinoptionen_.check_LIEFERSCHEIN_PRINT()});
    } catch (const Laufzeitfehler& fehler) {
        AUSGABEFEHLER_MELDEN(fehler, form1_, dialogs_);
    }
}

void Pdfausgabe::ausgeben(const Druckoptionen& optionen) {
    if (LAYOUT_GEWAEHLT(einstellungen_) == 0) {
        form1_.Hinweise.melden("Es ist kein Layout gewählt, deshalb wurde nichts gespeichert.");
        return;
    }
    FileDialog dialog;
    dialog.filter = "PDF-Dateien (*.pdf)|*.pdf";
    dialog.proposed_name = form1_.Text_rechnung.Text() + form1_.Text_RNnr.Text() + kEndung;
    dialog.title = "Als PDF speichern";
    dialog.asks_before_replacing = false;
    std::string pfad = dialogs_.save_file(dialog);
    if (OHNE_ENDUNG(pfad, kEndung) == pfad) {
        pfad += kEndung;
    }
    if (!ERSETZEN_ERLAUBT({pfad}, dialogs_)) {
        return;
    }
    SCHREIBEN(pfad, optionen);
    form1_.Hinweise.melden("Die PDF-Datei liegt hier: " + pfad);
    OEFFNEN_ANBIETEN(pfad, pfad, dialogs_, shell_);
}

void Pdfausgabe::SCHREIBEN(const std::string& pfad, const Druckoptionen& optionen) {
    const PrintDocument dokument{
        DOKUMENTTITEL(form1_, einstellungen_), {}, 1, einstellungen_.Text_firma_1.Text()};
    const std::unique_ptr<PrintDevice> geraet = printing_.pdf(pfad, dokument);
    const Druckvorlage vorlage = belegdruck_.vorbereiten(optionen);
    const auto zeichnen = [&](PrintSurface& surface) {
        vorlage.DRUCKEN(surface, JUSTIERUNG_LESEN(einstellungen_));
    };
    const Zeichenbefund befund = AUSGEBEN(*geraet, dokument, printing_.metrics(), kAusweg, zeichnen);
    form1_.Hinweise.melden(befund.hinweis("gespeichert"));
}

} // namespace quittika
