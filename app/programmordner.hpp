#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quittika {

/// Names of the shipped files in the program folder, subfolders included.
const std::vector<std::filesystem::path>& MITGELIEFERTE_DATEIEN();

/// The directory that the program keeps its files in.
struct Programmordner {
    std::filesystem::path ordner;
    std::string meldung; ///< what could not be created or filled; empty when nothing is amiss
};

/// The folder of the executable, or where the user may not write there, `datenordner`. When that has to be
/// created, it is filled with the shipped files; one that is there is given the shipped subfolders that it
/// lacks. Nobody's own files are copied.
Programmordner PROGRAMMORDNER(const std::filesystem::path& programmdatei,
                              const std::filesystem::path& datenordner);

} // namespace quittika
