#pragma once

#include "invoice/positionen.hpp"

namespace quittika {

/// The menu of a row of the position list: what it does beyond the buttons beside the list.
class Zeilenmenue {
public:
    Zeilenmenue(Form1& form1, Rechnungszustand& zustand, Eingabezeile& eingabezeile, Rechnung& rechnung,
                Summen& summen, Positionen& positionen);

    /// Moves to the input line, where the selected row stands to be changed.
    void m_Zeile_aendern_Click();
    /// Makes the input line ready for a comment that goes in before the selected row.
    void m_Zeile_kommentar_Click();
    void m_Zeile_hoch_Click() { ZeileVerschieben(-1); }
    void m_Zeile_runter_Click() { ZeileVerschieben(1); }

    /// Enables what can be done with the selected row.
    void EintraegeFreigeben();

private:
    /// Moves the selected row by so many places; it stays selected, and what is typed for it stays.
    void ZeileVerschieben(int schritt);
    /// Selects a row, or none with -1, in all lists without fetching it.
    void Auswaehlen(int zeile);

    Form1& form1_;
    Rechnungszustand& zustand_;
    Eingabezeile& eingabezeile_;
    Rechnung& rechnung_;
    Summen& summen_;
    Positionen& positionen_;
};

} // namespace quittika
