#pragma once

#include "invoice/hinweiszeile.hpp"
#include "platform/forms/controls.hpp"

namespace quittika {

/// Values that a reset puts into the fields of an invoice.
namespace vorgabe {
inline constexpr const char* kTitel = "RECHNUNG";
inline constexpr const char* kKunde1 = "Name, Vorname";
inline constexpr const char* kKunde2 = "Strasse, Hausnr";
inline constexpr const char* kKunde3 = "PLZ, Wohnort";
inline constexpr const char* kKunde4 = "Tel.:";
inline constexpr const char* kKundennr = "Kundennr:";
inline constexpr const char* kNotiz = "Es liegen keine Notizen vor...";
inline constexpr const char* kMenge = "0";
inline constexpr const char* kLeistung = "+  +  +  +  +  +  +  +  +  +  +  +  +  +  +  +  +  +  +  +  +  + ";
inline constexpr const char* kBetrag = "0,00";
inline constexpr const char* kVersandtext = "Versandkosten:";
inline constexpr const char* kVersandMwSt = "Versandk.-MwSt.:";
} // namespace vorgabe

/// The main window. Its controls are the invoice in hand.
struct Form1 : Form {
    Form1();

    static constexpr int kSeiten = 4;         ///< pages of the grid
    static constexpr int kZeilenProSeite = 9; ///< rows on a page of the grid

    // --- menu ---
    Menu m_neu{*this, "m_neu", "&Neu"};
    Menu m_oeffnen{*this, "m_oeffnen", "&Öffnen"};
    Menu m_speichern{*this, "m_speichern", "&Speichern unter..."};
    Menu m_speichern_direkt{*this, "m_speichern_direkt", "Änderungen s&peichern"};
    Menu m_speichern_kurz{*this, "m_speichern_kurz", "Speichern"}; ///< for its shortcut only
    Menu m_Rechnung_txt_export{*this, "m_Rechnung_txt_export", "Rechnung als Textdatei exportieren..."};
    Menu m_Rechnung_bmp_export{*this, "m_Rechnung_bmp_export",
                               "Rechnung als Bilddatei (*.bmp) exportieren..."};
    Menu m_Drucken{*this, "m_Drucken", "&Rechnung drucken..."};
    Menu m_Vorschau{*this, "m_Vorschau", "Druckvorschau..."};
    Menu m_Rechnung_pdf_export{*this, "m_Rechnung_pdf_export", "Als PDF speichern..."};
    Menu m_ERechnung{*this, "m_ERechnung", "&E-Rechnung..."};
    Menu m_Mail{*this, "m_Mail", "Per E-&Mail senden..."};
    Menu m_Pflichtangaben{*this, "m_Pflichtangaben", "P&flichtangaben prüfen..."};
    Menu m_druckenBRIEF{*this, "m_druckenBRIEF", "&Briefumschlag bedrucken..."};
    Menu m_druckenpaketschein{*this, "m_druckenpaketschein", "&Paketschein bedrucken..."};
    Menu m_druckenpaketscheinHVersand{*this, "m_druckenpaketscheinHVersand",
                                      "Paketschein (&H-Versand) bedrucken..."};
    Menu m_druckenpaeckchenschein{*this, "m_druckenpaeckchenschein", "P&äckchenschein bedrucken..."};
    Menu m_druckjustierung{*this, "m_druckjustierung", "Druckjustierung aufrufen"};
    Menu m_R1{*this, "m_R1"};
    Menu m_R2{*this, "m_R2"};
    Menu m_R3{*this, "m_R3"};
    Menu m_Fassungen{*this, "m_Fassungen", "&Frühere Fassungen..."};
    Menu m_beenden{*this, "m_beenden", "&Beenden"};
    Menu m_rueckgaengig{*this, "m_rueckgaengig", "&Rückgängig"};
    Menu m_wiederholen{*this, "m_wiederholen", "&Wiederholen"};
    Menu m_wiederholen_kurz{*this, "m_wiederholen_kurz", "Wiederholen"}; ///< for its shortcut only
    Menu m_Rechnungsdaten{*this, "m_Rechnungsdaten", "Rechnungseinstellungen"};
    Menu m_Programmeinstellungen{*this, "m_Programmeinstellungen", "Programmeinstellungen"};
    Menu m_Kundenliste{*this, "m_Kundenliste", "Kundenliste"};
    Menu m_Artikelliste{*this, "m_Artikelliste", "Artikelliste"};
    Menu m_Schlagwortsuche{*this, "m_Schlagwortsuche", "&Schlagwortsuche"};
    Menu m_eingabezeile{*this, "m_eingabezeile", "&Zur Eingabezeile"};
    Menu m_start_analyzer{*this, "m_start_analyzer", "Starte Manager + Analyzer..."};
    Menu m_startdesigner{*this, "m_startdesigner", "Starte Designer..."};
    Menu m_nummern_pruefen{*this, "m_nummern_pruefen", "&Nummern prüfen..."};
    Menu m_datensicherung{*this, "m_datensicherung", "&Datensicherung..."};
    Menu m_zurueckspielen{*this, "m_zurueckspielen", "&Sicherung zurückspielen..."};
    Menu m_updatesuchen{*this, "m_updatesuchen", "jetzt nach einer neueren Quittika Version suchen..."};
    Menu m_Hilfe_Fenster{*this, "m_Hilfe_Fenster", "Hilfe zu diesem &Fenster"};
    Menu m_Benutzerhandbuch_html{*this, "m_Benutzerhandbuch_html", "Benutzerhandbuch (HTML)"};
    Menu m_Benutzerhandbuch_pdf{*this, "m_Benutzerhandbuch_pdf", "Benutzerhandbuch (PDF)"};
    Menu m_ErsteRechnungerstellen{*this, "m_ErsteRechnungerstellen",
                                  "Anleitung: ''Erste Rechnung erstellen'' (PDF)"};
    Menu m_hilfe{*this, "m_hilfe", "&Hilfe im Internet"};
    Menu m_website{*this, "m_website", "&Quittika im Internet"};
    Menu ueber_QUITTIKA{*this, "ueber_QUITTIKA", "über QUITTIKA..."};

    // --- menu of a row of the position list ---
    Menu m_Zeile_aendern{*this, "m_Zeile_aendern", "Än&dern"};
    Menu m_Zeile_loeschen{*this, "m_Zeile_loeschen", "&Löschen"};
    Menu m_Zeile_kommentar{*this, "m_Zeile_kommentar", "&Kommentar davor"};
    Menu m_Zeile_umbruch{*this, "m_Zeile_umbruch", "&Seitenumbruch"};
    Menu m_Zeile_hoch{*this, "m_Zeile_hoch", "nach &oben"};
    Menu m_Zeile_runter{*this, "m_Zeile_runter", "nach &unten"};

    // --- command buttons of the tool area ---
    Frame Frame_drucke{*this, "Frame_drucke"};
    CommandButton Command_jetztSpeichern{Frame_drucke, "Command_jetztSpeichern", "&Speichern unter..."};
    CommandButton Command_printform{Frame_drucke, "Command_printform", "&Rechnung drucken..."};
    CommandButton Command_Druckvorschau{Frame_drucke, "Command_Druckvorschau", "Druckvorschau..."};
    CommandButton CMD_AS_BILD{Frame_drucke, "CMD_AS_BILD", "Als Bild speichern..."};
    CommandButton Command_Kundenliste{Frame_drucke, "Command_Kundenliste", "Kundenliste"};
    CommandButton Command_Artikelliste{Frame_drucke, "Command_Artikelliste", "Artikelliste"};
    CommandButton Cmd_Barcode{Frame_drucke, "Cmd_Barcode", "Barcode-Modus"};
    CommandButton Command1{Frame_drucke, "Command1", "Analyzer..."};
    CommandButton Command2{Frame_drucke, "Command2", "Designer..."};
    TextBox Text1{Frame_drucke, Named("Text1").data_only(), "1"}; ///< copies of the last print job

    // --- document kind ---
    Frame Frame_rechnung{*this, "Frame_rechnung", "D&okument"};
    OptionButton Option_RECHNUNG{Frame_rechnung, "Option_RECHNUNG", "Rechnung"};
    OptionButton Option_RECHNUNG_KOPIE{Frame_rechnung, "Option_RECHNUNG_KOPIE", "Rechnungskopie"};
    OptionButton Option_LIEFERSCHEIN{Frame_rechnung, "Option_LIEFERSCHEIN", "Lieferschein"};
    OptionButton Option_LIEFERSCHEIN_KOPIE{Frame_rechnung, "Option_LIEFERSCHEIN_KOPIE", "Lieferscheinkopie"};
    TextBox Text_rechnung{Frame_rechnung, "Text_rechnung", vorgabe::kTitel};
    TextBox Text_RNnr{Frame_rechnung, "Text_RNnr"};
    TextBox Text_Datum{Frame_rechnung, "Text_Datum"};
    CheckBox Check_datum{Frame_rechnung, "Check_datum", "automatisch"};
    CheckBox Check_LIEFERDATUM{Frame_rechnung, "Check_LIEFERDATUM", "Lieferdatum"};
    TextBox Text_LIEFERDATUM{Frame_rechnung, "Text_LIEFERDATUM", " "};

    // --- customer ---
    Frame Frame_Kundendaten{*this, "Frame_Kundendaten", "Ku&nde"};
    TextBox Text_Kunde_1{Frame_Kundendaten, "Text_Kunde_1", vorgabe::kKunde1};
    TextBox Text_Kunde_2{Frame_Kundendaten, "Text_Kunde_2", vorgabe::kKunde2};
    TextBox Text_Kunde_3{Frame_Kundendaten, "Text_Kunde_3", vorgabe::kKunde3};
    TextBox Text_Kunde_4{Frame_Kundendaten, "Text_Kunde_4", vorgabe::kKunde4};
    CheckBox Check_tele_nichtdrucken{Frame_Kundendaten, "Check_tele_nichtdrucken", "Telefon nicht drucken"};
    TextBox Text_KundennrK{Frame_Kundendaten, "Text_KundennrK", vorgabe::kKundennr};
    CommandButton Command_KD_Add{Frame_Kundendaten, "Command_KD_Add", "Kunde aufnehmen"};
    CommandButton CMD_FORM_HELFERLEIN{Frame_Kundendaten, "CMD_FORM_HELFERLEIN", "HELFER"};

    // --- logo, as the chosen page design shows it ---
    Frame Frame1{*this, "Frame1"};
    Image logo{Frame1, "logo"};
    Image logo600x200Pixel{Frame1, "logo600x200Pixel"};
    Image Logo200x400{Frame1, "Logo200x400"};
    Image logo760x140Pixel{Frame1, "logo760x140Pixel"};
    Image Image_hintergrund{*this, "Image_hintergrund"};
    Image Image_WASSERZ{*this, "Image_WASSERZ"};

    // --- input line ---
    Frame Frame_ADDs{*this, "Frame_ADDs"};
    CheckBox Check_K{Frame_ADDs, "Check_K", "K"};
    TextBox Text_Menge{Frame_ADDs, "Text_Menge", vorgabe::kMenge};
    TextBox Text_leistung{Frame_ADDs, "Text_leistung", vorgabe::kLeistung};
    TextBox Text_preis{Frame_ADDs, "Text_preis", vorgabe::kBetrag};
    TextBox Text_gesamtp{Frame_ADDs, "Text_gesamtp", vorgabe::kBetrag};
    CommandButton Cmd_Add_To_list{Frame_ADDs, "Cmd_Add_To_list", "&Hinzufügen"};
    CommandButton Command_AENDERN{Frame_ADDs, "Command_AENDERN", "&Ändern"};
    CommandButton md_Del_artikel{Frame_ADDs, "md_Del_artikel", "L&öschen"};
    CommandButton Command_Trennzeile{Frame_ADDs, "Command_Trennzeile", "Seitenum&bruch"};
    CommandButton Command_PLUS_LIST{Frame_ADDs, "Command_PLUS_LIST", "Artike&l..."};
    CheckBox Check_mengenartDECIMAL{Frame_ADDs, "Check_mengenartDECIMAL", "Menge mit Nachkommastellen"};
    CheckBox Check_000{Frame_ADDs, "Check_000", "Preis dreistellig (0,000)"};
    Label Label_Mengex{Frame_ADDs, "Label_Mengex", "Menge"};
    Label Label_Leistungx{Frame_ADDs, "Label_Leistungx", "Leistung"};
    Label Label_preisx{Frame_ADDs, "Label_preisx", "Einzelpreis[EUR]"};

    // --- position lists ---
    Frame Frame_LIST{*this, "Frame_LIST"};
    Label Label_Pos{Frame_LIST, "Label_Pos", "Pos."};
    Label Label_Menge{Frame_LIST, "Label_Menge", "Menge"};
    Label Label_Leistung{Frame_LIST, "Label_Leistung", "Leistung"};
    Label Label_preis{Frame_LIST, "Label_preis", "Einzelpreis[EUR]"};
    Label Label_gesamtp{Frame_LIST, "Label_gesamtp", "Gesamtpreis[EUR]"};
    ListBox List_DARSTELLUNG{Frame_LIST, "List_DARSTELLUNG"};
    ListBox List_K{Frame_LIST, "List_K"};
    ListBox List_pos{Frame_LIST, "List_pos"};
    ListBox List_Menge{Frame_LIST, "List_Menge"};
    ListBox List_Leistung{Frame_LIST, "List_Leistung"};
    ListBox List_Preis{Frame_LIST, "List_Preis"};
    ListBox List_Gesamtp{Frame_LIST, "List_Gesamtp"};

    // --- text blocks: element 0 cover letter, element 1 remarks ---
    Frame Frame3{*this, "Frame3", "Texte auf der Rechnun&g"};
    OptionButton Option_anschreiben{Frame3, "Option_anschreiben", "Anschreiben"};
    OptionButton Option_Bemerkungen{Frame3, "Option_Bemerkungen", "Bemerkungen"};
    CommandButton Cmd_Vorlagen{Frame3, "Cmd_Vorlagen", "Textvorlagen..."};
    CommandButton CMD_FORM_HELFERLEIN_Bkg{Frame3, "CMD_FORM_HELFERLEIN_Bkg", "HELFER TEXT"};
    ControlArray<Frame, 2> Frame_Bemerkungen{Frame3, "Frame_Bemerkungen"};
    ControlArray<TextBox, 2> Text_Bemerkung1{Frame_Bemerkungen, "Text_Bemerkung1"};
    ControlArray<TextBox, 2> Text_Bemerkung2{Frame_Bemerkungen, "Text_Bemerkung2"};
    ControlArray<TextBox, 2> Text_Bemerkung3{Frame_Bemerkungen, "Text_Bemerkung3"};
    ControlArray<TextBox, 2> Text_Bemerkung4{Frame_Bemerkungen, "Text_Bemerkung4"};

    // --- status and note ---
    Frame Frame_status{*this, "Frame_status", "Stat&us"};
    CheckBox Check_versendet{Frame_status, "Check_versendet", "versendet"};
    CheckBox Check_bezahlt{Frame_status, "Check_bezahlt", "bezahlt"};
    CheckBox Check_abgemahnt{Frame_status, "Check_abgemahnt", "abgemahnt"};
    ComboBox Combo1_mahnung{
        Frame_status, "Combo1_mahnung", {"Zahlungserinnerung", "1. Mahnung", "2. Mahnung", "3. Mahnung"}};
    CommandButton Cmd_Notiz{Frame_status, "Cmd_Notiz", "Notiz verfassen/ändern..."};
    TextBox Text_Notiz{Frame_status, Named("Text_Notiz").data_only(), vorgabe::kNotiz}; ///< copy of the note

    // --- discount, VAT, shipping ---
    Frame Frame6{*this, "Frame6", "Rabatt und Mehr&wertsteuer"};
    CheckBox Check_RABATT{Frame6, "Check_RABATT", "Rabatt %"};
    TextBox Text_Rabatt{Frame6, "Text_Rabatt", vorgabe::kBetrag};
    CheckBox Check_mwst{Frame6, "Check_mwst", "MwSt. %"};
    TextBox Text_MwSt{Frame6, "Text_MwSt", "19,00"};
    OptionButton Option_mwst_plus{Frame6, "Option_mwst_plus", "plus (+)"};
    OptionButton Option_mwst_minus{Frame6, "Option_mwst_minus", "minus (-)"};
    OptionButton Option_inkl_MwSt{Frame6, "Option_inkl_MwSt", "inklusive MwSt"};
    Frame Frame_MwSatz{Frame6, "Frame_MwSatz"};
    OptionButton Option_Satz1{Frame_MwSatz, "Option_Satz1", "19,00 %"};
    OptionButton Option_Satz2{Frame_MwSatz, "Option_Satz2", "7,00 %"};
    Frame Frame_Versandkosten{*this, "Frame_Versandkosten", "&Versandkosten"};
    CheckBox Check_Versandkosten{Frame_Versandkosten, "Check_Versandkosten", "berechnen"};
    TextBox Text_Versandk{Frame_Versandkosten, "Text_Versandk", vorgabe::kVersandtext};
    TextBox Text_PreisVersankostenEingabe{Frame_Versandkosten, "Text_PreisVersankostenEingabe",
                                          vorgabe::kBetrag};
    CheckBox Check_VersandMwStEXTRA{Frame_Versandkosten, "Check_VersandMwStEXTRA",
                                    "MwSt. getrennt ausweisen"};
    CheckBox Check_VersandINKL_MwSt{Frame_Versandkosten, "Check_VersandINKL_MwSt", "enthaltene MwSt. nennen"};

    // --- totals ---
    Frame Frame4{*this, "Frame4"};
    TextBox Text_summe{Frame4, "Text_summe", vorgabe::kBetrag};
    TextBox Text_summeRabatt{Frame4, "Text_summeRabatt", vorgabe::kBetrag};
    Label Label_summeNACHRABATT{Frame4, "Label_summeNACHRABATT", "Summe nach Rabatt:"};
    TextBox Text_summeNACHRABATT{Frame4, "Text_summeNACHRABATT", vorgabe::kBetrag};
    TextBox Text_summemwst{Frame4, "Text_summemwst", vorgabe::kBetrag};
    Label Label_Versandkosten{Frame4, "Label_Versandkosten", vorgabe::kVersandtext};
    TextBox Text_PreisVersankosten{Frame4, "Text_PreisVersankosten", vorgabe::kBetrag};
    Label Label_VersandkostenMWST{Frame4, "Label_VersandkostenMWST", vorgabe::kVersandMwSt};
    TextBox Text_PreisVersankostenMwST{Frame4, "Text_PreisVersankostenMwST", vorgabe::kBetrag};
    Label Label_summe{Frame4, "Label_summe", "Gesamtbetrag:"}; ///< stands beside the amount due
    TextBox Text_gesamtbetrag{Frame4, "Text_gesamtbetrag", vorgabe::kBetrag};
    Label Label_gesamtbetrag{Frame4, "Label_gesamtbetrag",
                             "Rechnungsbetrag:"}; ///< printed label, hidden here
    CommandButton Command_berechnen{Frame4, "Command_berechnen", "Bere&chnen"};

    // --- grid of four pages ---
    Frame Frame_container{*this, "Frame_container"};
    ControlArray<CommandButton, kSeiten> CMD_Seite1{Frame_container, "CMD_Seite1"};
    ControlArray<Frame, kSeiten> Frame_seite1{Frame_container, "Frame_seite1"};
    /// The controls of row `n` of the grid, an element a page.
    struct Rasterzeile {
        Rasterzeile(ControlArray<Frame, kSeiten>& seiten, int n);
        ControlArray<CheckBox, kSeiten> Check_K;
        ControlArray<TextBox, kSeiten> Text_menge;
        ControlArray<TextBox, kSeiten> Text_leistung;
        ControlArray<TextBox, kSeiten> Text_preis;
        ControlArray<TextBox, kSeiten> Text_gesamtp;
        ControlArray<CommandButton, kSeiten> Command_PLUS_;
    };
    std::array<Rasterzeile, kZeilenProSeite> Raster; ///< rows 1 to 9 at index 0 to 8

    Label Label_Pfad{*this, "Label_Pfad"}; ///< path of the file in hand
    ControlArray<StatusPanel, 3, 1> StatusBar1{*this, "StatusBar1"};
    Hinweiszeile Hinweise{StatusBar1[3]};
    Timer Timer_blink{*this, "Timer_blink", 1000};
    Timer Timer_chronjob{*this, "Timer_chronjob", 1000};
    Timer Timer_entwurf{*this, "Timer_entwurf", 2000}; ///< looks for unsaved changes that are not on disk

    bool Direktuebernahme = true; ///< a double click on an article takes it over at once

    /// Line `n` (1 to 4) of a text block.
    ControlArray<TextBox, 2>& Text_Bemerkung(int n);
    /// The six lists that hold the positions, in the order in which rows are taken out of them.
    std::array<ListBox*, 6> Positionslisten();
};

} // namespace quittika
