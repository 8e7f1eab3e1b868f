#pragma once

#include "invoice/file/dateibefehle.hpp"
#include "invoice/file/rechnungsnummern.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/platform.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/frm_programm.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// Fills the main window when it is loaded.
class Ladefolge {
public:
    struct Ziele {
        Form1& form1;
        frm_einstellungen& einstellungen;
        frm_Programm& programm;
        PROGRAMMEINSTELLUNG& werte;
        Rechnungszustand& zustand;
        const Programmverzeichnis& verzeichnis;
        const Platform& platform;
        Summen& summen;
        Rechnung& rechnung;
        Vorgaben& vorgaben;
        Dateibefehle& dateibefehle;
        Rechnungsnummern& nummern;
        ZuletztGeoeffnet& zuletzt;
    };
    explicit Ladefolge(Ziele ziele);

    /// The whole sequence; it runs once.
    void Form_Load();

    /// Logo pictures of the main window by page design; none without a logo and with the user's own design.
    void LayoutZeigen();

private:
    void KonstantenSetzen();
    void BilderLaden();
    void VorgabenUebernehmen();
    void Zentrieren();
    void SchriftgroessenPruefen();
    void FarbenSetzen();
    void BUTTON_SEITENFREIGABE() {} ///< hook for releasing pages of the grid

    Ziele z_;
    bool geladen_ = false;
};

/// Page design 1 to 9 by the option button that is on, 0 when none is.
int GEWAEHLTES_LAYOUT(frm_einstellungen& einstellungen);

} // namespace quittika
