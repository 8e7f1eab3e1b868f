#pragma once

#include <filesystem>

namespace quittika {

/// The directory that the program keeps its files in: the folder of the executable, or where the user may not
/// write there, `datenordner`, which is created and filled with the shipped files it lacks.
std::filesystem::path PROGRAMMORDNER(const std::filesystem::path& programmdatei,
                                     const std::filesystem::path& datenordner);

/// Copies the shipped pictures, invoices and documents of one directory into another, where they are missing.
void MITGELIEFERTES_KOPIEREN(const std::filesystem::path& von, const std::filesystem::path& nach);

} // namespace quittika
