#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// The article list.
struct Form_Artikelverwaltung : Form {
    Form_Artikelverwaltung()
        : Form("Form_Artikelverwaltung", "Artikelliste",
               {.width = twips(1000), .height = twips(600), .companion = true}) {
        List_Artikelnverwaltung.ToolTipText.adopt(
            "1) Artikelmarkieren... 2) Nochmals auf markierten Artikel klicken und mit gedrückter Maustaste "
            "in die Rechnung auf ein >>Leistung-Feld<< ziehen.");
        Frame_Hilfe.Visible.adopt(false);
        Frame_Artikelhinzufuegen.Visible.adopt(false);
        Command_OK.Default.adopt(true);
    }

    Menu m_extras{*this, "m_extras", "Extras"};
    Menu m_artikel_exp{*this, "m_artikel_exp", "Aktuelle Artikelliste exportieren"};
    Menu m_ARTK_IMP{*this, "m_ARTK_IMP", "Artikelliste importieren"};
    Menu m_Abbrechen{*this, "m_Abbrechen", "Abbrechen"}; ///< for its shortcut only

    TextBox Text_suchen{*this, "Text_suchen"};
    CommandButton Command_weitersuchen{*this, "Command_weitersuchen", "&Weitersuchen"};
    Label Label_Suche{*this, "Label_Suche"}; ///< what the search found
    Frame Frame1{*this, "Frame1", "Artikel nach Artikel-/Barcode-Nr. finden"};
    TextBox Text_such_Barcode{Frame1, "Text_such_Barcode"};
    CommandButton Command_such{Frame1, "Command_such", "Artikel finden!"};
    CommandButton Command_neuerArtikel{*this, "Command_neuerArtikel", "Neuen Artikel zur Liste hinzufügen"};
    CommandButton Command_HELP{*this, "Command_HELP", "?"};
    Frame Frame_Hilfe{*this, "Frame_Hilfe", "Hilfe"};
    Label Label_Hilfetext{
        Frame_Hilfe, "Label_Hilfetext",
        "Um einen Artikel in die Rechnung zu übertragen, markieren Sie den Artikel mit einem Mausklick "
        "(linke Taste) in der Liste. Dann drücken Sie >>OK<<. Der Preis wird automatisch übernommen. Ihre "
        "Artikeldaten werden im Programmverzeichnis in der Datei >>Artikelliste.txt<< gespeichert. Sie "
        "sollten diese Datei regelmässig sichern."};

    Frame Frame_Artikelhinzufuegen{*this, "Frame_Artikelhinzufuegen", "Neuen Artikel hinzufügen..."};
    Label Label_Leistung{Frame_Artikelhinzufuegen, "Label_Leistung", "Artikel"};
    TextBox Text_leistung{Frame_Artikelhinzufuegen, "Text_leistung"};
    Label Label_preis{Frame_Artikelhinzufuegen, "Label_preis", "Einzelpreis"};
    TextBox Text_preis{Frame_Artikelhinzufuegen, "Text_preis", "0,00"};
    Label Label1{Frame_Artikelhinzufuegen, "Label1", "Artikel-/Barcode-Nr."};
    TextBox Text_Barcode{Frame_Artikelhinzufuegen, "Text_Barcode"};
    CommandButton Command_Artikelhinzufuegen{Frame_Artikelhinzufuegen, "Command_Artikelhinzufuegen",
                                             "neuer Artikel aufnehmen"};
    CommandButton Command_ART_ABBRECHEN{Frame_Artikelhinzufuegen, "Command_ART_ABBRECHEN", "Fertig"};

    Label Label_Hinweis{*this, "Label_Hinweis"}; ///< how an article is taken over
    /// A row each of `ARTIKEL`, in the same order.
    ListBox List_Artikelnverwaltung{
        *this, Named("List_Artikelnverwaltung").following({180, 2400, twips(970), twips(350)})};
    CommandButton Command_delete{*this, "Command_delete", "Markierten Eintrag löschen"};
    CommandButton Command_OK{*this, "Command_OK", "OK (->> Zur Rechnung) "};
    CommandButton Command_Abbrechen{*this, "Command_Abbrechen", "Abbrechen"};
    Timer Timer1{*this, "Timer1", 1500}; ///< keeps the window in front
};

} // namespace quittika
