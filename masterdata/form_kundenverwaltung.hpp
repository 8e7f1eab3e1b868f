#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// The customer list.
struct Form_Kundenverwaltung : Form {
    Form_Kundenverwaltung()
        : Form("Form_Kundenverwaltung", "Kundenliste",
               {.width = twips(940), .height = twips(520), .companion = true}) {
        List_Kundenverwaltung.ToolTipText.adopt(
            "Sie übertragen die Kundendaten durch einen schnellen DOPPELKLICK auf den Kunden. ");
        Command_delete.ToolTipText.adopt("Markierten Eintrag löschen");
        Frame_Hilfe.Visible.adopt(false);
        Command_OK.Default.adopt(true);
    }

    Menu m_Extras{*this, "m_Extras", "Extras"};
    Menu m_kunden_EXP{*this, "m_kunden_EXP", "Aktuelle Kundenliste exportieren"};
    Menu m_KUNDE_IMP{*this, "m_KUNDE_IMP", "Kundenliste importieren"};

    TextBox Text_suchen{*this, "Text_suchen"};
    CommandButton Command_weitersuchen{*this, "Command_weitersuchen", "&Weitersuchen"};
    Label Label_Suche{*this, "Label_Suche"}; ///< what the search found
    CommandButton Command_HELP{*this, "Command_HELP", "?"};
    Frame Frame_Hilfe{*this, "Frame_Hilfe", "Hilfe"};
    Label Label_Hilfetext{
        Frame_Hilfe, "Label_Hilfetext",
        "Um einen Kunden in die Rechnung zu übertragen, markieren Sie den Kunden in der Liste und drücken "
        "dann  >>OK<<. Schneller geht's, wenn Sie den Kunden mit einem schnellen Doppelklick markieren. Ihre "
        "Kundendaten werden im Programmverzeichnis in der Datei >>Kundenliste.txt<< gespeichert. Sie sollten "
        "diese Datei regelmässig sichern."};
    ListBox List_Kundenverwaltung{*this, "List_Kundenverwaltung"}; ///< the lines of the file
    CommandButton Command_delete{*this, "Command_delete", "Markierten Eintrag löschen"};
    CommandButton Command_OK{*this, "Command_OK", "OK"};
    CommandButton Command_Abbrechen{*this, "Command_Abbrechen", "Abbrechen"};
    Timer Timer1{*this, "Timer1", 1500}; ///< keeps the window in front
};

} // namespace quittika
