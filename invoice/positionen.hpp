#pragma once

#include "invoice/form1.hpp"
#include "invoice/rechnung.hpp"
#include "invoice/rechnungszustand.hpp"
#include "invoice/summen.hpp"
#include "platform/dialogs.hpp"

namespace quittika {

/// Adds, changes and deletes rows of the position lists.
class Positionen {
public:
    Positionen(Form1& form1, Rechnungszustand& zustand, Rechnung& rechnung, Summen& summen, Dialogs& dialogs);

    void Cmd_Add_To_list_Click();
    /// Replaces the selected row by the input line; quantity 0 without "K" deletes it.
    void Command_AENDERN_Click();
    void md_Del_artikel_Click();
    void Command_Trennzeile_Click();
    void List_DARSTELLUNG_Click();
    /// A click in one of the six lists: the same row in all others.
    void Liste_Click(ListBox& liste);
    void Check_K_Click();
    /// Empties the input line without changing the row that was fetched; it stays selected.
    void ZeileLoslassen();

    /// Puts a row directly behind the selected one, at the top when none is selected: the input line,
    /// or a page break with `Trennzeile`. Resets the input line.
    /// A row whose total is no number is refused with a message; answers whether a row was added.
    bool ZeileHinzufuegen(bool Trennzeile);
    /// Takes the selected row into the input line.
    void ZeileInEingabeHolen();

private:
    enum class Eingabe { Gueltig, Menge_Null, Ungueltig };
    Eingabe EingabePruefen();
    void EingabeAblehnen();
    void MengeNullMelden();
    void ZeileEinfuegen(int stelle, bool Trennzeile);
    void ZeileAuswaehlen(int zeile, const Control& quelle);
    void ZeileEntfernen();
    /// Selects a row of `List_DARSTELLUNG` without fetching it: the input line does not belong to it then.
    void StillAuswaehlen(int zeile);
    void ListenAbschliessen();
    void NaechsteEingabe();

    Form1& form1_;
    Rechnungszustand& zustand_;
    Rechnung& rechnung_;
    Summen& summen_;
    Dialogs& dialogs_;
    bool auswahl_laeuft_ = false;
};

} // namespace quittika
