#pragma once

#include "einvoice/mangel.hpp"
#include "invoice/file/zuletzt_geoeffnet.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/dialogs.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// Tells what the law asks for and the printed invoice in hand lacks. Nobody is stopped by it.
class Pflichtpruefung {
public:
    Pflichtpruefung(Form1& form1, const frm_einstellungen& einstellungen, const PROGRAMMEINSTELLUNG& werte,
                    const Rechnungszustand& zustand, const ZuletztGeoeffnet& zuletzt, Dialogs& dialogs);

    /// Says all points in a box.
    void m_Pflichtangaben_Click() const;
    /// Says the first point in panel 3.
    void ERSTEN_PUNKT_NENNEN() const;

private:
    Maengel maengel() const;

    Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const PROGRAMMEINSTELLUNG& werte_;
    const Rechnungszustand& zustand_;
    const ZuletztGeoeffnet& zuletzt_;
    Dialogs& dialogs_;
};

} // namespace quittika
