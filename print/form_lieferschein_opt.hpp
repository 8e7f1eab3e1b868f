#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// What a delivery note shows besides its rows.
struct Form_Lieferschein_opt : Form {
    Form_Lieferschein_opt()
        : Form("Form_Lieferschein_opt", "Lieferschein", {.width = twips(380), .height = twips(214)}) {
        Check_LIEFERSCH_ANSCHREIBEN.ToolTipText.adopt("Das Anschreiben druckt nur das eigene Layout");
        Check_LIEFERSCH_PREISE.ToolTipText.adopt("Das eigene Layout druckt auf Lieferscheinen keine Preise");
    }
    CheckBox Check_LIEFERSCH_WERBESPRUCH{*this, "Check_LIEFERSCH_WERBESPRUCH", "Werbespruch drucken..."};
    CheckBox Check_LIEFERSCH_BEMERKUNGSTEXT{*this, "Check_LIEFERSCH_BEMERKUNGSTEXT",
                                            "Bemerkungstext drucken..."};
    CheckBox Check_LIEFERSCH_ANSCHREIBEN{*this, "Check_LIEFERSCH_ANSCHREIBEN", "Anschreiben drucken..."};
    CheckBox Check_LIEFERSCH_PREISE{*this, "Check_LIEFERSCH_PREISE", "Preise drucken..."};
    CommandButton CMD_weiter{*this, "CMD_weiter", "&Weiter"};
};

} // namespace quittika
