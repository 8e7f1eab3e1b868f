#pragma once

#include "invoice/rechnungszustand.hpp"
#include "platform/dialogs.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/einstellungsschreiber.hpp"
#include "settings/programmstil.hpp"

namespace quittika {

/// The dialog of the program's own settings: style of the windows, automatic date, reset.
class Programmfenster {
public:
    Programmfenster(Form1& form1, frm_Programm& programm, PROGRAMMEINSTELLUNG& werte,
                    Rechnungszustand& zustand, Programmstil& stil, Einstellungsschreiber& schreiber,
                    const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Desktop& desktop);

    /// Shows the dialog beside the other windows. It begins with the style that those show; until the
    /// take-over nothing of it is saved.
    void m_Programmeinstellungen_Click();

private:
    void Command_uebernehmen_Click();
    /// The windows keep the style that was tried; the settings are those from before.
    void Command_nichtuebernehmen_Click();
    void FARBE_WAEHLEN(Color& farbe);
    /// Deletes the settings, the page design and the Analyzer's source and ends the program, nothing saved.
    void Command_delreg_Click();

    Form1& form1_;
    frm_Programm& programm_;
    Rechnungszustand& zustand_;
    Programmstil& stil_;
    Einstellungsschreiber& schreiber_;
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
    Desktop& desktop_;
    Stilwahl in_kraft_; ///< of the opening
    int datum_in_kraft_ = 0;
};

} // namespace quittika
