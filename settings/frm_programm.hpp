#pragma once

#include "platform/forms/controls.hpp"

namespace quittika {

/// Program settings: colour style of the windows, automatic date, reset.
struct frm_Programm : Form {
    frm_Programm();

    Frame Frame_stil{*this, "Frame_stil", "Farb&stil"};
    OptionButton Option_stil_standard{Frame_stil, "Option_stil_standard", "Standard"}; ///< none of the seven
    OptionButton Option_stil1{Frame_stil, "Option_stil1", "blau/hellgrau"};
    OptionButton Option_stil2{Frame_stil, "Option_stil2", "hellgrau/hellgrau"};
    OptionButton Option_stil3{Frame_stil, "Option_stil3", "weiss/hellblau"};
    OptionButton Option_stil4{Frame_stil, "Option_stil4", "schwarz/hellgrau"};
    OptionButton Option_stil5{Frame_stil, "Option_stil5", "Individuell"};
    OptionButton Option_stil6stroh{Frame_stil, "Option_stil6stroh", "Strohmatte (hell)"};
    OptionButton Option_stil7stroh{Frame_stil, "Option_stil7stroh", "Strohmatte (dunkel)"};
    /// The two colours of the styles 1 to 5, beside their buttons.
    ControlArray<Shape, 5, 1> Shape_hintergrund{Frame_stil, "Shape_hintergrund"};
    ControlArray<Shape, 5, 1> Shape_formular{Frame_stil, "Shape_formular"};
    Image Image_Speicher_stroh{Frame_stil, "Image_Speicher_stroh"};
    Image Image_Speicher_strohbraun{Frame_stil, "Image_Speicher_strohbraun"};
    Frame Frame_Individuell{*this, "Frame_Individuell", "&Individuell"};
    Frame Frame_farbe_formular{Frame_Individuell, "Frame_farbe_formular"};
    Frame Frame_farbe_hintergrund{Frame_Individuell, "Frame_farbe_hintergrund"};
    CommandButton Command_farbe_formular{Frame_Individuell, "Command_farbe_formular",
                                         "Formularfarbe wählen..."};
    CommandButton Command_farbe_hintergrund{Frame_Individuell, "Command_farbe_hintergrund",
                                            "Hintergrundfarbe wählen..."};
    Frame Frame_datum{*this, "Frame_datum", "Rechnungs&datum"};
    CheckBox Check_datum{Frame_datum, "Check_datum", "automatisch"};
    CommandButton Command_Vorschau{*this, "Command_Vorschau", "Vorschau"};
    CommandButton Command_uebernehmen{*this, "Command_uebernehmen", " Alle Änderungen       übernehmen"};
    CommandButton Command_nichtuebernehmen{*this, "Command_nichtuebernehmen",
                                           "     Änderungen  nicht übernehmen"};
    Frame Frame_reset{*this, "Frame_reset", "&Zurücksetzen"};
    CommandButton Command_delreg{Frame_reset, "Command_delreg", "RESET "};
};

} // namespace quittika
