#include "print/rechnungsdruck.hpp"

#include "invoice/belegtexte.hpp"
#include "print/seitenumbruch.hpp"
#include "print/summenblock.hpp"

#include <string>
#include <vector>

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

void Rechnungsdruck::DRUCKE_RECHNUNG(PrintSurface& surface, Druckjustierung just,
                                     const Druckoptionen& optionen) const {
    Blatt blatt{surface, just};
    const Drucktabelle tabelle(form1_, einstellungen_, programm_, optionen);
    const std::vector<Zeilenbereich> seiten =
        Seitenumbruch(form1_.List_K.items(), ZEILENPROSEITE(einstellungen_));
    const int anzahl = static_cast<int>(seiten.size());
    std::string uebertrag = "0";
    for (int seite = 1; seite <= anzahl; ++seite) {
        const Zeilenbereich zeilen = seiten[static_cast<std::size_t>(seite - 1)];
        const bool letzte = seite == anzahl;
        if (seite > 1) {
            surface.NewPage();
        }
        kopf(blatt, seite == 1, optionen.lieferschein);
        tabelle.DRUCKE_POSITIONEN(blatt, zeilen);
        if (tabelle.zeigt_preise()) {
            if (seite > 1) {
                tabelle.DRUCKE_UEBERTRAG(blatt, uebertrag);
            }
            if (letzte) {
                DRUCKE_SUMMENBLOCK(blatt, form1_, programm_.FARBE_LINIEN, tabelle.spalten().X_Gesamt);
            } else {
                uebertrag = tabelle.DRUCKE_ZWISCHENSUMME(blatt, zeilen, uebertrag);
            }
        }
        if (mit_bemerkungen(letzte, optionen.lieferschein)) {
            fuss_.DRUCKE_BEMERKUNGEN(blatt);
        }
        fuss_.DRUCKE_FUSSZEILE(blatt, seite, anzahl);
    }
    surface.EndDoc();
}

} // namespace quittika
