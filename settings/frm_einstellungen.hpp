#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// The small page of the print adjustment where nothing is shifted, in twips.
inline constexpr Place kJustierblatt{twips(47), twips(76), twips(120), twips(148)};

/// Invoice settings: its controls are the store that printing, numbering and new invoices read.
struct frm_einstellungen : Form {
    frm_einstellungen();

    static constexpr int kLayouts = 9;

    Menu m_extra{*this, "m_extra", "&Extras"};
    Menu m_export{*this, "m_export", "Einstellungen &exportieren..."};
    Menu m_import{*this, "m_import", "Einstellungen &importieren..."};
    CommandButton Command_uebernehmen2{*this, "Command_uebernehmen2", "Alle Änderungen übernehmen"};
    CommandButton Command_nichtuebernehmen{*this, "Command_nichtuebernehmen", "Änderungen nicht übernehmen"};
    SSTab SSTab1{*this,
                 "SSTab1",
                 {"Firmendaten", "Bankdaten", "Textdaten", "Mehrwertsteuer/Währung",
                  "Firmenlogo && Wasserzeichen", "Designer/Druckerschriftart", "Layouts", "Druckfarben",
                  "Drucklayout", "Justierung", "Benennungen"}};

    // --- the page that these settings make ---
    Frame Frame_Muster{*this, Named("Frame_Muster").following({0, 0, twips(360), twips(520)})};
    PictureBox Picture_Muster{Frame_Muster, Named("Picture_Muster").at({0, 0, twips(360), twips(509)})};
    Label Label_Muster{*this, "Label_Muster"}; ///< what the page shows, and what is wrong on it
    Timer Timer_Muster{*this, "Timer_Muster", 200, false};

    // --- Firmendaten ---
    Container& Seite_Firmendaten = SSTab1.page(0);
    Frame Frame1{Seite_Firmendaten, "Frame1", "Kontaktdaten"};
    TextBox Text_firma_1{Frame1, "Text_firma_1", "MUSTERFIRMA"};
    CheckBox Check_FETT_firma1{Frame1, "Check_FETT_firma1", "Fettschrift"};
    TextBox Text_firma_2{Frame1, "Text_firma_2", "Musterstr. 2"};
    TextBox Text_firma_3{Frame1, "Text_firma_3", "12345 Musterstadt"};
    TextBox Text_firma_4{Frame1, "Text_firma_4", "Tel.: 12345/56789"};
    TextBox Text_firma_5{Frame1, "Text_firma_5", "Handy: 1234567890"};
    TextBox Text_firma_6{Frame1, "Text_firma_6", "E-Mail: info@musterfirma.example"};
    TextBox Text_firma_7{Frame1, "Text_firma_7", "Steuernr:1234/567/89"};
    Label Label_Hinweis_Steuernr{Frame1, "Label_Hinweis_Steuernr"};
    TextBox Text_firma_8{Frame1, "Text_firma_8", "Faxnr.: 12345/56789"};

    // --- Bankdaten ---
    Container& Seite_Bankdaten = SSTab1.page(1);
    Frame Frame5{Seite_Bankdaten, "Frame5", "Bankverbindung"};
    OptionButton Option_BankVerb_Vorgabe{Frame5, "Option_BankVerb_Vorgabe", "Bankverbindung nach Vorgabe"};
    OptionButton Option_BankVerb_ZweiZeile{Frame5, "Option_BankVerb_ZweiZeile", "Freie Zeilen"};
    Frame Frame_Bankverb_Vorlage{Frame5, "Frame_Bankverb_Vorlage"};
    TextBox Text_Institut{Frame_Bankverb_Vorlage, "Text_Institut", "INSTITUT: Musterbank"};
    TextBox Text_BLZ{Frame_Bankverb_Vorlage, "Text_BLZ", "BLZ: 123 456 78"};
    TextBox Text_KTO{Frame_Bankverb_Vorlage, "Text_KTO", "KTO-NR: 1234567"};
    TextBox Text_IBAN{Frame_Bankverb_Vorlage, "Text_IBAN", "IBAN: DE12 3456 3456 0054 0123 45"};
    Label Label_Hinweis_IBAN{Frame_Bankverb_Vorlage, "Label_Hinweis_IBAN"};
    TextBox Text_BIC{Frame_Bankverb_Vorlage, "Text_BIC", "SWIFT -BIC: AB4DEFG1HIJK"};
    CheckBox Check_mit_IBAN_BIC_Drucken{Frame_Bankverb_Vorlage, "Check_mit_IBAN_BIC_Drucken",
                                        "IBAN und SWIFT-BIC mit drucken"};
    Frame Frame_Bankverb_Zeilen{Frame5, "Frame_Bankverb_Zeilen"};
    TextBox Text_Bankverb1{Frame_Bankverb_Zeilen, "Text_Bankverb1",
                           "In diese Zeilen können Sie Ihre Bankverbindungsdaten oder sonstige Informationen "
                           "schreiben, welche am unteren Rand gedruckt werden."};
    TextBox Text_Bankverb2{Frame_Bankverb_Zeilen, "Text_Bankverb2", "...weitere Zeile"};
    TextBox Text_Bankverb3{Frame_Bankverb_Zeilen, "Text_Bankverb3", "...weitere Zeile"};
    CheckBox Check_Bankverb_Zeile2{Frame_Bankverb_Zeilen, "Check_Bankverb_Zeile2", "2. Zeile drucken"};
    CheckBox Check_Bankverb_Zeile3{Frame_Bankverb_Zeilen, "Check_Bankverb_Zeile3", "3. Zeile drucken"};
    Frame Frame_BANKLINIE{Frame5, "Frame_BANKLINIE"};
    CheckBox Check_BANKLINIE{Frame_BANKLINIE, "Check_BANKLINIE", "Trennlinie drucken"};

    // --- Textdaten ---
    Container& Seite_Textdaten = SSTab1.page(2);
    Frame Frame8{Seite_Textdaten, "Frame8", "Rechnung"};
    TextBox Text_rechnung{Frame8, "Text_rechnung", "RECHNUNG 2008 -"};
    HScrollBar HScroll_GROESSE_RECHNUNG{Frame8, "HScroll_GROESSE_RECHNUNG", 8, 20, 10};
    Label Label_GROESSE_RECHNUNG{Frame8, "Label_GROESSE_RECHNUNG", "..."};
    Frame Frame2{Seite_Textdaten, "Frame2", "Werbespruch"};
    TextBox Text_Werbung{Frame2, "Text_Werbung", "Ihr Werbespruch"};
    HScrollBar HScroll_GROESSE_WERBUNG{Frame2, "HScroll_GROESSE_WERBUNG", 8, 20, 10};
    Label Label_GROESSE_WERBUNG{Frame2, "Label_GROESSE_WERBUNG", "..."};
    ControlArray<Frame, 2> Frame3{Seite_Textdaten, "Frame3"};
    ControlArray<TextBox, 2> Text_Bemerkung1{Frame3, "Text_Bemerkung1"};
    ControlArray<TextBox, 2> Text_Bemerkung2{Frame3, "Text_Bemerkung2"};
    ControlArray<TextBox, 2> Text_Bemerkung3{Frame3, "Text_Bemerkung3"};
    ControlArray<TextBox, 2> Text_Bemerkung4{Frame3, "Text_Bemerkung4"};
    ControlArray<CheckBox, 2> check_uebern_f_aktuellerechnung{
        Frame3, "check_uebern_f_aktuellerechnung", std::string("für aktuelle Rechnung übernehmen")};
    HScrollBar HScroll_GROESSE_ANSCHREIBEN{Frame3[0], "HScroll_GROESSE_ANSCHREIBEN", 8, 20, 10};
    Label Label_GROESSE_ANSCHREIBEN{Frame3[0], "Label_GROESSE_ANSCHREIBEN", "..."};
    HScrollBar HScroll_GROESSE_BEMERKUNGEN{Frame3[1], "HScroll_GROESSE_BEMERKUNGEN", 8, 20, 10};
    Label Label_GROESSE_BEMERKUNGEN{Frame3[1], "Label_GROESSE_BEMERKUNGEN", "..."};
    HScrollBar HScroll_GROESSE_ZUSATZ_1{Seite_Textdaten, "HScroll_GROESSE_ZUSATZ_1", 8, 20, 10};
    Label Label_GROESSE_ZUSATZ_1{Seite_Textdaten, "Label_GROESSE_ZUSATZ_1", "..."};
    HScrollBar HScroll_GROESSE_ZUSATZ_2{Seite_Textdaten, "HScroll_GROESSE_ZUSATZ_2", 8, 20, 10};
    Label Label_GROESSE_ZUSATZ_2{Seite_Textdaten, "Label_GROESSE_ZUSATZ_2", "..."};
    Frame Frame_RNSTARTWERT{Seite_Textdaten, "Frame_RNSTARTWERT", "Startwert für autom. Rechnungsnr.-Zähler"};
    TextBox Text_RNStartwert{Frame_RNSTARTWERT, "Text_RNStartwert", "1"};
    CommandButton Command_RNSTartwertSET{Frame_RNSTARTWERT, "Command_RNSTartwertSET", "Setzen"};
    Label Label_RNAKTUELL{Frame_RNSTARTWERT, "Label_RNAKTUELL"};
    CheckBox Check_RN_automatisch{Frame_RNSTARTWERT, "Check_RN_automatisch",
                                  "Rechnungsnr. automatisch erhöhen"};
    Slider Slider_RNFORMAT{Frame_RNSTARTWERT, "Slider_RNFORMAT", 1, 9, 1};
    Label Label_Lieferschein{*this, "Label_Lieferschein", "LIEFERSCHEIN ZU: "};
    Label Label_Kopie{*this, "Label_Kopie", "         KOPIE   "};

    // --- Mehrwertsteuer/Währung ---
    Container& Seite_MwSt = SSTab1.page(3);
    Frame Frame7{Seite_MwSt, "Frame7", "Mehrwertsteuersatz 1:"};
    TextBox Text_MwSt{Frame7, "Text_MwSt", "19"};
    Label Label_Hinweis_MwSt{Frame7, "Label_Hinweis_MwSt"};
    Frame Frame12{Seite_MwSt, "Frame12", "Mehrwertsteuersatz 2:"};
    TextBox Text_MwSt2{Frame12, "Text_MwSt2", "7"};
    Label Label_Hinweis_MwSt2{Frame12, "Label_Hinweis_MwSt2"};
    Frame Frame6{Seite_MwSt, "Frame6", "Berechnungsart"};
    CheckBox Check_mwst{Frame6, "Check_mwst", "mit MwSt"};
    OptionButton Option_mwst_plus{Frame6, "Option_mwst_plus", "plus (+)"};
    OptionButton Option_mwst_minus{Frame6, "Option_mwst_minus", "minus (-)"};
    OptionButton Option_inkl_MwSt{Frame6, "Option_inkl_MwSt", "inklusive MwSt"};
    Frame Frame10{Seite_MwSt, "Frame10", "Währungseinheit"};
    TextBox Text_Waehrung{Frame10, "Text_Waehrung", "EUR"};

    // --- Firmenlogo & Wasserzeichen ---
    Container& Seite_Bilder = SSTab1.page(4);
    Frame Frame4{Seite_Bilder, "Frame4", "Logo"};
    TextBox Text_logopath{Frame4, "Text_logopath"};
    CommandButton Command_durchsuchen{Frame4, "Command_durchsuchen", "Durchsuchen..."};
    CheckBox Check_keinlogo{Frame4, "Check_keinlogo", "kein Logo verwenden"};
    PictureBox Picture1{Frame4, "Picture1"};
    Image logotab{Frame4, "logotab"};
    Frame Frame_Wasserz{Seite_Bilder, "Frame_Wasserz", "Wasserzeichein/Hintergrund"};
    TextBox Text_bildpath{Frame_Wasserz, "Text_bildpath"};
    CommandButton Command_Wasserz_Bild_suchen{Frame_Wasserz, "Command_Wasserz_Bild_suchen", "Bild suchen..."};
    CheckBox Check_mit_Wasserz{Frame_Wasserz, "Check_mit_Wasserz", "Wasserzeichen drucken"};
    PictureBox Picture_wasserz{Frame_Wasserz, "Picture_wasserz"};
    Image Image_WASSERZ{Frame_Wasserz, "Image_WASSERZ"};

    // --- Designer/Druckerschriftart ---
    Container& Seite_Designer = SSTab1.page(5);
    CommandButton CMD_DESIGNER{Seite_Designer, "CMD_DESIGNER", "Designer aufrufen..."};
    Frame Frame_DRUCKERSCHRIFT{Seite_Designer, "Frame_DRUCKERSCHRIFT",
                               "Aktuell eingestellte Schriftart: Arial"};
    CommandButton Command_DRUCKERSCHRIFT{Frame_DRUCKERSCHRIFT, "Command_DRUCKERSCHRIFT",
                                         "Schriftart wählen..."};
    CommandButton Command_DRUCKERSCHRIFT_Reset{Frame_DRUCKERSCHRIFT, "Command_DRUCKERSCHRIFT_Reset", "Arial"};

    // --- page designs ---
    Container& Seite_Layouts = SSTab1.page(6);
    Frame Frame_Layout{Seite_Layouts, "Frame_Layout", "Layout"};
    OptionButton Option1_Layout{Frame_Layout, "Option1_Layout", "Layout 1"};
    OptionButton Option2_Layout{Frame_Layout, "Option2_Layout", "Layout 2"};
    OptionButton Option3_Layout{Frame_Layout, "Option3_Layout", "Layout 3"};
    OptionButton Option4_Layout{Frame_Layout, "Option4_Layout", "Layout 4"};
    OptionButton Option5_Layout{Frame_Layout, "Option5_Layout", "Layout 5"};
    OptionButton Option6_Layout{Frame_Layout, "Option6_Layout", "Layout 6"};
    OptionButton Option7_Layout{Frame_Layout, "Option7_Layout", "Layout 7"};
    OptionButton Option8_Layout{Frame_Layout, "Option8_Layout", "Layout 8"};
    OptionButton Option9_Layout{Frame_Layout, "Option9_Layout", "Eigenes Layout"};
    Image Image1_Layout{Frame_Layout, "Image1_Layout"};
    Image Image2_Layout{Frame_Layout, "Image2_Layout"};
    Image Image3_Layout{Frame_Layout, "Image3_Layout"};
    Image Image4_Layout{Frame_Layout, "Image4_Layout"};
    Image Image5_Layout{Frame_Layout, "Image5_Layout"};
    Image Image6_Layout{Frame_Layout, "Image6_Layout"};
    Image Image7_Layout{Frame_Layout, "Image7_Layout"};
    Image Image8_Layout{Frame_Layout, "Image8_Layout"};

    // --- print colours ---
    Container& Seite_Druckfarben = SSTab1.page(7);
    struct Farbzeile {
        Farbzeile(Container& seite, const char* rahmen, const char* titel, const char* knopf,
                  const char* muster, const char* regler);
        Frame Rahmen;
        CommandButton Command_FARBE;
        Frame Muster; ///< its back colour is the colour that is printed
        Slider R;     ///< 0 to 255
        Slider G;     ///< 0 to 255
        Slider B;     ///< 0 to 255
    };
    Farbzeile Linien{Seite_Druckfarben,      "Frame_Linien",      "Linien",
                     "Command_FARBE_LINIEN", "Frame_Linienfarbe", "Slider_Linienfarbe"};
    Farbzeile Werbespruch{Seite_Druckfarben,           "Frame_Werbespruch",      "Werbespruch",
                          "Command_FARBE_WERBESPRUCH", "Frame_Werbespruchfarbe", "Slider_Werbespruchfarbe"};
    Farbzeile Bankdaten{Seite_Druckfarben,         "Frame_Bankdaten",      "Bankdaten",
                        "Command_FARBE_BANKDATEN", "Frame_Bankdatenfarbe", "Slider_Bankdatenfarbe"};
    Farbzeile Bemerkungen{Seite_Druckfarben,           "Frame_Bemerkungen",      "Bemerkungen",
                          "Command_FARBE_BEMERKUNGEN", "Frame_Bemerkungenfarbe", "Slider_Bemerkungenfarbe"};
    Farbzeile Firmendaten{Seite_Druckfarben,           "Frame_Firmendaten",      "Firmendaten",
                          "Command_FARBE_FIRMENDATEN", "Frame_Firmendatenfarbe", "Slider_Firmendatenfarbe"};
    Farbzeile Kundennr{Seite_Druckfarben,        "Frame_Kundennr",      "Kundennummer",
                       "Command_FARBE_KUNDENNR", "Frame_Kundennrfarbe", "Slider_Kundennrfarbe"};

    // --- general page layout ---
    Container& Seite_Drucklayout = SSTab1.page(8);
    Frame Frame_DruckLayoutallgemein{Seite_Drucklayout, "Frame_DruckLayoutallgemein",
                                     "Allgemeines Drucklayout"};
    Frame Frame_RN_RK_kopf{Frame_DruckLayoutallgemein, "Frame_RN_RK_kopf", "Rechnungskopf"};
    OptionButton Option_RN_Kopf_alleSeiten{Frame_RN_RK_kopf, "Option_RN_Kopf_alleSeiten", "auf alle Seiten"};
    OptionButton Option_RN_RK_Kopf_nurErsteSeite{Frame_RN_RK_kopf, "Option_RN_RK_Kopf_nurErsteSeite",
                                                 "nur auf die erste Seite"};
    CheckBox Check_MitLogoadresseFFSeite{Frame_RN_RK_kopf, "Check_MitLogoadresseFFSeite",
                                         "...aber Logo und Firmenadresse auf jede Seite drucken"};
    Frame Frame_RN_Bemerkungen{Frame_DruckLayoutallgemein, "Frame_RN_Bemerkungen", "Bemerkungen"};
    OptionButton Option_RN_BM_alleSeite{Frame_RN_Bemerkungen, "Option_RN_BM_alleSeite", "auf alle Seiten"};
    OptionButton Option_RN_BM_nurletzte_Seite{Frame_RN_Bemerkungen, "Option_RN_BM_nurletzte_Seite",
                                              "nur auf die letzte Seite"};
    Frame Frame_Seitenzahldruck{Frame_DruckLayoutallgemein, "Frame_Seitenzahldruck", "Seitenzahlen"};
    CheckBox Check_SEITENZAHLDRUCKEN{Frame_Seitenzahldruck, "Check_SEITENZAHLDRUCKEN",
                                     "Seitenzahlen drucken"};
    Frame Frame_Positionendruck{Frame_DruckLayoutallgemein, "Frame_Positionendruck", "Positionsnummern"};
    CheckBox Check_Positionendruck{Frame_Positionendruck, "Check_Positionendruck",
                                   "Positionsnummern drucken"};
    Frame Frame13{Frame_DruckLayoutallgemein, "Frame13", "Faltmarken..."};
    CheckBox Check_Faltmarke_MITDRUCKEN{Frame13, "Check_Faltmarke_MITDRUCKEN", "Faltmarken drucken"};

    // --- print adjustment, millimetres ---
    Container& Seite_Justierung = SSTab1.page(9);
    Frame Frame11{Seite_Justierung, "Frame11", "Justierung"};
    Frame Frame_JustierA4{Frame11, "Frame_JustierA4"};
    Shape ShapejustierA4{Frame_JustierA4, Named("ShapejustierA4").at(kJustierblatt)};
    HScrollBar HScroll_druckj{Frame11, "HScroll_druckj", -12, 12, -4};
    VScrollBar VScrollDruckj{Frame11, "VScrollDruckj", -20, 20, -6};
    Label LabelDRUCKj_H{Frame11, "LabelDRUCKj_H", "-4 mm"};
    Label LabelDRUCKj_V{Frame11, "LabelDRUCKj_V", "-6 mm"};

    // --- names of the columns ---
    Container& Seite_Benennungen = SSTab1.page(10);
    Frame Frame14{Seite_Benennungen, "Frame14", "Benennungszuordnung"};
    TextBox TName_Pos{Frame14, "TName_Pos", "Pos."};
    TextBox TName_Menge{Frame14, "TName_Menge", "Menge"};
    TextBox TName_Leistung{Frame14, "TName_Leistung", "Leistung"};
    TextBox TNameEinzelpr{Frame14, "TNameEinzelpr", "Einzelpreis[EUR]"};
    TextBox TNameGesamtpr{Frame14, "TNameGesamtpr", "Gesamtpreis[EUR]"};
    CommandButton CMD_Zuordnung{Frame14, "CMD_Zuordnung", "<--"};
    Label Label_Pos{Frame14, "Label_Pos", "Pos."};
    Label Label_Menge{Frame14, "Label_Menge", "Menge"};
    Label Label_Leistung{Frame14, "Label_Leistung", "Leistung"};
    Label Label_preis{Frame14, "Label_preis", "Einzelpreis[EUR]"};
    Label Label_gesamtp{Frame14, "Label_gesamtp", "Gesamtpreis[EUR]"};

    /// Line `n` (1 to 4) of a text block: element 0 cover letter, element 1 remarks.
    ControlArray<TextBox, 2>& Text_Bemerkung(int n);
    const ControlArray<TextBox, 2>& Text_Bemerkung(int n) const;
    /// A column's heading, and the field for another one.
    struct Spaltenname {
        Label& zugeordnet;
        TextBox& neu;
    };
    std::array<Spaltenname, 5> Spaltennamen();
    /// The buttons of the page designs 1 to 9 at index 0 to 8.
    std::array<OptionButton*, kLayouts> Layouts();
    /// The pictures of the page designs 1 to 8 at index 0 to 7.
    std::array<Image*, kLayouts - 1> Layoutbilder();
};

inline constexpr int kEigenesLayout = 9;

/// Number of the chosen page design, 1 to 9; 0 if none is chosen.
int LAYOUT_GEWAEHLT(const frm_einstellungen& einstellungen);

} // namespace quittika
