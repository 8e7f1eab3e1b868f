#include "app/raster.hpp"

namespace quittika {

void RasterzeileFreigeben(Form1::Rasterzeile& zeile, int seite) {
    constexpr Color kGesperrt = 14737632;
    const bool frei = !zeile.Check_K[seite].ticked();
    for (TextBox* feld : {&zeile.Text_menge[seite], &zeile.Text_preis[seite]}) {
        feld->BackColor = frei ? color::kWhite : kGesperrt;
        feld->Enabled = frei;
        if (!frei) {
            feld->Text = "0";
        }
    }
    zeile.Command_PLUS_[seite].Visible = frei;
}

} // namespace quittika
