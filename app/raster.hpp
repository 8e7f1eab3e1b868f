#pragma once

#include "app/ereignisse.hpp"
#include "invoice/form1.hpp"
#include "masterdata/artikeluebernahme.hpp"

namespace quittika {

/// The grid of four pages beside the position list.
class Raster {
public:
    Raster(Form1& form1, const Ereignisse& ereignisse, Artikeluebernahme& artikel);

    /// Shows page `seite` (0 to 3).
    void CMD_Seite1_Click(int seite);
    void BUTTON_SEITENFREIGABE() {} ///< hook for releasing pages

private:
    Form1& form1_;
};

/// A row of the grid follows its tick: ticked, quantity and price are "0", grey and locked.
void RasterzeileFreigeben(Form1::Rasterzeile& zeile, int seite);

} // namespace quittika
