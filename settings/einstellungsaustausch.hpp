#pragma once

#include "platform/dialogs.hpp"
#include "settings/einstellungsschreiber.hpp"
#include "settings/frm_einstellungen.hpp"

#include <functional>
#include <string>

namespace quittika {

/// Carries the settings file to another place and back.
class Einstellungsaustausch {
public:
    /// `m_beenden_Click` ends the program as its menu does.
    Einstellungsaustausch(Form1& form1, frm_einstellungen& einstellungen, Einstellungsschreiber& schreiber,
                          const Programmverzeichnis& verzeichnis, Dialogs& dialogs,
                          std::function<void()> m_beenden_Click);

    /// Copies the settings file to a new file. Any failure is told, a cancelled dialog included.
    void m_export_Click();
    /// Replaces the settings file, or the older `prog.cfg`, by a file that the user chooses, and offers to
    /// end the program. A cancelled dialog ends it in silence.
    void m_import_Click();

private:
    void Uebernehmen(const std::string& datei);
    void melden(const std::string& text);

    Form1& form1_;
    frm_einstellungen& einstellungen_;
    Einstellungsschreiber& schreiber_;
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
    std::function<void()> m_beenden_Click_;
};

} // namespace quittika
