#include "app/raster.hpp"

namespace quittika {

Raster::Raster(Form1& form1, const Ereignisse& ereignisse, Artikeluebernahme& artikel) : form1_(form1) {
    for (int seite = 0; seite < Form1::kSeiten; ++seite) {
        form1.CMD_Seite1[seite].Click = [this, seite] { CMD_Seite1_Click(seite); };
        for (Form1::Rasterzeile& zeile : form1.Raster) {
            zeile.Check_K[seite].Click = [&zeile, seite, aenderung = ereignisse.aenderung()] {
                RasterzeileFreigeben(zeile, seite);
                aenderung();
            };
            for (TextBox* feld : {&zeile.Text_menge[seite], &zeile.Text_leistung[seite],
                                  &zeile.Text_preis[seite], &zeile.Text_gesamtp[seite]}) {
                feld->Change = ereignisse.eintrag();
            }
            zeile.Text_menge[seite].LostFocus = ereignisse.rechnen();
            zeile.Text_preis[seite].LostFocus = ereignisse.rechnen();
            const auto ziel = Artikeluebernahme::Rasterzeile(zeile, seite);
            zeile.Text_leistung[seite].OLEDragDrop = [&artikel, ziel](const std::string& text) {
                artikel.Ablegen(ziel, text);
            };
            zeile.Command_PLUS_[seite].Click =
                ereignisse.befehl([&artikel, ziel] { artikel.Command_PLUS_Click(ziel); });
        }
    }
}

void Raster::CMD_Seite1_Click(int seite) {
    for (int i = 0; i < Form1::kSeiten; ++i) {
        form1_.Frame_seite1[i].Visible = i == seite;
        form1_.CMD_Seite1[i].BackColor = i == seite ? color::kYellow : color::kButtonFace;
    }
}

void RasterzeileFreigeben(Form1::Rasterzeile& zeile, int seite) {
    const bool frei = !zeile.Check_K[seite].ticked();
    for (TextBox* feld : {&zeile.Text_menge[seite], &zeile.Text_preis[seite]}) {
        feld->BackColor = frei ? color::kWhite : color::kLightGrey;
        feld->Enabled = frei;
        if (!frei) {
            feld->Text = "0";
        }
    }
    zeile.Command_PLUS_[seite].Visible = frei;
}

} // namespace quittika
