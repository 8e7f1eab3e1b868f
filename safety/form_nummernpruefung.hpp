#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// Gaps and doubles among the numbers of a folder's invoices.
struct Form_Nummernpruefung : Form {
    Form_Nummernpruefung()
        : Form("Form_Nummernpruefung", "Rechnungsnummern prüfen",
               {.width = twips(820), .height = twips(560)}) {
        Command_Pruefen.Default.adopt(true);
    }

    CommandButton Command_Ordner{*this, "Command_Ordner", "&Ordner..."};
    Label Label_Ordner{*this, "Label_Ordner"};
    CheckBox Check_Unterordner{*this, "Check_Unterordner", "mit &Unterordnern"};
    CommandButton Command_Pruefen{*this, "Command_Pruefen", "&Prüfen"};
    Label Label_Zusammenfassung{*this, "Label_Zusammenfassung"};
    ListBox List_Befund{*this, "List_Befund"};
    ListBox List_Dateien{*this, Named("List_Dateien").data_only()}; ///< file of each row, empty for none
    CommandButton Command_Oeffnen{*this, "Command_Oeffnen", "Rechnung ö&ffnen"};
    CommandButton Command_Speichern{*this, "Command_Speichern", "Als &Text speichern..."};
    Label Label_Status{*this, "Label_Status"};
    CommandButton Command_Schliessen{*this, "Command_Schliessen", "S&chließen"};
};

} // namespace quittika
