#pragma once

#include "analyzer/ansicht.hpp"
#include "analyzer/diagramm.hpp"
#include "analyzer/form_analyzer.hpp"
#include "platform/dialogs.hpp"
#include "platform/printing.hpp"

#include <optional>
#include <string>
#include <vector>

namespace quittika {

/// What the user sees of the invoices that were analysed: searched, sorted, as charts; and what is saved of
/// it. The lists keep the order of the files.
class Analyzeransicht {
public:
    Analyzeransicht(Form_Analyzer& form, Printing& printing, Dialogs& dialogs);

    /// Where the invoices in the lists come from.
    struct Herkunft {
        std::string ordner;
        bool vollstaendig = true; ///< none of its invoices is missing because the user stopped the analysis
    };
    /// Shows what the lists hold now: all of it, in the order of the files.
    void NEUE_DATEN(Herkunft herkunft);

private:
    void Alle_zeigen();
    void Text_suchen_Change();
    void CMD_Sortieren_Click(int spalte);
    void Diagramm_Click(Chart& diagramm, Chart& anderes);
    void CMD_Unbezahlte_CSV_Click();
    void CMD_Diagramm_speichern_Click();

    void ansicht_zeigen();
    void pfeile_zeigen();
    void befund_zeigen();
    void auswahl_nachfuehren();
    void diagramme_fuellen();
    std::vector<int> gewuenschte();
    /// The invoices of the bar that is marked.
    std::optional<std::vector<int>> gewaehlte() const;
    bool eingeschraenkt() const;
    void melden(const std::string& text);
    /// Asks for a file and lets `schreiben` make it. Tells what stands in the way.
    template <class Schreiben> void speichern(const FileDialog& dialog, const Schreiben& schreiben);

    Form_Analyzer& form_;
    Printing& printing_;
    Dialogs& dialogs_;
    Herkunft herkunft_;
    int anzahl_ = 0;                     ///< invoices that the lists hold
    std::vector<std::string> suchtexte_; ///< made for the first search
    Monatsbild monate_;
    std::vector<Saeule> stufen_;
    bool diagramme_alt_ = false; ///< they do not show what the lists hold
    int spalte_ = -1;            ///< that sorts
    bool absteigend_ = false;
    bool still_ = false; ///< controls are set by the program
};

} // namespace quittika
