#pragma once

#include "invoice/eingabezeile.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnung.hpp"
#include "invoice/rechnungszustand.hpp"
#include "invoice/summen.hpp"

#include <functional>
#include <string>

namespace quittika {

/// Adds, changes and deletes rows of the position lists.
class Positionen {
public:
    /// `Druckhinweis`: what there is to say of a row on paper, by its index; empty for nothing.
    Positionen(Form1& form1, Rechnungszustand& zustand, Eingabezeile& eingabezeile, Rechnung& rechnung,
               Summen& summen, std::function<std::string(int zeile)> Druckhinweis);

    void Cmd_Add_To_list_Click();
    /// Replaces the selected row by the input line; quantity 0 without "K" deletes it.
    void Command_AENDERN_Click();
    /// Deletes the selected row. The focus goes to the list.
    void md_Del_artikel_Click();
    /// Puts a page break behind the selected row and selects it, so that it can be deleted at once.
    void Command_Trennzeile_Click();
    void List_DARSTELLUNG_Click();
    /// A click in one of the six lists: the same row in all others.
    void Liste_Click(ListBox& liste);
    void Check_K_Click();
    /// The Return key in the input line: changes the row that was fetched, else adds one.
    void Eingabetaste();
    /// Empties the input line without changing the row that was fetched; it stays selected.
    void ZeileLoslassen();
    /// Recalculates when a field of the input line is left; what is no number yet has no row total.
    void EingabezeileVerlassen();

    /// Puts a row directly behind the selected one, at the top when none is selected: the input line,
    /// or a page break with `Trennzeile`. Resets the input line.
    /// A row whose total is no number is refused with a message; answers whether a row was added.
    bool ZeileHinzufuegen(bool Trennzeile);
    /// Selects a row of `List_DARSTELLUNG` without fetching it: the input line does not belong to it then.
    void StillAuswaehlen(int zeile);
    /// Takes the selected row into the input line.
    void ZeileInEingabeHolen();

private:
    enum class Eingabe { Gueltig, Menge_Null, Ungueltig };
    Eingabe EingabePruefen();
    void EingabeAblehnen(const Eingabezeile::Ablehnung& ablehnung);
    void MengeNullMelden();
    void ZeileEinfuegen(int stelle, bool Trennzeile);
    void StrichpunkteErsetzen();
    void ZeileAuswaehlen(int zeile, const Control& quelle);
    void ZeileEntfernen();
    void ListenAbschliessen(int ab);
    void NaechsteEingabe();
    void EingabezeileLeeren();

    Form1& form1_;
    Rechnungszustand& zustand_;
    Eingabezeile& eingabezeile_;
    Rechnung& rechnung_;
    Summen& summen_;
    std::function<std::string(int zeile)> druckhinweis_;
};

} // namespace quittika
