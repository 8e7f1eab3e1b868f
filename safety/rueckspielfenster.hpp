#pragma once

#include "platform/desktop.hpp"
#include "platform/dialogs.hpp"
#include "platform/progress.hpp"
#include "platform/verzeichnis.hpp"
#include "safety/form_rueckspielen.hpp"
#include "safety/rueckspielen.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quittika {

/// Restores from a backup what the user chooses.
class Rueckspielfenster {
public:
    /// What it needs of the program around.
    struct Programm {
        std::function<bool()> vorher;  ///< saves what is open; false where the user wants to stay
        std::function<void()> beenden; ///< ends the program, which writes nothing more
    };
    Rueckspielfenster(const Programmverzeichnis& verzeichnis, Desktop& desktop, Dialogs& dialogs,
                      Progress& progress, Programm programm);

    /// Lets the user choose a backup, then parts of it.
    void m_zurueckspielen_Click();

private:
    struct Auswahl;
    std::optional<Sicherungsinhalt> Oeffnen(std::string& pfad);
    void Command_Zurueck_Click(Auswahl& auswahl);
    /// The folder that a part goes to; nothing where the user wants none of it all.
    std::optional<std::string> Zielordner(const Sicherungsteil& teil);
    std::optional<std::vector<Rueckspielauftrag>> Auftraege(const Auswahl& auswahl);
    /// Whether newer files are replaced; nothing where the user wants none of it all.
    std::optional<bool> NeuereErsetzen(const Auswahl& auswahl,
                                       const std::vector<Rueckspielauftrag>& auftraege);
    /// The folders that invoices went to belong to the next backup, too.
    void OrdnerMerken(const std::vector<Rueckspielauftrag>& auftraege);
    void ErgebnisMelden(const Rueckspielstand& stand, bool neustart);

    const Programmverzeichnis& verzeichnis_;
    Desktop& desktop_;
    Dialogs& dialogs_;
    Progress& progress_;
    Programm programm_;
};

} // namespace quittika
