#pragma once

#include "invoice/file/rechnungsnummern.hpp"
#include "invoice/summen.hpp"
#include "platform/dialogs.hpp"
#include "settings/bilderwahl.hpp"
#include "settings/einstellungsuebernahme.hpp"
#include "settings/ruecknahme.hpp"

#include <optional>

namespace quittika {

/// Opens the invoice settings and ends them: by taking over, or by giving all fields back what was in force.
class Einstellungsfenster {
public:
    Einstellungsfenster(frm_einstellungen& einstellungen, PROGRAMMEINSTELLUNG& werte,
                        Rechnungszustand& zustand, Einstellungsuebernahme& uebernahme,
                        Einstellungsschreiber& schreiber, Rechnungsnummern& nummern, Logo& logo,
                        Bilderwahl& bilder, Summen& summen, Dialogs& dialogs);

    /// Opens the window, or brings the open one to the front.
    void m_Rechnungsdaten_Click();
    /// The same, with the page of the print adjustment in front.
    void m_druckjustierung_Click();
    /// Takes over everything and recalculates the invoice in hand. What is then in force is what the window
    /// comes back to.
    void UEBERNEHMEN(bool schliessen);
    /// The same by the button, which closes, and offers to keep pictures that were chosen.
    void Command_uebernehmen2_Click();
    /// Asks, and then gives back what was in force and closes.
    void Command_nichtuebernehmen_Click();

private:
    void Anzeigen();
    void StandMerken();

    frm_einstellungen& form_;
    PROGRAMMEINSTELLUNG& werte_;
    Rechnungszustand& zustand_;
    Einstellungsuebernahme& uebernahme_;
    Einstellungsschreiber& schreiber_;
    Rechnungsnummern& nummern_;
    Logo& logo_;
    Bilderwahl& bilder_;
    Summen& summen_;
    Dialogs& dialogs_;
    std::optional<Ruecknahme> in_kraft_; ///< while the window is open
};

} // namespace quittika
