#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// The choice of a directory.
struct Form_VerzWahlAuftrag : Form {
    Form_VerzWahlAuftrag()
        : Form("Form_VerzWahlAuftrag", "Verzeichnis wählen", {.width = twips(520), .height = twips(480)}) {
        Command_OK.Default.adopt(true);
    }

    DriveListBox Drive1{*this, "Drive1"};
    DirListBox Dir1{*this, "Dir1"};
    TextBox Text_VerzWahl{*this, "Text_VerzWahl"}; ///< the directory chosen, or typed
    Label Label_Hinweis{*this, "Label_Hinweis"};   ///< why what was typed is none
    CommandButton Command_OK{*this, "Command_OK", "Ok"};
    CommandButton Command_Cancel{*this, "Command_Cancel", "Cancel"};
};

} // namespace quittika
