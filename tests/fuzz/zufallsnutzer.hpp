#pragma once

#include "platform/script/script_desktop.hpp"

#include <random>
#include <string>
#include <vector>

namespace quittika::fuzz {

/// A user without a plan: lines for the script runner, the same ones for the same seed and the same program.
class Zufallsnutzer {
public:
    explicit Zufallsnutzer(unsigned saat) : zufall_(saat) {}

    /// What is done next in the window in front. A line that begins with "#$" is for the shell, in the
    /// folder.
    std::vector<std::string> naechste_zeilen(const ScriptDesktop& desktop);

private:
    std::string ausgefuellt(std::string_view vorlage);
    std::string handgriff(const Form& fenster);
    std::string handgriff(const Control& steuerelement);

    /// 0 to `grenze` - 1
    int bis(std::size_t grenze) { return static_cast<int>(zufall_() % grenze); }
    template <class Liste> const auto& eines(const Liste& liste) {
        return liste[static_cast<std::size_t>(bis(std::size(liste)))];
    }

    std::mt19937 zufall_;
};

} // namespace quittika::fuzz
