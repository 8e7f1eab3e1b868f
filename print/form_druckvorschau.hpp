#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

namespace quittika {

/// The pages of the document as they will be printed.
struct Form_Druckvorschau : Form {
    Form_Druckvorschau()
        : Form("Form_Druckvorschau", "Druckvorschau", {.width = twips(900), .height = twips(860)}) {}

    CommandButton cmd_rr{*this, "cmd_rr", "&Zurück"};
    Label Label_Seite{*this, "Label_Seite", "Seite 1/1"};
    CommandButton cmd_ff{*this, "cmd_ff", "&Weiter"};
    CommandButton Command_Seite{*this, "Command_Seite", "&Ganze Seite"};
    CommandButton Command_Breite{*this, "Command_Breite", "&Seitenbreite"};
    CommandButton Command_100{*this, "Command_100", "&100 %"};
    CommandButton Command_kleiner{*this, "Command_kleiner", "−"};
    Label Label_Zoom{*this, "Label_Zoom", "100 %"};
    CommandButton Command_groesser{*this, "Command_groesser", "+"};

    /// Where the page is seen; what does not fit into it is scrolled.
    Frame Frame_Blatt{*this, Named("Frame_Blatt").following({0, 0, twips(880), twips(740)})};
    PictureBox Picture1{Frame_Blatt, Named("Picture1").at({0, 0, twips(794), twips(1123)})};
    VScrollBar VScroll1{*this, "VScroll1", 0, 0, 0}; ///< twips
    HScrollBar HScroll1{*this, "HScroll1", 0, 0, 0}; ///< twips

    Label Label_Hinweis{*this, "Label_Hinweis"}; ///< what is wrong on the page
    CommandButton Command_drucken{*this, "Command_drucken", "&Drucken..."};
    CommandButton Command_PDF{*this, "Command_PDF", "Als &PDF speichern..."};
    CommandButton Command_SAVE_VORSCHAU{*this, "Command_SAVE_VORSCHAU", "Als &Bild speichern..."};
    CommandButton Command_Close{*this, "Command_Close", "S&chließen"};

    Timer Timer_Stand{*this, "Timer_Stand", 500}; ///< looks whether the document has changed

    // For their shortcuts only.
    Menu m_weiter{*this, "m_weiter", "Nächste Seite"};
    Menu m_zurueck{*this, "m_zurueck", "Vorige Seite"};
    Menu m_erste{*this, "m_erste", "Erste Seite"};
    Menu m_letzte{*this, "m_letzte", "Letzte Seite"};
    Menu m_groesser{*this, "m_groesser", "Vergrößern"};
    Menu m_kleiner{*this, "m_kleiner", "Verkleinern"};
    Menu m_ganze_Seite{*this, "m_ganze_Seite", "Ganze Seite"};
    Menu m_drucken{*this, "m_drucken", "Drucken"};
};

} // namespace quittika
