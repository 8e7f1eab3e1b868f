#pragma once

#include "invoice/form1.hpp"
#include "invoice/summen.hpp"
#include "masterdata/artikelverwaltung.hpp"
#include "masterdata/kundenverwaltung.hpp"
#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "platform/forms/opened_window.hpp"
#include "platform/verzeichnis.hpp"

#include <string>
#include <string_view>

namespace quittika {

/// Brings articles from their list into the invoice.
class Artikeluebernahme {
public:
    /// A row of the invoice that can take an article: the input line or one of the grid.
    struct Zeile {
        CheckBox& Check_K;
        TextBox& Text_Menge;
        TextBox& Text_leistung;
        TextBox& Text_preis;
    };

    Artikeluebernahme(Form1& form1, Artikelzustand& zustand, Artikeltabelle& ARTIKEL, Summen& summen,
                      Kundenfenster& kundenfenster, const Programmverzeichnis& verzeichnis, Desktop& desktop,
                      Dialogs& dialogs);

    Zeile Eingabezeile() const;
    static Zeile Rasterzeile(Form1::Rasterzeile& zeile, int seite);

    /// Lets the user choose an article for a row and waits for it; the customer list goes. Behind the choice
    /// the row's quantity has the focus.
    void Command_PLUS_Click(const Zeile& ziel);
    /// Shows the list beside the invoice; an article chosen there goes into the input line.
    void Command_Artikelliste_Click() { fenster_.open(); }
    /// The open list takes the colours that the main window has now.
    void FarbenUebernehmen() const;
    /// Text dropped on the description of a row. An article from the open list, or a line of the article
    /// file, fills the row; any other text becomes the description.
    void Ablegen(const Zeile& ziel, const std::string& text);

private:
    void Uebernehmen(const Zeile& ziel);
    std::string ArtikelzeileAus(std::string_view text) const;
    static void Fuellen(const Zeile& ziel, std::string_view artikelzeile);

    Form1& form1_;
    Artikelzustand& zustand_;
    Artikeltabelle& ARTIKEL_;
    Summen& summen_;
    Kundenfenster& kundenfenster_;
    const Programmverzeichnis& verzeichnis_;
    Desktop& desktop_;
    Dialogs& dialogs_;
    OpenedWindow<Form_Artikelverwaltung, Artikelverwaltung> fenster_;
};

} // namespace quittika
