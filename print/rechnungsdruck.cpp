#include "print/rechnungsdruck.hpp"

#include "invoice/belegtexte.hpp"
#include "print/girodruck.hpp"
#include "print/summenblock.hpp"

namespace quittika {

void Rechnungsdruck::kopf(Blatt& blatt, bool erste_seite, const Lieferscheinangaben& angaben) const {
    if (erste_seite || einstellungen_.Option_RN_Kopf_alleSeiten.Value()) {
        kopf_.DRUCKE_KOPF_VOLL(blatt, angaben.werbespruch || !IST_LIEFERSCHEIN(form1_));
    } else if (einstellungen_.Check_MitLogoadresseFFSeite.ticked()) {
        kopf_.DRUCKE_KOPF_LOGO(blatt);
    } else {
        kopf_.DRUCKE_KOPF_KURZ(blatt);
    }
}

bool Rechnungsdruck::mit_bemerkungen(bool letzte_seite, const Lieferscheinangaben& angaben) const {
    return (letzte_seite || einstellungen_.Option_RN_BM_alleSeite.Value()) &&
           (angaben.bemerkungen || !IST_LIEFERSCHEIN(form1_));
}

void Rechnungsdruck::seite_drucken(Blatt& blatt, const Druckseite& seite,
                                   const Druckoptionen& optionen) const {
    const Drucktabelle tabelle(form1_, einstellungen_, programm_, optionen);
    kopf(blatt, seite.erste(), optionen.lieferschein);
    tabelle.DRUCKE_POSITIONEN(blatt, seite.zeilen);
    const std::optional<double> summen =
        DRUCKE_BETRAEGE(blatt, seite, tabelle, form1_, programm_.FARBE_LINIEN);
    const SquareGrid* const code = summen && optionen.girocode ? &*optionen.girocode : nullptr;
    if (mit_bemerkungen(seite.letzte(), optionen.lieferschein)) {
        fuss_.DRUCKE_BEMERKUNGEN(blatt, code == nullptr ? 0 : GIROCODE_KASTEN(blatt, *code, *summen).unten);
    }
    fuss_.DRUCKE_FUSSZEILE(blatt, seite.nummer, seite.anzahl);
    if (code != nullptr) {
        DRUCKE_GIROCODE(blatt, *code, *summen);
    }
}

Druckvorlage Rechnungsdruck::vorbereiten(const Druckoptionen& optionen) const {
    return {DRUCKSEITEN(form1_, einstellungen_), [this, optionen](Blatt& blatt, const Druckseite& seite) {
                seite_drucken(blatt, seite, optionen);
            }};
}

} // namespace quittika
