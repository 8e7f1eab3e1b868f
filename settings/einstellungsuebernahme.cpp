#include "settings/einstellungsuebernahme.hpp"

#include "invoice/rechnung.hpp"
#include "settings/belegeinstellung.hpp"
#include "settings/druckfarben.hpp"

namespace quittika {

void Einstellungsuebernahme::ALLEUEBERNEHMEN(bool schliessen) {
    BELEG_EINSTELLEN(form1_, einstellungen_, werte_, vorgaben_);
    logo_.BilderNehmen();
    logo_.LayoutZeigen();
    stil_.FARBEN_WAEHLEN();
    stil_.Command_Vorschau_Click();
    DatumAutomatisch(form1_, zustand_, programm_.Check_datum.Value());
    DRUCKFARBEN_UEBERNEHMEN(werte_, einstellungen_);
    schreiber_.VORLAEUFIG_ENDET(einstellungen_);
    schreiber_.EINSTELLUNGEN_SPEICHERN();
    if (schliessen) {
        einstellungen_.Hide();
    }
}

} // namespace quittika
