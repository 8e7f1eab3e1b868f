#pragma once

#include <filesystem>

namespace quittika {

/// The directory that the program keeps its files in: the folder of the executable, or where the user may not
/// write there, `datenordner`, which is created and filled with the shipped files it lacks.
std::filesystem::path PROGRAMMORDNER(const std::filesystem::path& programmdatei,
                                     const std::filesystem::path& datenordner);

} // namespace quittika
