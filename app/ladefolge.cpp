#include "app/ladefolge.hpp"

#include "platform/forms/twips.hpp"
#include "settings/fensterstatus.hpp"

#include <algorithm>

namespace quittika {

namespace {

constexpr int kRahmen = twips(40); ///< title bar and the desktop's own bar

} // namespace

Ladefolge::Ladefolge(Form1& form1, Rechnungszustand& zustand, const Desktop& desktop,
                     const Programmverzeichnis& verzeichnis, Einstellungsstart& einstellungsstart, Logo& logo,
                     ErsteRechnung& erste_rechnung, Raster& raster, Summen& summen)
    : form1_(form1),
      zustand_(zustand),
      desktop_(desktop),
      verzeichnis_(verzeichnis),
      einstellungsstart_(einstellungsstart),
      logo_(logo),
      erste_rechnung_(erste_rechnung),
      raster_(raster),
      summen_(summen) {}

void Ladefolge::Form_Load() {
    if (geladen_) {
        return;
    }
    {
        const Rechnungszustand::Sperre still(zustand_);
        einstellungsstart_.Laden();
        FENSTERSTATUS_LADEN(form1_, verzeichnis_);
        logo_.LayoutZeigen();
        erste_rechnung_.Beginnen();
        Zentrieren();
        raster_.CMD_Seite1_Click(0);
        raster_.BUTTON_SEITENFREIGABE();
        summen_.jetztberechnen_List();
    }
    geladen_ = true;
    zustand_.als_gespeichert_merken();
}

void Ladefolge::Zentrieren() {
    const int breite = desktop_.screen_width();
    const int hoehe = desktop_.screen_height();
    form1_.Width = std::min(breite, form1_.Width());
    form1_.Height = std::min(hoehe - kRahmen, form1_.Height());
    form1_.Left = (breite - form1_.Width()) / 2;
    form1_.Top = (hoehe - form1_.Height()) / 2;
}

} // namespace quittika
