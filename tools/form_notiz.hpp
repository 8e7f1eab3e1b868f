#pragma once

#include "invoice/form1.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// The note of the invoice in hand.
struct Form_Notiz : Form {
    Form_Notiz()
        : Form("Form_Notiz", "Notiz", {.width = twips(440), .height = twips(320), .companion = true}) {
        Cmd_Schliessen.ToolTipText.adopt(
            "Info: Damit die Notiz dauerhaft gespeichert wird, müssen Sie die Rechnung abspeichern. ");
    }
    TextBox Text_Notiz{*this, "Text_Notiz", vorgabe::kNotiz};
    CommandButton Cmd_Schliessen{*this, "Cmd_Schliessen", "Schliessen"};
};

} // namespace quittika
