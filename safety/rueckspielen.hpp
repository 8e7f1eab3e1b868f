#pragma once

#include "platform/progress.hpp"
#include "safety/sicherungsinhalt.hpp"

#include <string>
#include <vector>

namespace quittika {

/// A part of a backup and the folder that it goes to.
struct Rueckspielauftrag {
    const Sicherungsteil* teil;
    std::string ziel; ///< a system path
};

/// A file that stands where one of the backup is to go.
struct Neuere {
    std::string ort;
    std::int64_t zeit;      ///< seconds since 1970
    std::int64_t gesichert; ///< the same of the one in the backup
};

/// The files that were changed after those which would take their place, and hold something else.
std::vector<Neuere> NEUERE_DATEIEN(const Sicherungsinhalt& inhalt,
                                   const std::vector<Rueckspielauftrag>& auftraege);

/// What came of it.
struct Rueckspielstand {
    std::size_t zurueck = 0;  ///< files written
    std::size_t gleich = 0;   ///< files that held the same already
    std::size_t behalten = 0; ///< newer files that stayed
    std::string fehler;       ///< why it ended before its time, a sentence; empty if it did not
    bool abgebrochen = false; ///< by the user
};

/// Restores files one by one: each is the old or the new one, with the time that it had. A newer file is left
/// alone unless `neuere_ersetzen`. It ends at the first file that fails.
Rueckspielstand ZURUECKSPIELEN(const Sicherungsinhalt& inhalt,
                               const std::vector<Rueckspielauftrag>& auftraege, bool neuere_ersetzen,
                               ProgressDisplay& fortschritt);

} // namespace quittika
