#pragma once

#include "einvoice/befunde.hpp"
#include "einvoice/e_rechnungsausgabe.hpp"
#include "einvoice/form_e_rechnung.hpp"
#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "platform/forms/opened_window.hpp"
#include "platform/shell.hpp"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace quittika {

/// The window `Form_ERechnung`: checks what is typed at once, saves what is complete. Proposals stand in the
/// fields until the user confirms them, with OK or by saving.
class ERechnung {
public:
    /// `vor_der_ausgabe` brings the result fields of the main window up to date and may tell something.
    ERechnung(Form_ERechnung& form, Form1& form1, frm_einstellungen& einstellungen,
              E_Rechnungsausgabe& ausgabe, const Angabenspeicher& speicher, Dialogs& dialogs, Shell& shell,
              std::function<void()> vor_der_ausgabe);

private:
    void verdrahten();
    void Form_Load();
    void angaben_zeigen();
    bool kaeufer_zeigen();
    void auffrischen();
    void pruefen();
    void zum_feld();
    bool merken();
    bool noch_vollstaendig(const E_Rechnung& rechnung);
    void Command_OK_Click();
    void Command_ZUGFeRD_Click();
    void Command_XRechnung_Click();
    /// Asks for a name and writes; returns the path, empty where nothing was written.
    std::string speichern(const std::string& endung, const FileDialog& dialog,
                          const std::function<std::string()>& bytes);

    Form_ERechnung& form_;
    Form1& form1_;
    frm_einstellungen& einstellungen_;
    E_Rechnungsausgabe& ausgabe_;
    const Angabenspeicher& speicher_;
    Dialogs& dialogs_;
    Shell& shell_;
    std::function<void()> vor_der_ausgabe_;
    Belegquelle quelle_;
    E_Rechnung zugferd_;
    E_Rechnung xrechnung_;
    std::vector<Mangelbefund> befunde_;
    std::vector<std::size_t> gezeigt_; ///< the finding in each row of the list
    bool fuellt_ = false;              ///< the program is filling the fields
    bool blaettert_ = false;           ///< an arrow key is moving through the list
};

/// The one window of electronic invoices.
using ERechnungsfenster = OpenedWindow<Form_ERechnung, ERechnung>;

} // namespace quittika
