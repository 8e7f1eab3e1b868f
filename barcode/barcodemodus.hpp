#pragma once

#include "barcode/form_etp_barcode.hpp"
#include "invoice/form1.hpp"
#include "invoice/summen.hpp"
#include "masterdata/artikel.hpp"
#include "platform/desktop.hpp"
#include "platform/forms/opened_window.hpp"
#include "settings/programmeinstellung.hpp"

#include <string>

namespace quittika {

/// The barcode window: each code that it is given is a command, or an article that becomes a row of the
/// invoice.
class Barcodemodus {
public:
    Barcodemodus(Form_Etp_Barcode& form, Form1& form1, const PROGRAMMEINSTELLUNG& werte,
                 Artikeltabelle& ARTIKEL, const Artikelzustand& artikel, Summen& summen, Desktop& desktop);

    /// Does what a code commands; false when it is no command.
    bool BarcodeBefehl_suchen(const std::string& code);
    /// Shows that a command was recognised.
    void befehlgefunden_info(const std::string& text);
    /// Index in `ARTIKEL`, 0 when there is none, and shows which. An empty code is none and shows nothing.
    int Barcode_suchen(const std::string& code);
    /// Adds the article to the invoice by the main window's button, and shows the row; false where the main
    /// window refused it.
    bool Artikel_buchen(int index);

private:
    void Form_Load();
    void Text_Barcode_Change();
    void Text_Menge_Change();
    void Text_Barcode_KeyDown(int taste);
    void Check_set_Menge_Click();
    void Check_NoKundenname_Click();

    void melden(Color farbe, const std::string& text);
    void code_annehmen(const std::string& code);
    void code_ausfuehren(const std::string& code);
    void code_verlangen();
    void menge_verlangen();
    void kunde_leeren();
    std::string menge_nehmen();
    void zeile_zeigen(int zeile);
    void summe_zeigen();

    Form_Etp_Barcode& form_;
    Form1& form1_;
    const PROGRAMMEINSTELLUNG& werte_;
    Artikeltabelle& ARTIKEL_;
    const Artikelzustand& artikel_;
    Summen& summen_;
    Desktop& desktop_;
};

using Barcodefenster = OpenedWindow<Form_Etp_Barcode, Barcodemodus>;

} // namespace quittika
