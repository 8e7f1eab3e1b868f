#pragma once

#include "analyzer/analyzeransicht.hpp"
#include "analyzer/form_analyzer.hpp"
#include "analyzer/rechnungsliste.hpp"
#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "platform/forms/opened_window.hpp"
#include "platform/progress.hpp"
#include "platform/shell.hpp"
#include "platform/verzeichnis.hpp"

#include <functional>
#include <string>
#include <string_view>

namespace quittika {

/// The invoices of a folder in their window. It reads invoice files and never writes one.
class Analyzer {
public:
    /// Shows an invoice file in the main window.
    using Rechnungsoeffner = std::function<void(const std::string& pfad)>;

    Analyzer(Form_Analyzer& form, const Programmverzeichnis& verzeichnis, Desktop& desktop, Dialogs& dialogs,
             Printing& printing, Shell& shell, const Clock& clock, Progress& progress,
             Rechnungsoeffner oeffneRN);

    /// Fills `List_dateien` with the names of the files that fit a pattern. Throws `Laufzeitfehler` for a
    /// folder that cannot be read; the list is empty then.
    void Dateien_suchen(const std::string& ordner, std::string_view muster);
    /// Brings all lists to the row marked in this one and shows its state.
    void Zeile_auswaehlen(const ListBox& liste);
    /// Builds the summary of what the lists hold.
    void BERECHNUNG_GESAMTWERTE();

private:
    void Form_Load();
    void Command_Quellordner_Click();
    void CMD_START_ANALYSE_Click();
    void CMD_OPEN_markierte_RN_Click();
    void cmd_ErgebnisSpeichern_Click();
    void m_Info_Click();

    void PfadMerken();
    void PfadZeigen();
    void StandLeeren();
    void Leeren();
    bool Rechnungen_suchen();
    Rechnungsliste Lesen();
    void Uebernehmen(Rechnungsliste&& liste);
    void StandZeigen(const Rechnungsliste& liste, std::size_t dateien);
    void AbbruchZeigen(const Rechnungsliste& liste, std::size_t dateien);
    void melden(const std::string& text, const std::string& einzelheiten = {});

    Form_Analyzer& form_;
    const Programmverzeichnis& verzeichnis_;
    Desktop& desktop_;
    Dialogs& dialogs_;
    Shell& shell_;
    const Clock& clock_;
    Progress& progress_;
    Rechnungsoeffner oeffneRN_;
    Analyzeransicht ansicht_;
    std::string pfad_;      ///< folder chosen last; "FEHLER" or empty for none
    std::string gelesener_; ///< folder of the invoices in the lists
    bool AlteVersionGefunden = false;
};

using Analyzerfenster = OpenedWindow<Form_Analyzer, Analyzer>;

} // namespace quittika
