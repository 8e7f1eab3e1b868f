#include "settings/einstellungsuebernahme.hpp"

#include "settings/druckfarben.hpp"
#include "settings/einstellungsanzeige.hpp"

namespace quittika {

void Einstellungsuebernahme::ALLEUEBERNEHMEN(bool schliessen) {
    werte_.WAEHRUNG = einstellungen_.Text_Waehrung.Text();
    WAEHRUNG_IN_PREISKOEPFE(einstellungen_, werte_);
    vorgaben_.SpaltenBenennen();
    logo_.BilderNehmen();
    TexteUebernehmen();
    RechnungsartUebernehmen();
    werte_.MWST_SATZ1 = einstellungen_.Text_MwSt.Text();
    werte_.MWST_SATZ2 = einstellungen_.Text_MwSt2.Text();
    vorgaben_.SaetzeZeigen();
    logo_.LayoutZeigen();
    stil_.FARBEN_WAEHLEN();
    stil_.Command_Vorschau_Click();
    form1_.Check_datum.Value = programm_.Check_datum.Value();
    DRUCKFARBEN_UEBERNEHMEN(werte_, einstellungen_);
    schreiber_.VORLAEUFIG_ENDET();
    schreiber_.EINSTELLUNGEN_SPEICHERN();
    if (schliessen) {
        einstellungen_.Hide();
    }
}

void Einstellungsuebernahme::TexteUebernehmen() {
    for (int block = 0; block < 2; ++block) {
        if (!einstellungen_.check_uebern_f_aktuellerechnung[block].ticked()) {
            continue;
        }
        for (int n = 1; n <= 4; ++n) {
            form1_.Text_Bemerkung(n)[block].Text = einstellungen_.Text_Bemerkung(n)[block].Text();
        }
    }
}

void Einstellungsuebernahme::RechnungsartUebernehmen() {
    form1_.Text_rechnung.Text = einstellungen_.Text_rechnung.Text();
    form1_.Check_mwst.Value = einstellungen_.Check_mwst.Value();
    form1_.Option_mwst_plus.Value = einstellungen_.Option_mwst_plus.Value();
    form1_.Option_mwst_minus.Value = einstellungen_.Option_mwst_minus.Value();
    form1_.Option_inkl_MwSt.Value = einstellungen_.Option_inkl_MwSt.Value();
}

} // namespace quittika
