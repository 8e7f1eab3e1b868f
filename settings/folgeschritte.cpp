#include "settings/folgeschritte.hpp"

#include "designer/designdatei.hpp"
#include "invoice/rechnung.hpp"
#include "platform/laufzeitfehler.hpp"
#include "settings/druckfarben.hpp"

#include <cstddef>
#include <string>
#include <utility>

namespace quittika {

void Folgeschritte::ausfuehren() {
    Bildpfade();
    Anzeigen();
    Gegenstuecke();
    Spaltenkoepfe();
    FREIGABEN_ZEIGEN(einstellungen_);
    zuletzt_.Zeigen();
    MwStUndWaehrung();
    Individualfarben();
    Layout();
    DRUCKVORLAGE(einstellungen_, werte_);
    BilderLaden();
    Programmfarben();
}

void Folgeschritte::Bildpfade() {
    einstellungen_.Text_logopath.Text = DESIGN_WERT(verzeichnis_, "IMG_LOGO");
    einstellungen_.Text_bildpath.Text = DESIGN_WERT(verzeichnis_, "IMG_WASSERZEICHEN");
}

void Folgeschritte::Anzeigen() {
    JUSTIERUNG_ZEIGEN(einstellungen_);
    SCHRIFTGROESSEN_ZEIGEN(einstellungen_);
}

void Folgeschritte::Gegenstuecke() {
    frm_einstellungen& e = einstellungen_;
    e.Option_RN_RK_Kopf_nurErsteSeite.Value = !e.Option_RN_Kopf_alleSeiten.Value();
    e.Option_RN_BM_nurletzte_Seite.Value = !e.Option_RN_BM_alleSeite.Value();
    e.Option_BankVerb_ZweiZeile.Value = !e.Option_BankVerb_Vorgabe.Value();
}

void Folgeschritte::Spaltenkoepfe() {
    form1_.Label_Pos.Caption = einstellungen_.Label_Pos.Caption();
    form1_.Label_Menge.Caption = einstellungen_.Label_Menge.Caption();
    form1_.Label_Leistung.Caption = einstellungen_.Label_Leistung.Caption();
    form1_.Label_preis.Caption = einstellungen_.Label_preis.Caption();
    form1_.Label_gesamtp.Caption = einstellungen_.Label_gesamtp.Caption();
    ZweiteKopfzeileZeigen(form1_);
}

void Folgeschritte::MwStUndWaehrung() {
    const auto mindestens = [](std::string& satz, std::string vorgabe) {
        if (satz.empty()) {
            satz = std::move(vorgabe);
        }
    };
    mindestens(werte_.MWST_SATZ1, "19");
    mindestens(werte_.MWST_SATZ2, "7");
    einstellungen_.Text_MwSt.Text = werte_.MWST_SATZ1;
    einstellungen_.Text_MwSt2.Text = werte_.MWST_SATZ2;
    einstellungen_.Text_Waehrung.Text = werte_.WAEHRUNG;
}

void Folgeschritte::Individualfarben() {
    stil_.DIALOG_ZEIGEN();
}

void Folgeschritte::Layout() {
    const int nummer = werte_.LAYOUTNUMMER;
    const bool vorhanden = nummer >= 1 && nummer <= frm_einstellungen::kLayouts;
    const auto index = static_cast<std::size_t>((vorhanden ? nummer : kEigenesLayout) - 1);
    einstellungen_.Layouts().at(index)->Value = true;
}

/// The colours of a file belong to its style, except for the user's own.
void Folgeschritte::Programmfarben() {
    if (programm_.Option_stil5.Value()) {
        stil_.FARBEN_WAEHLEN();
    }
    stil_.Command_Vorschau_Click();
}

void Folgeschritte::BilderLaden() {
    BildLaden(einstellungen_.Picture1, einstellungen_.Text_logopath.Text());
    BildLaden(einstellungen_.Picture_wasserz, einstellungen_.Text_bildpath.Text());
}

void Folgeschritte::BildLaden(PictureBox& feld, const std::string& pfad) {
    if (pfad.empty()) {
        return;
    }
    try {
        bilder_.load(feld, systempfad(pfad));
    } catch (const Laufzeitfehler&) {
        // The dialog shows the path, and the picture that will be printed instead.
    }
}

} // namespace quittika
