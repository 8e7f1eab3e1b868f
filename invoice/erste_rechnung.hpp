#pragma once

#include "invoice/file/rechnungsnummern.hpp"
#include "invoice/file/zuletzt_geoeffnet.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnung.hpp"
#include "invoice/vorgaben.hpp"
#include "platform/shell.hpp"
#include "settings/frm_einstellungen.hpp"

namespace quittika {

/// The empty invoice that the program starts with.
class ErsteRechnung {
public:
    ErsteRechnung(Form1& form1, const frm_einstellungen& einstellungen, Vorgaben& vorgaben,
                  Rechnung& rechnung, Rechnungsnummern& nummern, ZuletztGeoeffnet& zuletzt, const Clock& uhr);

    /// Fills it from the settings and gives it its number; the menu shows the files used last.
    void Beginnen();

private:
    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Vorgaben& vorgaben_;
    Rechnung& rechnung_;
    Rechnungsnummern& nummern_;
    ZuletztGeoeffnet& zuletzt_;
    const Clock& uhr_;
};

} // namespace quittika
