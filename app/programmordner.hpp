#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quittika {

/// Names of the shipped files in the program folder, subfolders included.
const std::vector<std::filesystem::path>& MITGELIEFERTE_BILDER();
const std::vector<std::filesystem::path>& MITGELIEFERTE_BEISPIELE();

/// Where the shipped files lie when the program in `programmordner` is installed like any other: beside the
/// prefix's folder of executables. Empty where it is not.
std::filesystem::path INSTALLIERTE_DATEIEN(const std::filesystem::path& programmordner);

/// The directory that the program keeps its files in.
struct Programmordner {
    std::filesystem::path ordner;
    std::string meldung; ///< what could not be created or filled; empty when nothing is amiss
};

/// The folder of the executable, or where the program is installed or the user may not write there,
/// `datenordner`. When that has to be created, it is filled with the shipped files; later on with those
/// pictures that it lacks, and with the manual of this version. Nobody's own files are copied.
Programmordner PROGRAMMORDNER(const std::filesystem::path& programmdatei,
                              const std::filesystem::path& datenordner);

} // namespace quittika
