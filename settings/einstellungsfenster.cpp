#include "settings/einstellungsfenster.hpp"

#include "invoice/programmname.hpp"
#include "settings/druckfarben.hpp"
#include "settings/einstellungsanzeige.hpp"
#include "settings/feldhinweise.hpp"

namespace quittika {

Einstellungsfenster::Einstellungsfenster(frm_einstellungen& einstellungen, PROGRAMMEINSTELLUNG& werte,
                                         Rechnungszustand& zustand, Einstellungsuebernahme& uebernahme,
                                         Einstellungsschreiber& schreiber, Rechnungsnummern& nummern,
                                         Logo& logo, Bilderwahl& bilder, Summen& summen, Dialogs& dialogs)
    : form_(einstellungen),
      werte_(werte),
      zustand_(zustand),
      uebernahme_(uebernahme),
      schreiber_(schreiber),
      nummern_(nummern),
      logo_(logo),
      bilder_(bilder),
      summen_(summen),
      dialogs_(dialogs) {
    form_.Load = [this] {
        form_.Label_Lieferschein.Caption = "LIEFERSCHEIN ZU: ";
        form_.Label_Kopie.Caption = "         KOPIE   ";
    };
    form_.Command_uebernehmen2.Click = [this] { Command_uebernehmen2_Click(); };
    form_.Command_nichtuebernehmen.Click = [this] { Command_nichtuebernehmen_Click(); };
    form_.QueryUnload = [this](bool& abbrechen) {
        abbrechen = true; // the window only hides: its fields are needed until the program ends
        Command_nichtuebernehmen_Click();
    };
}

void Einstellungsfenster::m_Rechnungsdaten_Click() {
    if (!form_.shown()) {
        const Rechnungszustand::Sperre still(zustand_);
        DRUCKVORLAGE(form_, werte_);
        Anzeigen();
        StandMerken();
    }
    form_.Show();
}

void Einstellungsfenster::m_druckjustierung_Click() {
    form_.SSTab1.Tab = form_.SSTab1.index_of(form_.Seite_Justierung);
    m_Rechnungsdaten_Click();
    form_.HScroll_druckj.SetFocus();
}

void Einstellungsfenster::UEBERNEHMEN(bool schliessen) {
    uebernahme_.ALLEUEBERNEHMEN(schliessen);
    summen_.jetztberechnen_List();
    if (schliessen) {
        in_kraft_.reset();
    } else {
        StandMerken();
    }
}

void Einstellungsfenster::Command_uebernehmen2_Click() {
    UEBERNEHMEN(true);
    bilder_.DAUERHAFT_ANBIETEN();
}

void Einstellungsfenster::Command_nichtuebernehmen_Click() {
    if (dialogs_.message({"Sind Sie sicher, dass Sie keine Änderungen speichern möchten?", kProgrammname,
                          Buttons::YesNo, Symbol::Question, Answer::No}) != Answer::Yes) {
        return;
    }
    if (in_kraft_) {
        const Rechnungszustand::Sperre still(zustand_);
        in_kraft_->zuruecknehmen();
        bilder_.verwerfen();
        in_kraft_.reset();
        schreiber_.VORLAEUFIG_ENDET(form_);
        Anzeigen();
        logo_.LayoutZeigen();
        nummern_.ZaehlerAuffrischen();
    }
    summen_.jetztberechnen_List();
    form_.Hide();
}

void Einstellungsfenster::Anzeigen() {
    BANKRAHMEN_ZEIGEN(form_);
    FREIGABEN_ZEIGEN(form_);
    FETTSCHRIFT_ZEIGEN(form_);
    SCHRIFTGROESSEN_ZEIGEN(form_);
    JUSTIERUNG_ZEIGEN(form_);
    SPALTENNAMEN_ZEIGEN(form_);
    DRUCKERSCHRIFT_ZEIGEN(form_, werte_);
    FELDHINWEISE_ZEIGEN(form_);
}

void Einstellungsfenster::StandMerken() {
    in_kraft_.emplace(form_, werte_);
    schreiber_.VORLAEUFIG_BEGINNT(form_);
}

} // namespace quittika
