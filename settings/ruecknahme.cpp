#include "settings/ruecknahme.hpp"

#include "settings/druckfarben.hpp"
#include "settings/schriftgroessen.hpp"

namespace quittika {

Ruecknahme::Ruecknahme(frm_einstellungen& e, PROGRAMMEINSTELLUNG& werte) {
    for (Control* feld : e.controls()) {
        merken(*feld);
    }
    for (const auto& spalte : e.Spaltennamen()) {
        merken(spalte.zugeordnet.Caption);
    }
    for (const Druckfarbe& farbe : kDruckfarben) {
        merken((e.*farbe.zeile).Muster.BackColor);
        merken(werte.*farbe.wert);
    }
    for (const Schriftgroesse& groesse : kSchriftgroessen) {
        merken(werte.*groesse.wert);
    }
    merken(werte.LAYOUTNUMMER);
    schrift_merken(werte);
}

void Ruecknahme::zuruecknehmen() const {
    for (const std::function<void()>& schritt : schritte_) {
        schritt();
    }
}

template <class T> void Ruecknahme::merken(Property<T>& property) {
    schritte_.emplace_back([&property, wert = property()] { property = wert; });
}

void Ruecknahme::merken(int& zahl) {
    schritte_.emplace_back([&zahl, wert = zahl] { zahl = wert; });
}

void Ruecknahme::merken(Control& feld) {
    if (auto* text = dynamic_cast<TextBox*>(&feld)) {
        merken(text->Text);
    } else if (auto* haekchen = dynamic_cast<CheckBox*>(&feld)) {
        merken(haekchen->Value);
    } else if (auto* option = dynamic_cast<OptionButton*>(&feld)) {
        merken(option->Value);
    } else if (auto* regler = dynamic_cast<RangeControl*>(&feld)) {
        merken(regler->Value);
    } else if (auto* bild = dynamic_cast<PictureControl*>(&feld)) {
        merken(bild->Picture);
    }
}

/// The invoice in hand gets its font back unless it has become another invoice meanwhile.
void Ruecknahme::schrift_merken(PROGRAMMEINSTELLUNG& werte) {
    schritte_.emplace_back([&werte, neue = werte.DRUCKERSCHRIFT, rechnung = werte.RECHNUNGSSCHRIFT] {
        if (werte.RECHNUNGSSCHRIFT == werte.DRUCKERSCHRIFT && werte.DRUCKERSCHRIFT != neue) {
            werte.RECHNUNGSSCHRIFT = rechnung;
        }
        werte.DRUCKERSCHRIFT = neue;
    });
}

} // namespace quittika
