#pragma once

#include "invoice/form1.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/frm_programm.hpp"
#include "settings/programmeinstellung.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace quittika {

inline constexpr const char* kZweiterStart = "ZWEITERSTART"; ///< line 1 of a valid file

/// What the text of a settings line is.
enum class Zeilenform : std::uint8_t {
    Fest, ///< the same in every file, not read back
    Text,
    Int,    ///< 16 bits
    Long,   ///< 32 bits
    Check,  ///< "0", "1"
    Bool,   ///< "-1", "0"; "True" and "False" are understood, too
    Scroll, ///< as Int, within the bounds of the scroll bar
    Groesse ///< the same of a font size; one out of bounds becomes its substitute
};

/// A line of the settings file: what it is called, where its value lives, and what it begins with.
struct Einstellungszeile {
    using Besitzer = std::variant<std::monostate, TextBox*, Label*, CheckBox*, OptionButton*, RangeControl*,
                                  std::string*, std::int32_t*, bool*>;
    std::string schluessel;
    Zeilenform form;
    Besitzer besitzer;
    std::string vorgabe;           ///< as the windows are designed
    int ersatz = 0;                ///< for a font size that is none
    bool aus_prog_cfg = true;      ///< the older file `prog.cfg` gives it back
    const Form* fenster = nullptr; ///< the settings window that changes it before it is taken over
};

/// The lines with a meaning, by number; behind them the file is padded.
using Einstellungstabelle = std::vector<Einstellungszeile>;

/// All of them, for windows that are as designed.
Einstellungstabelle EINSTELLUNGSTABELLE(Form1& form1, frm_einstellungen& einstellungen,
                                        frm_Programm& programm, PROGRAMMEINSTELLUNG& werte);

/// What the owner of a line contributes to the file.
std::string ZEILENTEXT(const Einstellungszeile& zeile);

/// Gives the owner its value. Throws `Laufzeitfehler` 13 or 6 for a text that does not convert, 380 for a
/// value that the owner refuses.
void ZEILE_SETZEN(const Einstellungszeile& zeile, const std::string& text);

enum class Einstellungsquelle : std::uint8_t { prog_n_cfg, prog_cfg };

/// Gives every owner its default and then, in order, what `texte` hold, up to the first that is refused.
/// Returns how many lines were taken.
std::size_t EINSTELLUNGEN_VERTEILEN(const Einstellungstabelle& tabelle, std::span<const std::string> texte,
                                    Einstellungsquelle quelle);

} // namespace quittika
