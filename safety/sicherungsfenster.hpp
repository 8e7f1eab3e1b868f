#pragma once

#include "invoice/form1.hpp"
#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "platform/forms/opened_window.hpp"
#include "platform/progress.hpp"
#include "platform/shell.hpp"
#include "safety/form_datensicherung.hpp"
#include "safety/sicherungsmerker.hpp"
#include "safety/sicherungsplan.hpp"
#include "settings/frm_einstellungen.hpp"

#include <optional>
#include <string>
#include <vector>

namespace quittika {

/// The window in which a backup is made.
class Sicherungsfenster {
public:
    Sicherungsfenster(Form_Datensicherung& form, const Form1& form1, const frm_einstellungen& einstellungen,
                      const Programmverzeichnis& verzeichnis, Desktop& desktop, Dialogs& dialogs,
                      const Clock& clock, Progress& progress);

private:
    void Form_Load();
    void Command_Ordner_hinzu_Click();
    void Command_Ordner_weg_Click();
    void Command_Sichern_Click();

    void OrdnerVorschlagen();
    void LetzteZeigen();
    void OrdnerZeigen();
    /// Answers whether it is on disk; what is not is told.
    bool MerkerSchreiben();
    Sicherungsplan Planen(const std::string& ziel) const;
    std::string Dateiwahl();
    bool OhneUnlesbares(const Sicherungsplan& plan);
    void Schreiben(const std::string& ziel);
    void melden(const std::string& text) { form_.Label_Status.Caption = text; }

    Form_Datensicherung& form_;
    const Form1& form1_;
    const frm_einstellungen& einstellungen_;
    const Programmverzeichnis& verzeichnis_;
    Desktop& desktop_;
    Dialogs& dialogs_;
    const Clock& clock_;
    Progress& progress_;
    Sicherungsmerker merker_;
};

using Datensicherung = OpenedWindow<Form_Datensicherung, Sicherungsfenster>;

} // namespace quittika
