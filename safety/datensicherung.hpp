#pragma once

#include "platform/datum.hpp"
#include "platform/progress.hpp"
#include "safety/sicherungsplan.hpp"

#include <string>

namespace quittika {

/// Writes a backup and reads it back: each file is held against its checksum and against the file that it is
/// a copy of, unless that was changed meanwhile. Only then does it take its place; until then, and where
/// anything fails, whatever stands there stays. Throws `Laufzeitfehler` (32755 where the user has stopped it)
/// and `Sicherungsfehler`.
/// `ziel`: a system path.
void DATENSICHERUNG_SCHREIBEN(const Sicherungsplan& plan, const Zeitpunkt& jetzt, const std::string& ziel,
                              ProgressDisplay& fortschritt);

/// Proposed name of a backup of that day.
std::string SICHERUNGSNAME(const Zeitpunkt& jetzt);

/// "3 Dateien, 1,2 MB".
std::string UMFANG_TEXT(std::size_t dateien, std::uint64_t bytes);

/// The time of a file, in the machine's zone.
Zeitpunkt ORTSZEIT(std::int64_t sekunden);

/// "2026-11-23T14:30:00"
std::string ISO_TEXT(const Zeitpunkt& z);

} // namespace quittika
