#pragma once

#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "platform/forms/opened_window.hpp"
#include "platform/progress.hpp"
#include "platform/verzeichnis.hpp"
#include "safety/form_nummernpruefung.hpp"
#include "safety/nummernpruefung.hpp"

#include <functional>
#include <optional>
#include <string>

namespace quittika {

/// Gaps and doubles among the numbers of a folder's invoices, in their window.
class Nummernfenster {
public:
    /// Shows an invoice file in the main window.
    using Rechnungsoeffner = std::function<void(const std::string& pfad)>;

    /// `AktuellerPfad` answers the file of the invoice in hand, near which the others are looked for.
    Nummernfenster(Form_Nummernpruefung& form, const Programmverzeichnis& verzeichnis, Desktop& desktop,
                   Dialogs& dialogs, Progress& progress, std::function<std::string()> AktuellerPfad,
                   Rechnungsoeffner oeffneRN);

private:
    void Form_Load();
    void Command_Ordner_Click();
    void Command_Pruefen_Click();
    void Command_Oeffnen_Click();
    void Command_Speichern_Click();

    void OrdnerZeigen();
    void Leeren();
    void BefundZeigen(const Nummernliste& liste);
    void zeile(const std::string& text, const std::string& datei = {});
    void doppelte(const Nummernliste& liste, const Nummernbefund& befund);
    void zaehlerstand(const Nummernliste& liste, const Nummernbefund& befund);
    std::optional<std::int64_t> Zaehler() const;
    void melden(const std::string& text) { form_.Label_Status.Caption = text; }

    Form_Nummernpruefung& form_;
    const Programmverzeichnis& verzeichnis_;
    Desktop& desktop_;
    Dialogs& dialogs_;
    Progress& progress_;
    std::function<std::string()> AktuellerPfad_;
    Rechnungsoeffner oeffneRN_;
    std::string ordner_;
};

using Nummernpruefung = OpenedWindow<Form_Nummernpruefung, Nummernfenster>;

} // namespace quittika
