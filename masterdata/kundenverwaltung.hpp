#pragma once

#include "invoice/form1.hpp"
#include "masterdata/form_kundenverwaltung.hpp"
#include "masterdata/listendatei.hpp"
#include "masterdata/listensuche.hpp"
#include "platform/forms/opened_window.hpp"
#include "platform/verzeichnis.hpp"

#include <string>
#include <string_view>

namespace quittika {

/// The customer list in its window.
class Kundenverwaltung {
public:
    static constexpr int kHoechstens = 7000; ///< customers; lines behind them are not seen

    Kundenverwaltung(Form_Kundenverwaltung& form, Form1& form1, Artikelzustand& zustand,
                     const Programmverzeichnis& verzeichnis, Dialogs& dialogs);

    /// Fills the list with the lines of a file; one that cannot be read is an empty list. Returns "FEHLER" at
    /// the end of the file, else the last line read.
    std::string Kundenliste_laden(const std::string& pfad);
    /// Shows a line that was appended to the file.
    void Aufgenommen(const std::string& zeile);
    void Schliessen() { form_.Close(); }
    /// Takes the colours that the main window has now.
    void FarbenUebernehmen();

private:
    void Form_Load();
    void TitelZeigen();
    void Command_OK_Click();
    void Command_delete_Click();

    Form_Kundenverwaltung& form_;
    Form1& form1_;
    std::string pfad_;
    std::string sicherung_;
    Listentransfer transfer_;
    Listensuche suche_;
};

/// The one customer list of the program.
using Kundenfenster = OpenedWindow<Form_Kundenverwaltung, Kundenverwaltung>;

/// Fills the customer of the invoice from a line of the list. A field that the line does not have stays.
void LISTOK_KD_List(Form1& form1, std::string_view zeile);

} // namespace quittika
