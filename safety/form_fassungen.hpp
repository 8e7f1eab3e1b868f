#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// What the files of the program and the invoices held before.
struct Form_Fassungen : Form {
    Form_Fassungen()
        : Form("Form_Fassungen", "Frühere Fassungen", {.width = twips(1080), .height = twips(720)}) {
        Command_Schliessen.Default.adopt(false);
    }

    ComboBox Combo_Datei{*this, "Combo_Datei"};
    Label Label_Pfad{*this, "Label_Pfad"};           ///< of the file chosen
    ListBox List_Fassungen{*this, "List_Fassungen"}; ///< time, customer, number and amount, parted by "|"
    Label Label_Vergleich{*this, "Label_Vergleich"};
    ListBox List_Vergleich{*this, "List_Vergleich"}; ///< mark and the columns of a row, parted by "|"
    Frame Frame_Blatt{*this, Named("Frame_Blatt").following({0, 0, twips(420), twips(600)})};
    PictureBox Picture1{Frame_Blatt, Named("Picture1").at({0, 0, twips(420), twips(594)})};
    Label Label_Hinweis{*this, "Label_Hinweis"}; ///< what is wrong on the page, or why there is none
    CommandButton Command_Oeffnen{*this, "Command_Oeffnen", "Als ungespeicherte Rechnung &öffnen"};
    CommandButton Command_Kopie{*this, "Command_Kopie", "&Kopie speichern..."};
    CommandButton Command_Schliessen{*this, "Command_Schliessen", "S&chließen"};
};

} // namespace quittika
