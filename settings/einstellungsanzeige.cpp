#include "settings/einstellungsanzeige.hpp"

#include "platform/text.hpp"
#include "settings/schriftgroessen.hpp"

#include <string>

namespace quittika {

namespace {

constexpr double kTwipsJeMm = 1440 / 25.4;

} // namespace

void JUSTIERUNG_ZEIGEN(frm_einstellungen& e) {
    e.LabelDRUCKj_H.Caption = e.HScroll_druckj.Value.as_text() + " mm";
    e.LabelDRUCKj_V.Caption = e.VScrollDruckj.Value.as_text() + " mm";
    e.ShapejustierA4.Left = kJustierblatt.left + static_cast<int>(e.HScroll_druckj.Value() * kTwipsJeMm);
    e.ShapejustierA4.Top = kJustierblatt.top + static_cast<int>(e.VScrollDruckj.Value() * kTwipsJeMm);
}

void SCHRIFTGROESSEN_ZEIGEN(frm_einstellungen& e) {
    for (const Schriftgroesse& groesse : kSchriftgroessen) {
        (e.*groesse.anzeige).Caption = (e.*groesse.regler).Value.as_text();
    }
}

void BANKRAHMEN_ZEIGEN(frm_einstellungen& e) {
    e.Frame_Bankverb_Vorlage.Visible = e.Option_BankVerb_Vorgabe.Value();
    e.Frame_Bankverb_Zeilen.Visible = e.Option_BankVerb_ZweiZeile.Value();
}

void FREIGABEN_ZEIGEN(frm_einstellungen& e) {
    e.Text_Bankverb2.Enabled = e.Check_Bankverb_Zeile2.ticked();
    e.Text_Bankverb3.Enabled = e.Check_Bankverb_Zeile3.ticked();
    e.Check_MitLogoadresseFFSeite.Enabled = e.Option_RN_RK_Kopf_nurErsteSeite.Value();
}

void FETTSCHRIFT_ZEIGEN(frm_einstellungen& e) {
    e.Text_firma_1.FontBold = e.Check_FETT_firma1.ticked();
}

void WAEHRUNG_IN_PREISKOEPFE(frm_einstellungen& e, const PROGRAMMEINSTELLUNG& werte) {
    for (Label* kopf : {&e.Label_preis, &e.Label_gesamtp}) {
        for (const std::string anfang : {"Einzelpreis[", "Gesamtpreis["}) {
            const std::string& text = kopf->Caption();
            // What stands behind the currency is the user's own wording.
            if (beginnt_mit(text, anfang) && text.find(']') == text.size() - 1) {
                kopf->Caption = anfang + werte.WAEHRUNG + "]";
            }
        }
    }
}

void SPALTENNAMEN_ZEIGEN(frm_einstellungen& e) {
    for (const auto& [zugeordnet, neu] : e.Spaltennamen()) {
        neu.Text = zugeordnet.Caption();
    }
}

void DRUCKERSCHRIFT_ZEIGEN(frm_einstellungen& e, const PROGRAMMEINSTELLUNG& werte) {
    e.Frame_DRUCKERSCHRIFT.Caption = "Aktuell eingestellte Schriftart: " + werte.DRUCKERSCHRIFT;
}

} // namespace quittika
