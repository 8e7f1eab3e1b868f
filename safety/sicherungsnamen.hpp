#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quittika {

inline constexpr const char* kProgrammteil = "Programm"; ///< folder of the program's files in a backup
inline constexpr const char* kInhaltsdatei = "Inhalt.txt";
inline constexpr const char* kMerkerdatei = "Datensicherung.txt"; ///< what the program remembers of backups

/// What belongs together among the program's files.
enum class Programmgruppe {
    Einstellungen,
    Nummern,
    Kunden,
    Artikel,
    Design,
    Textvorlagen,
    Rechnungen,
    Fassungen,
    Weitere,
};
inline constexpr int kProgrammgruppen = 9;

const char* GRUPPENNAME(Programmgruppe gruppe);

/// Group of a file of the program folder, given by its path in there with "/"; nothing for what is none of
/// the program's files, and for the places of the windows, which belong to the screen of this machine.
std::optional<Programmgruppe> PROGRAMMGRUPPE(std::string_view pfad);

/// Whether a file is a picture, by its name.
bool IST_BILDNAME(std::string_view name);

/// Whether a name is passed over in invoice folders: hidden, or a backup.
bool IST_AUSGENOMMEN(std::string_view name);

/// A path as it stands in a backup: UTF-8, and "%" with two digits for each byte that is none, that controls
/// or is a "\". `NAME_LESEN` gives back the bytes; a "\" is a "-" then, for in the program's paths it parts
/// folders.
std::string NAME_SCHREIBEN(std::string_view pfad);
std::string NAME_LESEN(std::string_view name);
/// The same name with its first character as a number: it differs from the other in more than the case.
std::string NAME_AUSWEICHEN(std::string_view name);

/// Whether a path leads to a place below the folder that it begins in: no "..", nothing hidden, nothing that
/// the system takes for another place.
bool FUEHRT_HINEIN(std::string_view pfad);

} // namespace quittika
