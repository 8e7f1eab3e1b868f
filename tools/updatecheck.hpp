#pragma once

#include "invoice/form1.hpp"
#include "platform/dialogs.hpp"
#include "platform/shell.hpp"
#include "platform/verzeichnis.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace quittika {

/// The version as one number. Throws `Laufzeitfehler` 6 for one beyond 16 bits.
std::int16_t VERSIONSNUMMER(int haupt, int neben, int revision);

/// Program starts so far, by the line of the counter's file; 0 for a text that is no number. What 16 bits do
/// not hold counts as the bound.
int STARTZAEHLER(std::string_view zeile);

/// What the counter says after one more start; after 32000 it goes on with 1001.
int NAECHSTER_START(int zaehler);

/// Counts the starts and reminds of newer versions now and then.
class Updatecheck {
public:
    Updatecheck(Form1& form1, const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Shell& shell,
                const Clock& uhr);

    /// Once a start, when the main window is up. A counter that cannot be kept harms nothing.
    void Updatecheck_Start();
    void m_updatesuchen_Click();

private:
    void Updatecheck_Frage(std::int16_t nummer);
    void updateinfohtm();
    void Neujahr();
    void zaehler_schreiben(int zaehler) const;

    Form1& form1_;
    std::string pfad_;
    Dialogs& dialogs_;
    Shell& shell_;
    const Clock& uhr_;
};

} // namespace quittika
