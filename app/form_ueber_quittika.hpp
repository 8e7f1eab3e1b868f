#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// The about box.
struct Form_ueber_QUITTIKA : Form {
    Form_ueber_QUITTIKA()
        : Form("Form_ueber_QUITTIKA", "über QUITTIKA", {.width = twips(440), .height = twips(280)}) {
        Text_Funktion.Locked.adopt(true);
    }
    Label Label_Name{*this, "Label_Name", "QUITTIKA 2008"};
    Label Label_Version{*this, "Label_Version"};
    TextBox Text_Funktion{
        *this, "Text_Funktion",
        "Rechnungen, Lieferscheine und Kopien für kleine Betriebe: schreiben, speichern, drucken.\r\n"
        "\r\n"
        "Alle Daten stehen in einfachen Textdateien, die sich mit jedem Editor lesen lassen."};
    CommandButton Command_OK{*this, "Command_OK", "OK"};
};

} // namespace quittika
