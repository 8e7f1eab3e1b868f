#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

inline constexpr int kVorlagen = 30; ///< templates on a page of the choice

/// The page on which the user places the blocks of an invoice with the mouse.
struct FORM_DESIGNER : Form {
    FORM_DESIGNER();

    // --- the page and its blocks, the lowest first; their places are the page's ---
    Frame Frame_Tisch{*this, Named("Frame_Tisch").following({twips(34), twips(58), twips(440), twips(614)})};
    Frame Frame_A4{*this, Named("Frame_A4").at({twips(43), twips(67), twips(420), twips(594)})};
    Image Image_WASSERZ{Frame_A4, Named("Image_WASSERZ").at(kLeer)};
    Image Image_Blatt{Frame_A4, Named("Image_Blatt").at(kLeer)}; ///< what prints beside the blocks
    Image Image_LOGO{Frame_A4, Named("Image_LOGO").at(kLeer)};
    Image Image_LISTE{Frame_A4, Named("Image_LISTE").at(kLeer)};
    Image Image_adressefirma{Frame_A4, Named("Image_adressefirma").at(kLeer)};
    Image Image_adressekunde{Frame_A4, Named("Image_adressekunde").at(kLeer)};
    Image Image_KDNR{Frame_A4, Named("Image_KDNR").at(kLeer)};
    Image Image_RN{Frame_A4, Named("Image_RN").at(kLeer)};
    Image Image_datum{Frame_A4, Named("Image_datum").at(kLeer)};
    Image Image_Lieferdatum{Frame_A4, Named("Image_Lieferdatum").at(kLeer)};
    Image Image_werbespruch{Frame_A4, Named("Image_werbespruch").at(kLeer)};
    ControlArray<Image, 2> Image_Bemerkungen{Frame_A4, Named("Image_Bemerkungen").at(kLeer)};
    Image Image_Bankzeile{Frame_A4, Named("Image_Bankzeile").at(kLeer)};
    Image Image_seitenzahl{Frame_A4, Named("Image_seitenzahl").at(kLeer)};

    // --- what guides the eye; the mouse goes through it ---
    ControlArray<Shape, 2> Shape_Anschrift{Frame_A4, Named("Shape_Anschrift").at(kLeer)};
    ControlArray<Line, 2> Line_Falz_A{Frame_A4, Named("Line_Falz_A").at(kLeer)};
    ControlArray<Line, 2> Line_Falz_B{Frame_A4, Named("Line_Falz_B").at(kLeer)};
    ControlArray<Shape, 14> Shape_Kollision{Frame_A4, Named("Shape_Kollision").at(kLeer)};
    Shape Shape_Auswahl{Frame_A4, Named("Shape_Auswahl").at(kLeer)};
    Line VLINE{Frame_A4, Named("VLINE").at(kLeer)};
    Line HLINE{Frame_A4, Named("HLINE").at(kLeer)};
    Line VLINE2{Frame_A4, Named("VLINE2").at(kLeer)};
    Line HLINE2{Frame_A4, Named("HLINE2").at(kLeer)};

    // --- beside the page ---
    Frame Frame_Anzeige{*this, "Frame_Anzeige", "Hilfen"};
    CheckBox Check_HILFSLINIEN{Frame_Anzeige, "Check_HILFSLINIEN", "Hilfslinien anzeigen"};
    CheckBox Check_DIN_A{Frame_Anzeige, "Check_DIN_A", "DIN 5008 Form A"};
    CheckBox Check_DIN_B{Frame_Anzeige, "Check_DIN_B", "DIN 5008 Form B"};
    Frame Frame_Bilder{*this, "Frame_Bilder", "Design..."};
    CheckBox Check_mitLogo{Frame_Bilder, "Check_mitLogo", "...mit Logo"};
    CommandButton Cmd_Logosuchen{Frame_Bilder, "Cmd_Logosuchen", "Logo suchen..."};
    CheckBox Check_mitWZ{Frame_Bilder, "Check_mitWZ", "...mit Wasserzeichen /     Hintergrundbild"};
    CommandButton Cmd_Wasserzsuchen{Frame_Bilder, "Cmd_Wasserzsuchen", "Bild suchen..."};
    CommandButton CMD_VORLAGENAUSWAHL{Frame_Bilder, "CMD_VORLAGENAUSWAHL", "Zeige A4-Vorlagen Auswahl"};
    Frame Frame_Listendesign{*this, "Frame_Listendesign", "Tabelle"};
    ControlArray<OptionButton, 5> Option{Frame_Listendesign, "Option"};
    CommandButton CMD_Justierung{*this, "CMD_Justierung", "Druckjustierung aufrufen"};
    CommandButton CMD_OPEN_HELP{*this, "CMD_OPEN_HELP", "? ...Hilfe aufrufen"};
    Label Label_Block{*this, "Label_Block"}; ///< the selected block, where it stands and what is in its way
    CommandButton Cmd_Vorschau{*this, "Cmd_Vorschau", "Vorschau..."};
    CommandButton CMD_SPEICHERN{*this, "CMD_SPEICHERN", "Speichern && Schliessen"};

    // --- what a right click offers ---
    Frame Frame_Logo{*this, Named("Frame_Logo").movable({0, 0, twips(220), twips(120)}), "Logo, mm"};
    TextBox Text_Logo_X{Frame_Logo, "Text_Logo_X"};
    TextBox Text_Logo_Y{Frame_Logo, "Text_Logo_Y"};
    CommandButton CMD_SET_LOGO{Frame_Logo, "CMD_SET_LOGO", "OK"};
    Frame Frame_Wasserz{*this, Named("Frame_Wasserz").movable({0, 0, twips(220), twips(150)}),
                        "Wasserzeichen, mm"};
    TextBox Text_Wasserz_X{Frame_Wasserz, "Text_Wasserz_X"};
    TextBox Text_Wasserz_Y{Frame_Wasserz, "Text_Wasserz_Y"};
    CommandButton CMD_MAXGROESSE_Wasserz{Frame_Wasserz, "CMD_MAXGROESSE_Wasserz", "MAXIMAL"};
    CommandButton CMD_SET_Wasserz{Frame_Wasserz, "CMD_SET_Wasserz", "OK"};
    Frame Frame_FARBE{*this, Named("Frame_FARBE").movable({0, 0, twips(220), twips(140)}), "Farbe und Text"};
    Frame Frame_FARBWAHL{Frame_FARBE, "Frame_FARBWAHL"}; ///< its back colour is the block's
    CommandButton Command_FARBE_LINIEN{Frame_FARBE, "Command_FARBE_LINIEN", "Farbe auswählen..."};
    CommandButton Command_TEXTEINSTELLUNGEN{Frame_FARBE, "Command_TEXTEINSTELLUNGEN", "Textdaten ändern..."};
    CommandButton CMD_SCHLIESSENFRABFRAME{Frame_FARBE, "CMD_SCHLIESSENFRABFRAME", "Schliessen"};

    // --- background templates ---
    Frame FrameVorlageBackgrounddesign{
        *this, Named("FrameVorlageBackgrounddesign").at({twips(12), twips(36), twips(462), twips(636)}),
        "Hintergrundvorlagen"};
    ControlArray<Image, kVorlagen, 1> Image_VorlageHintergrund{FrameVorlageBackgrounddesign,
                                                               "Image_VorlageHintergrund"};
    CommandButton CMD_A4DATENSATZ_minus{FrameVorlageBackgrounddesign, "CMD_A4DATENSATZ_minus", "<<"};
    Label Label_A4_Datensatznummer{FrameVorlageBackgrounddesign, "Label_A4_Datensatznummer", "1"};
    CommandButton CMD_A4DATENSATZ_plus{FrameVorlageBackgrounddesign, "CMD_A4DATENSATZ_plus", ">>"};
    ProgressBar ProgressBar_VORLAGELOAD{FrameVorlageBackgrounddesign, "ProgressBar_VORLAGELOAD", 0, kVorlagen,
                                        0};
    CommandButton CMD_Schliessen_Auswahl{FrameVorlageBackgrounddesign, "CMD_Schliessen_Auswahl",
                                         "Schliessen"};

    Frame FRAME_TIP{*this, Named("FRAME_TIP").at({twips(12), twips(36), twips(462), twips(636)}), "Hilfe"};
    ControlArray<TextBox, 3> Text_TIP{FRAME_TIP, "Text_TIP"};
    CommandButton CMD_CLOSE_HELP{FRAME_TIP, "CMD_CLOSE_HELP", "Hilfe schliessen"};

    Menu m_reset{*this, "m_reset", "Reset der Vorlage"};
    Menu m_Rueckgaengig{*this, "m_Rueckgaengig", "Rück&gängig"};
    Menu m_Wiederholen{*this, "m_Wiederholen", "&Wiederholen"};
    // For their shortcuts only; the arrows: left, right, up, down.
    Menu m_Zurueck{*this, "m_Zurueck", "Abbrechen oder schließen"};
    ControlArray<Menu, 4> m_Pfeil{*this, "m_Pfeil", "Block um 1 mm schieben"};
    ControlArray<Menu, 4> m_Pfeil_weit{*this, "m_Pfeil_weit", "Block um 5 mm schieben"};
    ControlArray<Menu, 4> m_Pfeil_fein{*this, "m_Pfeil_fein", "Block um 0,1 mm schieben"};

    Timer Timer_zap{*this, "Timer_zap", 250, false};
    Timer Timer_Vorlage{*this, "Timer_Vorlage", 10, false}; ///< loads the next template
    Timer Timer_Stand{*this, "Timer_Stand", 700};       ///< looks whether settings or invoice have changed
    Timer Timer_Lagen{*this, "Timer_Lagen", 80, false}; ///< after a move: what is in the way of what

private:
    static constexpr Place kLeer{0, 0, twips(1), twips(1)};
};

} // namespace quittika
