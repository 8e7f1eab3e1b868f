#include "settings/einstellungsfelder.hpp"

#include "invoice/programmname.hpp"
#include "settings/druckfarben.hpp"
#include "settings/einstellungsanzeige.hpp"
#include "settings/feldhinweise.hpp"
#include "settings/schriftgroessen.hpp"
#include "settings/wahldialog.hpp"

#include <cstddef>
#include <utility>

namespace quittika {

namespace {

constexpr int kEingabetaste = 13;

} // namespace

Einstellungsfelder::Einstellungsfelder(frm_einstellungen& einstellungen, PROGRAMMEINSTELLUNG& werte,
                                       const Rechnungszustand& zustand, Rechnungsnummern& nummern,
                                       Dialogs& dialogs)
    : form_(einstellungen), werte_(werte), zustand_(zustand), dialogs_(dialogs) {
    texte_verdrahten();
    nummern_verdrahten(nummern);
    bank_verdrahten();
    seite_verdrahten();
    layouts_verdrahten();
    farben_verdrahten();
    spalten_verdrahten();
    schrift_verdrahten();
}

Einstellungsfelder::Ereignis Einstellungsfelder::vom_benutzer(Ereignis tun) const {
    return [&zustand = zustand_, tun = std::move(tun)] {
        if (!zustand.gesperrt()) {
            tun();
        }
    };
}

void Einstellungsfelder::texte_verdrahten() {
    form_.Check_FETT_firma1.Click = vom_benutzer([this] { FETTSCHRIFT_ZEIGEN(form_); });
    for (TextBox* feld : {&form_.Text_firma_1, &form_.Text_firma_2, &form_.Text_firma_3, &form_.Text_firma_4,
                          &form_.Text_firma_5, &form_.Text_firma_6, &form_.Text_firma_7, &form_.Text_firma_8,
                          &form_.Text_IBAN, &form_.Text_MwSt, &form_.Text_MwSt2}) {
        feld->Change = vom_benutzer([this] { FELDHINWEISE_ZEIGEN(form_); });
    }
    for (const Schriftgroesse& groesse : kSchriftgroessen) {
        (form_.*groesse.regler).Change = vom_benutzer([this, &groesse] {
            werte_.*groesse.wert = (form_.*groesse.regler).Value();
            SCHRIFTGROESSEN_ZEIGEN(form_);
        });
    }
}

void Einstellungsfelder::nummern_verdrahten(Rechnungsnummern& nummern) {
    form_.Command_RNSTartwertSET.Click = [&nummern] { nummern.Command_RNSTartwertSET_Click(); };
    form_.Text_RNStartwert.KeyDown = [&nummern](int taste) {
        if (taste == kEingabetaste) {
            nummern.Command_RNSTartwertSET_Click();
        }
    };
    for (Control* wahl : {static_cast<Control*>(&form_.Slider_RNFORMAT),
                          static_cast<Control*>(&form_.Check_RN_automatisch)}) {
        wahl->Click = vom_benutzer([&nummern] { nummern.NummerAuffrischen(); });
    }
}

void Einstellungsfelder::bank_verdrahten() {
    for (OptionButton* wahl : {&form_.Option_BankVerb_Vorgabe, &form_.Option_BankVerb_ZweiZeile}) {
        wahl->Click = vom_benutzer([this] { BANKRAHMEN_ZEIGEN(form_); });
    }
    for (CheckBox* zeile : {&form_.Check_Bankverb_Zeile2, &form_.Check_Bankverb_Zeile3}) {
        zeile->Click = vom_benutzer([this] { FREIGABEN_ZEIGEN(form_); });
    }
}

void Einstellungsfelder::seite_verdrahten() {
    for (OptionButton* kopf : {&form_.Option_RN_Kopf_alleSeiten, &form_.Option_RN_RK_Kopf_nurErsteSeite}) {
        kopf->Click = vom_benutzer([this] { FREIGABEN_ZEIGEN(form_); });
    }
    for (RangeControl* richtung : {static_cast<RangeControl*>(&form_.HScroll_druckj),
                                   static_cast<RangeControl*>(&form_.VScrollDruckj)}) {
        richtung->Change = vom_benutzer([this] { JUSTIERUNG_ZEIGEN(form_); });
    }
}

void Einstellungsfelder::layouts_verdrahten() {
    int nummer = 0;
    for (OptionButton* layout : form_.Layouts()) {
        layout->Click = vom_benutzer([this, n = ++nummer] { werte_.LAYOUTNUMMER = n; });
    }
    std::size_t n = 0;
    for (Image* bild : form_.Layoutbilder()) {
        bild->Click = [layout = form_.Layouts().at(n++)] { layout->user_click(); };
    }
}

void Einstellungsfelder::farben_verdrahten() {
    for (const Druckfarbe& farbe : kDruckfarben) {
        frm_einstellungen::Farbzeile& zeile = form_.*farbe.zeile;
        zeile.Command_FARBE.Click = [this, &zeile] { FARBE_WAEHLEN(zeile); };
        for (Slider* regler : {&zeile.R, &zeile.G, &zeile.B}) {
            regler->Click = vom_benutzer([this, &zeile] {
                FARBE_SETZEN(zeile, color::rgb(zeile.R.Value(), zeile.G.Value(), zeile.B.Value()));
            });
        }
    }
}

void Einstellungsfelder::spalten_verdrahten() {
    form_.CMD_Zuordnung.Click = [this] {
        for (const auto& [zugeordnet, neu] : form_.Spaltennamen()) {
            zugeordnet.Caption = neu.Text();
        }
    };
}

void Einstellungsfelder::schrift_verdrahten() {
    form_.Command_DRUCKERSCHRIFT.Click = [this] { Command_DRUCKERSCHRIFT_Click(); };
    form_.Command_DRUCKERSCHRIFT_Reset.Click = [this] { DRUCKERSCHRIFT_SETZEN("Arial"); };
}

/// The sliders do not follow: what is printed is the sample.
void Einstellungsfelder::FARBE_WAEHLEN(frm_einstellungen::Farbzeile& zeile) {
    const auto dialog = [&] { return dialogs_.choose_color(zeile.Muster.BackColor()); };
    if (const auto farbe = WAHL(dialogs_, "Die Farbe", dialog)) {
        FARBE_SETZEN(zeile, *farbe);
    }
}

void Einstellungsfelder::FARBE_SETZEN(frm_einstellungen::Farbzeile& zeile, Color farbe) {
    zeile.Muster.BackColor = farbe;
    DRUCKFARBEN_UEBERNEHMEN(werte_, form_);
}

void Einstellungsfelder::Command_DRUCKERSCHRIFT_Click() {
    const auto dialog = [&] { return dialogs_.choose_font(werte_.DRUCKERSCHRIFT); };
    if (const auto name = WAHL(dialogs_, "Die Schrift", dialog)) {
        DRUCKERSCHRIFT_SETZEN(*name);
    }
}

void Einstellungsfelder::DRUCKERSCHRIFT_SETZEN(const std::string& name) {
    werte_.DRUCKERSCHRIFT = name;
    werte_.RECHNUNGSSCHRIFT = name;
    DRUCKERSCHRIFT_ZEIGEN(form_, werte_);
    dialogs_.message(
        {"Die Schrift wurde auf " + name + " gesetzt.", kProgrammname, Buttons::Ok, Symbol::Information});
}

} // namespace quittika
