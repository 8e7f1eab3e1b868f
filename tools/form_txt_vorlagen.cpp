#include "tools/form_txt_vorlagen.hpp"

namespace quittika {

Form_txt_Vorlagen::Vorlage::Vorlage(Frame& seite, int n)
    : Frame_Bemerkungen(seite, Named("Frame_Bemerkungen").element(n)),
      Label1(Frame_Bemerkungen, Named("Label1").element(n), std::to_string(n + 1)),
      Command1_choose(Frame_Bemerkungen, Named("Command1_choose").element(n), "Daten zuordnen..."),
      Text{{{Frame_Bemerkungen, Named("Text1").element(n)},
            {Frame_Bemerkungen, Named("Text2").element(n)},
            {Frame_Bemerkungen, Named("Text3").element(n)},
            {Frame_Bemerkungen, Named("Text4").element(n)}}},
      Label_Hinweis{{{Frame_Bemerkungen, Named("Label_Hinweis1").element(n)},
                     {Frame_Bemerkungen, Named("Label_Hinweis2").element(n)},
                     {Frame_Bemerkungen, Named("Label_Hinweis3").element(n)},
                     {Frame_Bemerkungen, Named("Label_Hinweis4").element(n)}}} {
    for (Label& hinweis : Label_Hinweis) {
        hinweis.Visible.adopt(false);
    }
}

} // namespace quittika
