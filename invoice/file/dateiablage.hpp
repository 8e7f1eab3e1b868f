#pragma once

#include "invoice/hinweiszeile.hpp"
#include "platform/datei.hpp"
#include "platform/dialogs.hpp"
#include "platform/textdatei.hpp"
#include "platform/verzeichnis.hpp"

#include <string>

namespace quittika {

/// Panel 2 after a file could not be written.
inline constexpr const char* kSpeicherfehler = "FEHLER BEIM SPEICHERN";

/// Puts documents in the place of their files; the old file stays until the new one is complete.
class Dateiablage {
public:
    Dateiablage(Hinweiszeile& hinweise, const Programmverzeichnis& verzeichnis, Dialogs& dialogs);

    /// Shows a message and answers false when that fails. Panel 3 tells why, or of characters that the file
    /// cannot hold, or where the old content of a file written in place lies.
    bool Ablegen(const std::string& pfad, const Textpuffer& datei);
    /// What panel 3 told of the file written last, a line each; empty for nothing.
    const std::string& Meldung() const { return meldung_; }
    /// Tells of a file that could not be written: box and panel 3.
    void FehlerMelden(const Laufzeitfehler& fehler);

private:
    void Melden(const std::string& text);

    Hinweiszeile& hinweise_;
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
    std::string meldung_;
};

/// Asks whether a file that exists may be replaced.
bool UEBERSCHREIBEN_FRAGEN(const std::string& pfad, Dialogs& dialogs);

} // namespace quittika
