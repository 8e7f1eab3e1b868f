#pragma once

#include "invoice/file/rechnungsnummern.hpp"
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
                  Rechnung& rechnung, Rechnungsnummern& nummern, const Clock& uhr);

    /// Fills it from the settings and gives it its number.
    void Beginnen();

private:
    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    Vorgaben& vorgaben_;
    Rechnung& rechnung_;
    Rechnungsnummern& nummern_;
    const Clock& uhr_;
};

} // namespace quittika
