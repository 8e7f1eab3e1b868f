#pragma once

#include "platform/forms/controls.hpp"

namespace quittika {

/// Program settings: colour style of the windows, automatic date, reset.
struct frm_Programm : Form {
    frm_Programm();

    Frame Frame_stil{*this, "Frame_stil", "Farbstil"};
    OptionButton Option_stil1{Frame_stil, "Option_stil1", "blau/hellgrau"};
    OptionButton Option_stil2{Frame_stil, "Option_stil2", "hellgrau/hellgrau"};
    OptionButton Option_stil3{Frame_stil, "Option_stil3", "weiss/hellblau"};
    OptionButton Option_stil4{Frame_stil, "Option_stil4", "schwarz/hellgrau"};
    OptionButton Option_stil5{Frame_stil, "Option_stil5", "Individuell"};
    OptionButton Option_stil6stroh{Frame_stil, "Option_stil6stroh", "Strohmatte (hell)"};
    OptionButton Option_stil7stroh{Frame_stil, "Option_stil7stroh", "Strohmatte (dunkel)"};
    Image Image_Speicher_stroh{*this, "Image_Speicher_stroh"};
    Image Image_Speicher_strohbraun{*this, "Image_Speicher_strohbraun"};
    Frame Frame_Individuell{*this, "Frame_Individuell", "Individuell"};
    Frame Frame_farbe_formular{Frame_Individuell, "Frame_farbe_formular"};
    Frame Frame_farbe_hintergrund{Frame_Individuell, "Frame_farbe_hintergrund"};
    CommandButton Command_farbe_formular{Frame_Individuell, "Command_farbe_formular",
                                         "Formularfarbe wählen..."};
    CommandButton Command_farbe_hintergrund{Frame_Individuell, "Command_farbe_hintergrund",
                                            "Hintergrundfarbe wählen..."};
    CheckBox Check_datum{*this, "Check_datum", "automatisch"};
    CommandButton Command_Vorschau{*this, "Command_Vorschau", "Vorschau"};
    CommandButton Command_uebernehmen{*this, "Command_uebernehmen", " Alle Änderungen       übernehmen"};
    CommandButton Command_nichtuebernehmen{*this, "Command_nichtuebernehmen",
                                           "     Änderungen  nicht übernehmen"};
    CommandButton Command_delreg{*this, "Command_delreg", "RESET "};
};

} // namespace quittika
