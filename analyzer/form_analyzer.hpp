#pragma once

#include "platform/forms/chart.hpp"
#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// All invoices of a folder: a row for each, their sums, and the state of the one that is marked.
struct Form_Analyzer : Form {
    Form_Analyzer()
        : Form("Form_Analyzer", "Rechnungsmanager + Analyzer", {.width = twips(1280), .height = twips(800)}) {
        List_dateien.Visible.adopt(false);
        Text_Notiz.Locked.adopt(true);
        CMD_Alle_zeigen.Enabled.adopt(false);
        CMD_Unbezahlte_CSV.Enabled.adopt(false);
        CMD_Diagramm_speichern.Enabled.adopt(false);
        for (Control* stand :
             {static_cast<Control*>(&Check_versendet), static_cast<Control*>(&Check_bezahlt),
              static_cast<Control*>(&Check_abgemahnt), static_cast<Control*>(&Combo1_mahnung)}) {
            stand->Enabled.adopt(false); // the state is read here, it is changed in the invoice
        }
    }

    Menu m_Info{*this, "m_Info", "Informationen zum Analyzer    ?"};

    CommandButton Command_Quellordner{*this, "Command_Quellordner", "(1.) Verzeichnis suchen..."};
    CommandButton CMD_START_ANALYSE{*this, "CMD_START_ANALYSE", "(2.) Starte Analyse..."};
    Label Label_Pfad{*this, "Label_Pfad",
                     "Bitte geben Sie ein Rechnungsverzeichnis zur Analyse an...  (Das Verzeichnis muss nur "
                     "einmalig festgelegt werden.)"};
    TextBox Text_suchen{*this, "Text_suchen"};
    CheckBox Check_nur_Unbezahlte{*this, "Check_nur_Unbezahlte", "nur &Unbezahlte"};
    CommandButton CMD_Alle_zeigen{*this, "CMD_Alle_zeigen", "&Alle zeigen"};
    Label Label_Ansicht{*this, "Label_Ansicht"}; ///< how many of the invoices are shown
    CheckBox Check_zeige_Dateiliste{*this, "Check_zeige_Dateiliste", "Zeige Dateinamen (*.qk8)"};
    ControlArray<Label, 2> Label_BESCHRIFTUNG_LISTE{*this, "Label_BESCHRIFTUNG_LISTE"};
    /// The column that sorts has an arrow for its caption.
    ControlArray<CommandButton, 11> CMD_Sortieren{*this, "CMD_Sortieren"};
    ListBox List_ANSICHT{*this, "List_ANSICHT"}; ///< a row of text for each invoice
    ListBox List_dateien{*this, "List_dateien"}; ///< the names of their files
    ControlArray<ListBox, 13> List_rohdata{*this, Named("List_rohdata").data_only()}; ///< `Rohdatum`

    SSTab SSTab_Ergebnis{*this, "SSTab_Ergebnis", {"&Zusammenfassung", "&Diagramm"}};
    ListBox List_Zusammenfassung{SSTab_Ergebnis.page(0), "List_Zusammenfassung"};
    CommandButton cmd_ErgebnisSpeichern{SSTab_Ergebnis.page(0), "cmd_ErgebnisSpeichern",
                                        "Ergebnisse abspeichern..."};
    CheckBox Check_UTF8{SSTab_Ergebnis.page(0), "Check_UTF8", "in UTF-8"};
    CommandButton CMD_Unbezahlte_CSV{SSTab_Ergebnis.page(0), "CMD_Unbezahlte_CSV", "Unbezahlte als &CSV..."};

    Chart Diagramm_Monate{SSTab_Ergebnis.page(1), "Diagramm_Monate", "Brutto nach Monat"};
    Chart Diagramm_Mahnstufen{SSTab_Ergebnis.page(1), "Diagramm_Mahnstufen", "Unbezahlt nach Mahnstufe"};
    Label Label_ohne_Datum{SSTab_Ergebnis.page(1), "Label_ohne_Datum"};
    CommandButton CMD_Diagramm_speichern{SSTab_Ergebnis.page(1), "CMD_Diagramm_speichern",
                                         "Diagramm s&peichern..."};

    Frame Frame_status{*this, "Frame_status", "Vorgangsstatus"};
    CheckBox Check_versendet{Frame_status, "Check_versendet", "bereits versendet"};
    CheckBox Check_bezahlt{Frame_status, "Check_bezahlt", "ist bezahlt"};
    CheckBox Check_abgemahnt{Frame_status, "Check_abgemahnt", "abgemahnt"};
    ComboBox Combo1_mahnung{Frame_status, "Combo1_mahnung", {"1. mal", "2. mal", "3. mal"}};
    TextBox Text_Notiz{Frame_status, "Text_Notiz", "Es liegen keine Notizen vor..."};
    CommandButton CMD_OPEN_markierte_RN{*this, "CMD_OPEN_markierte_RN", "-> Öffne markierte Rechnung"};

    Label Label_Status{*this, "Label_Status"}; ///< what the last command has come to
};

} // namespace quittika
