#pragma once

#include "app/kopf.hpp"
#include "app/ladefolge.hpp"
#include "invoice/file/dateibefehle.hpp"
#include "platform/desktop.hpp"
#include "safety/entwurf.hpp"

#include <functional>

namespace quittika {

/// The main window as a window: loading, title and closing. Its areas and menus are wired beside it.
class Hauptfenster {
public:
    /// `andere_schliessen` closes the windows with work of their own; false where the user keeps one.
    Hauptfenster(Form1& form1, Rechnungszustand& zustand, Ladefolge& ladefolge, Kopf& kopf,
                 Dateibefehle& dateibefehle, Entwurf& entwurf, const Programmverzeichnis& verzeichnis,
                 Desktop& desktop, std::function<bool()> andere_schliessen);

    /// Remembers the state of the window, asks whether to save and ends the program.
    void m_beenden_Click();
    /// Ends the program as it stands: nothing is asked, nothing is written.
    void SofortBeenden();
    /// Saves the invoice and closes what else holds unsaved work, as the user answers; false where there is
    /// no leave.
    bool ArbeitSichern();

private:
    void Form_QueryUnload(bool& abbrechen);
    void StandZeigen();

    Form1& form1_;
    Rechnungszustand& zustand_;
    Dateibefehle& dateibefehle_;
    Entwurf& entwurf_;
    const Programmverzeichnis& verzeichnis_;
    std::function<bool()> andere_schliessen_;
    bool ohne_frage_schliessen_ = false;
};

} // namespace quittika
