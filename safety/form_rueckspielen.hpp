#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// What a backup holds, to choose from.
struct Form_Rueckspielen : Form {
    Form_Rueckspielen()
        : Form("Form_Rueckspielen", "Sicherung zurückspielen", {.width = twips(760), .height = twips(480)}) {
        Command_Zurueck.Default.adopt(true);
    }

    Label Label_Datei{*this, "Label_Datei"}; ///< the backup and its time
    Label Label_Kopf{*this, "Label_Kopf"};   ///< heads over the list
    ListBox List_Teile{*this, "List_Teile"}; ///< a row for each part, with its tick
    Label Label_Ort{*this, "Label_Ort"};     ///< where the marked part goes
    CommandButton Command_Wahl{*this, "Command_Wahl", "&An- oder abwählen"};
    CommandButton Command_Alle{*this, "Command_Alle", "A&lle"};
    CommandButton Command_Keine{*this, "Command_Keine", "&Keine"};
    Label Label_Hinweis{*this, "Label_Hinweis"}; ///< what is chosen, and what will happen
    CommandButton Command_Zurueck{*this, "Command_Zurueck", "&Zurückspielen"};
    CommandButton Command_Abbrechen{*this, "Command_Abbrechen", "Abbrechen"};
};

} // namespace quittika
