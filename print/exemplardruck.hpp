#pragma once

#include "invoice/form1.hpp"
#include "platform/dialogs.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/print_surface.hpp"
#include "platform/printing.hpp"

#include <functional>
#include <string>

namespace quittika {

/// What a kind of print job calls itself.
struct Druckworte {
    const char* blatt;       ///< panel 2 before "1/3", the copy in hand
    const char* abgebrochen; ///< panel 2 after a cancel
    const char* ausweg;      ///< what helps against texts printed one over the other
};

/// Prints copies of something, each a job of its own, from the printer dialog to the end of the last one.
/// Panel 2 of the main window says how it goes, panel 3 why it failed, where a file lies and what is missing
/// on paper.
class Exemplardruck {
public:
    /// Draws one copy, the end of its document included.
    using Zeichnung = std::function<void(PrintSurface& surface)>;

    Exemplardruck(Form1& form1, Dialogs& dialogs, Printing& printing, const Druckworte& worte);

    /// Asks for the printer and returns the number of copies; `dateiname` is proposed to who prints into a
    /// file. Throws `Laufzeitfehler` 32755 when it is cancelled.
    int drucker_waehlen(const std::string& dateiname);
    /// Throws the error of the copy that failed.
    void drucken(int anzahl, const std::string& titel, const Zeichnung& zeichnung);
    /// Tells of a job that ended with an error, or was cancelled.
    void gescheitert(const Laufzeitfehler& fehler);

private:
    void exemplar(const std::string& titel, const Zeichnung& zeichnung);

    Form1& form1_;
    Dialogs& dialogs_;
    Printing& printing_;
    Druckworte worte_;
};

} // namespace quittika
