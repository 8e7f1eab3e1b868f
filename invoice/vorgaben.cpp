#include "invoice/vorgaben.hpp"

#include "invoice/rechnung.hpp"
#include "invoice/zahleneingabe.hpp"
#include "platform/zahlen.hpp"

#include <string>

namespace quittika {

namespace {

std::string satztext(const std::string& satz) {
    const auto zahl = ZAHL_LESEN(satz);
    return zahl ? format_zahl(zahl->wert, "0.00") : satz;
}

} // namespace

Vorgaben::Vorgaben(Form1& form1, const frm_einstellungen& einstellungen, const frm_Programm& programm,
                   PROGRAMMEINSTELLUNG& werte)
    : form1_(form1), einstellungen_(einstellungen), programm_(programm), werte_(werte) {}

void Vorgaben::uebernehmen() {
    SpaltenBenennen();
    TexteUebernehmen();
    MwStUebernehmen();
    RabattAus();
    VersandAus();
    SchalterUebernehmen();
    werte_.RECHNUNGSSCHRIFT = werte_.DRUCKERSCHRIFT;
}

void Vorgaben::SpaltenBenennen() {
    Form1& f = form1_;
    f.Label_Pos.Caption = einstellungen_.Label_Pos.Caption();
    f.Label_Menge.Caption = einstellungen_.Label_Menge.Caption();
    f.Label_Leistung.Caption = einstellungen_.Label_Leistung.Caption();
    f.Label_preis.Caption = einstellungen_.Label_preis.Caption();
    f.Label_gesamtp.Caption = einstellungen_.Label_gesamtp.Caption();
    ZweiteKopfzeileZeigen(f);
}

void Vorgaben::TexteUebernehmen() {
    form1_.Option_anschreiben.Value = true;
    for (int n = 1; n <= 4; ++n) {
        for (int block = 0; block < 2; ++block) {
            form1_.Text_Bemerkung(n)[block].Text = einstellungen_.Text_Bemerkung(n)[block].Text();
        }
    }
}

void Vorgaben::MwStUebernehmen() {
    form1_.Check_mwst.Value = einstellungen_.Check_mwst.Value();
    form1_.Option_mwst_plus.Value = einstellungen_.Option_mwst_plus.Value();
    form1_.Option_mwst_minus.Value = einstellungen_.Option_mwst_minus.Value();
    form1_.Option_inkl_MwSt.Value = einstellungen_.Option_inkl_MwSt.Value();
    form1_.Option_Satz1.Value = true;
    SaetzeZeigen();
}

void Vorgaben::SaetzeZeigen() {
    form1_.Text_MwSt.Text = satztext(form1_.Option_Satz2.Value() ? werte_.MWST_SATZ2 : werte_.MWST_SATZ1);
    form1_.Option_Satz1.Caption = satztext(werte_.MWST_SATZ1) + " %";
    form1_.Option_Satz2.Caption = satztext(werte_.MWST_SATZ2) + " %";
}

void Vorgaben::RabattAus() {
    form1_.Check_RABATT.Value = 0;
    form1_.Text_Rabatt.Text = vorgabe::kBetrag;
}

void Vorgaben::VersandAus() {
    for (CheckBox* haekchen :
         {&form1_.Check_Versandkosten, &form1_.Check_VersandMwStEXTRA, &form1_.Check_VersandINKL_MwSt}) {
        haekchen->Value = 0;
    }
    form1_.Text_Versandk.Text = vorgabe::kVersandtext;
    form1_.Text_PreisVersankostenEingabe.Text = vorgabe::kBetrag;
    form1_.Label_VersandkostenMWST.Caption = vorgabe::kVersandMwSt;
}

void Vorgaben::SchalterUebernehmen() {
    form1_.Check_datum.Value = programm_.Check_datum.Value();
    form1_.Check_mengenartDECIMAL.Value = werte_.MENGE_DEZIMAL ? 1 : 0;
    form1_.Check_000.Value = 0;
    form1_.Check_tele_nichtdrucken.Value = 0;
}

} // namespace quittika
