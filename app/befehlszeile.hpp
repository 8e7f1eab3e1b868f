#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quittika {

/// What the program was started for.
struct Befehlszeile {
    std::filesystem::path rechnung; ///< the invoice to open, absolute; empty: none
    std::string antwort;            ///< for the terminal, instead of a start; empty: the program starts
    bool fehler = false;            ///< the answer tells a mistake
};

/// Exit status after a mistake on the command line.
inline constexpr int kBefehlszeilenfehler = 2;

/// Reads the arguments behind the program's name. A relative path counts from the present directory.
Befehlszeile BEFEHLSZEILE(const std::vector<std::string>& argumente);

} // namespace quittika
