#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// What an electronic invoice needs beyond the invoice itself, and what is missing or wrong.
struct Form_ERechnung : Form {
    Form_ERechnung() : Form("Form_ERechnung", "E-Rechnung", {.width = twips(820), .height = twips(680)}) {
        Text_Verkaeufer_Land.ToolTipText.adopt("Zwei Buchstaben oder der Name: DE, AT, Frankreich");
        Text_Kaeufer_Land.ToolTipText.adopt("Zwei Buchstaben oder der Name: DE, AT, Frankreich");
        Text_Zahlungstage.ToolTipText.adopt("Tage vom Rechnungsdatum bis zur Fälligkeit, 0 für sofort");
        Text_Kaeufer_Leitweg_ID.ToolTipText.adopt(
            "Die nennt der öffentliche Auftraggeber, zum Beispiel 04011000-1234512345-06");
        Check_GiroCode.ToolTipText.adopt("Banking-Apps lesen daraus die Überweisung");
        List_Maengel.ToolTipText.adopt("Ein Klick führt zum Feld, mit der Tastatur die Eingabetaste");
        Frame_Bezug.Visible.adopt(false);
        Label_Vorschlag.Visible.adopt(false);
        Command_ZUGFeRD.Enabled.adopt(false);
        Command_XRechnung.Enabled.adopt(false);
    }

    SSTab SSTab1{*this, "SSTab1", {"&Verkäufer", "&Käufer"}};

    Container& Seite_Verkaeufer = SSTab1.page(0);
    TextBox Text_Verkaeufer_Name{Seite_Verkaeufer, "Text_Verkaeufer_Name"};
    TextBox Text_Verkaeufer_Strasse{Seite_Verkaeufer, "Text_Verkaeufer_Strasse"};
    TextBox Text_Verkaeufer_PLZ{Seite_Verkaeufer, "Text_Verkaeufer_PLZ"};
    TextBox Text_Verkaeufer_Ort{Seite_Verkaeufer, "Text_Verkaeufer_Ort"};
    TextBox Text_Verkaeufer_Land{Seite_Verkaeufer, "Text_Verkaeufer_Land"};
    TextBox Text_Verkaeufer_USt_IdNr{Seite_Verkaeufer, "Text_Verkaeufer_USt_IdNr"};
    TextBox Text_Verkaeufer_Steuernummer{Seite_Verkaeufer, "Text_Verkaeufer_Steuernummer"};
    TextBox Text_Verkaeufer_Kontakt{Seite_Verkaeufer, "Text_Verkaeufer_Kontakt"};
    TextBox Text_Verkaeufer_Telefon{Seite_Verkaeufer, "Text_Verkaeufer_Telefon"};
    TextBox Text_Verkaeufer_E_Mail{Seite_Verkaeufer, "Text_Verkaeufer_E_Mail"};
    TextBox Text_Verkaeufer_IBAN{Seite_Verkaeufer, "Text_Verkaeufer_IBAN"};
    TextBox Text_Verkaeufer_BIC{Seite_Verkaeufer, "Text_Verkaeufer_BIC"};
    TextBox Text_Zahlungstage{Seite_Verkaeufer, "Text_Zahlungstage"};
    TextBox Text_Skonto_Prozent{Seite_Verkaeufer, "Text_Skonto_Prozent"};
    TextBox Text_Skonto_Tage{Seite_Verkaeufer, "Text_Skonto_Tage"};
    ComboBox Combo_Befreiungsgrund{Seite_Verkaeufer, "Combo_Befreiungsgrund"};
    TextBox Text_Befreiungstext{Seite_Verkaeufer, "Text_Befreiungstext"};
    CheckBox Check_GiroCode{Seite_Verkaeufer, "Check_GiroCode",
                            "&GiroCode auf Rechnungen drucken, links neben den Beträgen"};

    Container& Seite_Kaeufer = SSTab1.page(1);
    TextBox Text_Kaeufer_Name{Seite_Kaeufer, "Text_Kaeufer_Name"};
    TextBox Text_Kaeufer_Zusatz{Seite_Kaeufer, "Text_Kaeufer_Zusatz"};
    TextBox Text_Kaeufer_Strasse{Seite_Kaeufer, "Text_Kaeufer_Strasse"};
    TextBox Text_Kaeufer_PLZ{Seite_Kaeufer, "Text_Kaeufer_PLZ"};
    TextBox Text_Kaeufer_Ort{Seite_Kaeufer, "Text_Kaeufer_Ort"};
    TextBox Text_Kaeufer_Land{Seite_Kaeufer, "Text_Kaeufer_Land"};
    TextBox Text_Kaeufer_USt_IdNr{Seite_Kaeufer, "Text_Kaeufer_USt_IdNr"};
    TextBox Text_Kaeufer_E_Mail{Seite_Kaeufer, "Text_Kaeufer_E_Mail"};
    TextBox Text_Kaeufer_Leitweg_ID{Seite_Kaeufer, "Text_Kaeufer_Leitweg_ID"};

    Frame Frame_Bezug{*this, "Frame_Bezug", "Bezug auf eine andere Rechnung"};
    ComboBox Combo_Belegart{
        Frame_Bezug, "Combo_Belegart", {"bitte wählen", "Gutschrift (381)", "Rechnungskorrektur (384)"}};
    TextBox Text_Bezug_Nummer{Frame_Bezug, "Text_Bezug_Nummer"};
    TextBox Text_Bezug_Datum{Frame_Bezug, "Text_Bezug_Datum"};

    Label Label_Vorschlag{*this, "Label_Vorschlag",
                          "Vorschläge sind eingetragen: bitte prüfen. Speichern und OK merken sie."};
    Label Label_Stand{*this, "Label_Stand"}; ///< what can be saved
    ListBox List_Maengel{*this, "List_Maengel"};

    CommandButton Command_ZUGFeRD{*this, "Command_ZUGFeRD", "Als &ZUGFeRD-PDF speichern..."};
    CommandButton Command_XRechnung{*this, "Command_XRechnung", "Als &XRechnung speichern..."};
    CommandButton Command_OK{*this, "Command_OK", "&OK"};
    CommandButton Command_Abbrechen{*this, "Command_Abbrechen", "&Abbrechen"};

    Timer Timer_Stand{*this, "Timer_Stand", 500}; ///< looks whether the invoice has changed
};

} // namespace quittika
