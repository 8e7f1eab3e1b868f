#include "settings/belegeinstellung.hpp"

#include "settings/einstellungsanzeige.hpp"

namespace quittika {

namespace {

void texte(Form1& form1, const frm_einstellungen& einstellungen) {
    for (int block = 0; block < 2; ++block) {
        if (!einstellungen.check_uebern_f_aktuellerechnung[block].ticked()) {
            continue;
        }
        for (int n = 1; n <= 4; ++n) {
            form1.Text_Bemerkung(n)[block].Text = einstellungen.Text_Bemerkung(n)[block].Text();
        }
    }
}

void rechnungsart(Form1& form1, const frm_einstellungen& einstellungen) {
    form1.Text_rechnung.Text = einstellungen.Text_rechnung.Text();
    form1.Check_mwst.Value = einstellungen.Check_mwst.Value();
    form1.Option_mwst_plus.Value = einstellungen.Option_mwst_plus.Value();
    form1.Option_mwst_minus.Value = einstellungen.Option_mwst_minus.Value();
    form1.Option_inkl_MwSt.Value = einstellungen.Option_inkl_MwSt.Value();
}

} // namespace

void BELEG_EINSTELLEN(Form1& form1, frm_einstellungen& einstellungen, PROGRAMMEINSTELLUNG& werte,
                      Vorgaben& vorgaben) {
    werte.WAEHRUNG = einstellungen.Text_Waehrung.Text();
    WAEHRUNG_IN_PREISKOEPFE(einstellungen, werte);
    vorgaben.SpaltenBenennen();
    texte(form1, einstellungen);
    rechnungsart(form1, einstellungen);
    werte.MWST_SATZ1 = einstellungen.Text_MwSt.Text();
    werte.MWST_SATZ2 = einstellungen.Text_MwSt2.Text();
    vorgaben.SaetzeZeigen();
}

} // namespace quittika
