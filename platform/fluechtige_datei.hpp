#pragma once

#include <string>

namespace quittika {

/// Puts one line in the place of what a file holds and does not wait for the disk, as `DATEI_SCHREIBEN` does:
/// for what may be lost or empty after a crash. Errors are those of `platform/datei.hpp`.
void DATEI_FLUECHTIG_SCHREIBEN(const std::string& pfad, const std::string& text);

} // namespace quittika
