#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// Sells with a scanner: takes codes and tells what became of them.
struct Form_Etp_Barcode : Form {
    Form_Etp_Barcode()
        : Form("Form_Etp_Barcode", "Barcode-Modus",
               {.width = twips(640), .height = twips(520), .companion = true}) {}

    Label Label_Artikel_INFO{*this, "Label_Artikel_INFO", "Bereit"};
    Frame Frame1{*this, "Frame1", "Barcode scannen oder Artikelnummer eintippen"};
    TextBox Text_Barcode{Frame1, "Text_Barcode"};
    Frame Frame2{*this, "Frame2", "Menge"};
    TextBox Text_Menge{Frame2, "Text_Menge"};
    CheckBox Check_set_Menge{Frame2, "Check_set_Menge", "Menge manuell eingeben"};
    Frame Frame3{*this, "Frame3", "Kunde"};
    CheckBox Check_NoKundenname{Frame3, "Check_NoKundenname", "Keine Kundendaten auf der Rechnung"};
    Frame Frame_gebucht{*this, "Frame_gebucht", "Zuletzt gebucht"};
    Label Label_gebucht{Frame_gebucht, "Label_gebucht", "Noch nichts"};
    Label Label_Betrag{Frame_gebucht, "Label_Betrag"};
    Frame Frame_Summe{*this, "Frame_Summe", "Gesamtbetrag"};
    Label Label_Summe{Frame_Summe, "Label_Summe"};
    CommandButton Command_Close{*this, "Command_Close", "Verlassen"};
    Timer Timer1{*this, "Timer1", 1000};
};

} // namespace quittika
