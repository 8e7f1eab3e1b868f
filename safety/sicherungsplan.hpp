#pragma once

#include "safety/zipdatei.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace quittika {

/// A folder outside of the program's that a backup takes files from.
struct Sicherungsordner {
    std::string kennung; ///< name of its folder in the backup: "Rechnungen 1", "Bilder 2"
    std::string pfad;    ///< where it lies, a system path
};

/// What a backup is to hold.
struct Sicherungsplan {
    std::vector<Zipquelle> dateien;
    std::vector<Sicherungsordner> ordner;
    std::vector<std::string> unlesbar; ///< paths of what cannot be read, and so would be missing
    std::uint64_t bytes = 0;
};

/// Gathers the program's files, the files of the invoice folders with all that lies below, and pictures that
/// lie elsewhere. Hidden files, other backups, drafts of programs that run and folders behind
/// links are passed over.
/// `programmordner`: a system path. `ziel`: the backup itself, where it is a file already.
/// Throws `Sicherungsfehler` for more files than a backup holds.
Sicherungsplan SICHERUNG_PLANEN(const std::string& programmordner, const std::vector<std::string>& ordner,
                                const std::vector<std::string>& bilder, const std::string& ziel = {});

/// The list of the folders that goes into the backup, and back. Throws `Sicherungsfehler` for a list that is
/// none.
std::string INHALT_SCHREIBEN(const std::string& zeit, const std::vector<Sicherungsordner>& ordner);
struct Sicherungskopf {
    std::string zeit; ///< of the backup, "2026-11-23T14:30:00"
    std::vector<Sicherungsordner> ordner;
};
Sicherungskopf INHALT_LESEN(const std::string& text);

} // namespace quittika
