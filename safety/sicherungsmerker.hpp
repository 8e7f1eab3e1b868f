#pragma once

#include "platform/datum.hpp"
#include "platform/verzeichnis.hpp"

#include <optional>
#include <string>
#include <vector>

namespace quittika {

/// What the program remembers of its backups, in `Datensicherung.txt` of the program folder: a line of text
/// for each, "Rechnungsordner: /home/...".
struct Sicherungsmerker {
    std::optional<Zeitpunkt> letzte;   ///< backup
    std::optional<Zeitpunkt> erinnert; ///< or the first time that the program looked for one
    std::string ziel;                  ///< folder of the last backup
    std::vector<std::string> ordner;   ///< with invoices
    bool vorhanden = false;            ///< there is such a file

    static Sicherungsmerker LESEN(const Programmverzeichnis& verzeichnis);
    /// Throws `Laufzeitfehler`.
    void SCHREIBEN(const Programmverzeichnis& verzeichnis) const;
};

/// What to tell the user who has made no backup for 30 days, and has not been told for as long; else empty.
/// Notes when that was. In a folder without settings, as the first start finds it, the days have not begun.
std::string SICHERUNGSERINNERUNG(const Programmverzeichnis& verzeichnis, const Zeitpunkt& jetzt);

} // namespace quittika
