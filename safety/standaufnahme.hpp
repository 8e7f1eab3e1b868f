#pragma once

#include "invoice/file/rechnungsnummern.hpp"
#include "invoice/file/rechnungssperre.hpp"
#include "invoice/positionen.hpp"
#include "safety/rechnungsstand.hpp"
#include "safety/standfelder.hpp"
#include "settings/programmeinstellung.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace quittika {

/// Reads the invoice in the window as a state and puts states back.
class Standaufnahme {
public:
    Standaufnahme(Form1& form1, PROGRAMMEINSTELLUNG& werte, Rechnungszustand& zustand,
                  Eingabezeile& eingabezeile, Rechnung& rechnung, Summen& summen, Positionen& positionen,
                  Rechnungsnummern& nummern, Dateistand& dateistand, Rechnungssperre& sperre);

    /// Brings `stand` to what is in the window now; answers the way back, without a name. What only belongs
    /// to the invoice's file and to its number from the counter is taken over and is no step.
    Schritt nachfuehren(Rechnungsstand& stand);
    /// Brings the window to where `schritt` leads from what is in it now. The file of another invoice is
    /// locked again; one that somebody else has opened meanwhile is no longer saved to directly.
    void gehen(const Schritt& schritt);

    const std::vector<Standfeld>& felder() const { return felder_; }

private:
    std::array<ListBox*, 5> listen() const;
    void felder_nachfuehren(Rechnungsstand& stand, bool nummer_folgt, Schritt& schritt) const;
    void zeilen_nachfuehren(Rechnungsstand& stand, Schritt& schritt);
    Begleitung begleitung() const;
    Belegbezug beleg() const;
    void felder_setzen(const Schritt& schritt);
    void zeilen_setzen(const Zeilentausch& tausch);
    void beleg_setzen(const Belegbezug& beleg);
    void eingabe_setzen(const Schritt& schritt, const std::vector<std::string>& vorher);
    std::vector<std::string> eingabe() const;

    Form1& form1_;
    PROGRAMMEINSTELLUNG& werte_;
    Rechnungszustand& zustand_;
    Eingabezeile& eingabezeile_;
    Rechnung& rechnung_;
    Summen& summen_;
    Positionen& positionen_;
    Rechnungsnummern& nummern_;
    Dateistand& dateistand_;
    Rechnungssperre& sperre_;
    std::vector<Standfeld> felder_;
    std::size_t nummernfeld_;
    std::array<std::uint64_t, 5> gelesen_{}; ///< revisions of the lists that were read last
};

} // namespace quittika
