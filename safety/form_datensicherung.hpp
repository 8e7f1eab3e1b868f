#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// The whole shop in one file.
struct Form_Datensicherung : Form {
    Form_Datensicherung()
        : Form("Form_Datensicherung", "Datensicherung", {.width = twips(640), .height = twips(430)}) {
        Command_Sichern.Default.adopt(true);
    }

    Label Label_Letzte{*this, "Label_Letzte"}; ///< when and where the last one was made
    Label Label_Erklaerung{
        *this, "Label_Erklaerung",
        "Alle Dateien des Programms (Einstellungen, Kunden, Artikel, Design, Textvorlagen, Zähler, Bilder "
        "und "
        "frühere Fassungen) kommen in eine ZIP-Datei, dazu die Rechnungen aus diesen Ordnern:"};
    ListBox List_Ordner{*this, "List_Ordner"};
    CommandButton Command_Ordner_hinzu{*this, "Command_Ordner_hinzu", "Ordner &hinzufügen..."};
    CommandButton Command_Ordner_weg{*this, "Command_Ordner_weg", "Ordner &entfernen"};
    Label Label_Status{*this, "Label_Status"}; ///< what the last command has come to
    CommandButton Command_Sichern{*this, "Command_Sichern", "&Jetzt sichern..."};
    CommandButton Command_Schliessen{*this, "Command_Schliessen", "S&chließen"};
};

} // namespace quittika
