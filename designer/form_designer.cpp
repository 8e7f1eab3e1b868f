#include "designer/form_designer.hpp"

#include <string>

namespace quittika {

namespace {

constexpr const char* kFarbtipp = "KLICKEN SIE DIE RECHTE TASTE UM DIE FARBE EINZUSTELLEN.";
constexpr const char* kGroessentipp = "RECHTE MAUSTASTE DRÜCKEN UM DIE GRÖSSE ZU ÄNDERN";

} // namespace

FORM_DESIGNER::FORM_DESIGNER()
    : Form("FORM_DESIGNER", "DESIGNER", {.width = twips(980), .height = twips(920)}) {
    for (OptionButton& design : Option) {
        design.Caption = "Design  " + std::to_string(design.index() + 1) + " (leicht)";
    }
    for (Image* bild : {&Image_LOGO, &Image_WASSERZ}) {
        bild->ToolTipText = kGroessentipp;
    }
    for (Image* block :
         {&Image_LISTE, &Image_Bankzeile, &Image_werbespruch, &Image_Bemerkungen[0], &Image_Bemerkungen[1],
          &Image_adressefirma, &Image_KDNR, &Image_RN, &Image_seitenzahl}) {
        block->ToolTipText = kFarbtipp;
    }
    Frame_A4.BackColor = color::kWhite;
    for (Control* verborgen : {static_cast<Control*>(&Frame_Logo), static_cast<Control*>(&Frame_Wasserz),
                               static_cast<Control*>(&Frame_FARBE), static_cast<Control*>(&FRAME_TIP),
                               static_cast<Control*>(&FrameVorlageBackgrounddesign)}) {
        verborgen->Visible = false;
    }
}

} // namespace quittika
