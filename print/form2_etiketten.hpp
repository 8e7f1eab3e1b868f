#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"

#include <vector>

namespace quittika {

/// What the windows for pre-printed forms share: both addresses and a picture of the form.
struct Form2_Etikett : Form {
    Form2_Etikett(std::string_view name, std::string caption, int hoehe)
        : Form(name, std::move(caption), {.width = twips(740), .height = twips(hoehe)}) {
        ChkAbsender.Value.adopt(1);
        ChkKunde.Value.adopt(1);
    }
    Frame Frame_Absender{*this, "Frame_Absender", "&Absender"};
    CheckBox ChkAbsender{Frame_Absender, "ChkAbsender", "A&bsender drucken"};
    TextBox txtAbsName{Frame_Absender, "txtAbsName"};
    TextBox txtAbsStrasse{Frame_Absender, "txtAbsStrasse"};
    TextBox txtAbsPLZOrt{Frame_Absender, "txtAbsPLZOrt"};
    Frame Frame_Kunde{*this, "Frame_Kunde", "&Kunde"};
    CheckBox ChkKunde{Frame_Kunde, "ChkKunde", "K&unde drucken"};
    TextBox txtVersName{Frame_Kunde, "txtVersName"};
    TextBox txtVersStrasse{Frame_Kunde, "txtVersStrasse"};
    TextBox txtVErsPLZ{Frame_Kunde, "txtVErsPLZ"};
    PictureBox Picture_Formular{*this, "Picture_Formular"};
    Label Label_Hinweis{*this, "Label_Hinweis"}; ///< what does not fit on the form
    CommandButton CMDdrucken{*this, "CMDdrucken", "&Drucken..."};
    CommandButton Command_Abbrechen{*this, "Command_Abbrechen", "Abbrechen"};
    Timer Timer_Formular{*this, "Timer_Formular", 300, false}; ///< draws the picture when typing rests

    // What a form has beyond that.
    std::vector<TextBox*> Absenderzeilen{&txtAbsName, &txtAbsStrasse, &txtAbsPLZOrt};
    std::vector<TextBox*> Kundenzeilen{&txtVersName, &txtVersStrasse, &txtVErsPLZ};
    TextBox* Telefon = nullptr;
    OptionButton* MitBeleg = nullptr; ///< also prints the receipt at the form's lower end
    OptionButton* Schmal = nullptr;   ///< the narrower of two kinds of the form
};

/// The receipt that some parcel forms carry.
struct Belegwahl {
    explicit Belegwahl(Form2_Etikett& form)
        : Frame_Beleg(form, "Frame_Beleg", "&Einlieferungsbeleg"),
          Option1ohneEINLIEFERUNGSBELEG(Frame_Beleg, "Option1ohneEINLIEFERUNGSBELEG",
                                        "&ohne Einlieferungsbeleg"),
          Option2mitEINLIEFERUNGSBELEG(Frame_Beleg, "Option2mitEINLIEFERUNGSBELEG",
                                       "&mit Einlieferungsbeleg") {
        Option1ohneEINLIEFERUNGSBELEG.Value.adopt(true);
        form.MitBeleg = &Option2mitEINLIEFERUNGSBELEG;
    }
    Frame Frame_Beleg;
    OptionButton Option1ohneEINLIEFERUNGSBELEG;
    OptionButton Option2mitEINLIEFERUNGSBELEG;
};

struct Form2_PAKET_ETIKETT : Form2_Etikett {
    Form2_PAKET_ETIKETT() : Form2_Etikett("Form2_PAKET_ETIKETT", "Paketschein bedrucken", 480) {
        Kundenzeilen.push_back(&txtVersZeile4);
    }
    TextBox txtVersZeile4{Frame_Kunde, "txtVersZeile4"};
    Belegwahl Beleg{*this};
};

struct Form2_PAKETHRMS_ETIKETT : Form2_Etikett {
    Form2_PAKETHRMS_ETIKETT()
        : Form2_Etikett("Form2_PAKETHRMS_ETIKETT", "Paketschein (H-Versand) bedrucken", 540) {
        Absenderzeilen.push_back(&txtAbsZeile4);
        Kundenzeilen.push_back(&txtVersZeile4);
        Telefon = &txtVersTelefon;
    }
    TextBox txtAbsZeile4{Frame_Absender, "txtAbsZeile4"};
    TextBox txtVersZeile4{Frame_Kunde, "txtVersZeile4"};
    TextBox txtVersTelefon{Frame_Kunde, "txtVersTelefon"};
    Belegwahl Beleg{*this};
};

struct Form2_PAECKCHEN_ETIKETT : Form2_Etikett {
    Form2_PAECKCHEN_ETIKETT() : Form2_Etikett("Form2_PAECKCHEN_ETIKETT", "Päckchenschein bedrucken", 420) {
        Kundenzeilen.push_back(&txtVersZeile4);
    }
    TextBox txtVersZeile4{Frame_Kunde, "txtVersZeile4"};
};

struct Form2_Breiter_Brief : Form2_Etikett {
    Form2_Breiter_Brief() : Form2_Etikett("Form2_Breiter_Brief", "Briefumschlag bedrucken", 480) {
        Kundenzeilen.push_back(&Text_Land);
        Option1BREIT.Value.adopt(true);
        Schmal = &Option2SCHMAL;
    }
    TextBox Text_Land{Frame_Kunde, "Text_Land"};
    Frame Frame_Umschlag{*this, "Frame_Umschlag", "U&mschlag"};
    OptionButton Option1BREIT{Frame_Umschlag, "Option1BREIT", "b&reiter Umschlag"};
    OptionButton Option2SCHMAL{Frame_Umschlag, "Option2SCHMAL", "&schmaler Umschlag"};
};

} // namespace quittika
