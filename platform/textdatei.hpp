#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

// Text files are lines in Windows-1252 with CR LF. A line read ends with CR LF, LF or the end of the file;
// a lone CR and every other byte stay in it. Text in memory is UTF-8. Errors are those of
// `platform/datei.hpp`.

/// Hands over line after line of a file's bytes until `weiter` answers false.
void zeilen_durchgehen(std::string_view bytes, const std::function<bool(std::string_view zeile)>& weiter);

/// The same with the lines of a text in memory, as views of it.
void zeilen_teilen(std::string_view text, const std::function<bool(std::string_view zeile)>& weiter);

/// At most `hoechstens` lines of a file.
std::vector<std::string> zeilen_lesen(const std::string& pfad,
                                      std::size_t hoechstens = std::numeric_limits<std::size_t>::max());

/// Lines on their way into a file.
class Textpuffer {
public:
    void zeile(std::string_view text);
    const std::string& bytes() const { return bytes_; }
    /// Characters so far that the code page lacks.
    std::size_t ersetzt() const { return ersetzt_; }

private:
    std::string bytes_;
    std::size_t ersetzt_ = 0;
};

/// Replaces a file by these lines, as `datei_ersetzen` does; returns how many characters the code page lacks.
std::size_t zeilen_ersetzen(const std::string& pfad, const std::vector<std::string>& zeilen);

/// First line of a file; "FEHLER" if it is missing, unreadable or empty.
std::string DATEI_ERSTE_ZEILE(const std::string& pfad);

/// Replaces a file by one line.
void DATEI_SCHREIBEN(const std::string& pfad, const std::string& text);

/// How a file operation ended.
struct Dateiergebnis {
    bool gelungen = true;
    int fehlernummer = 0;
    std::size_t ersetzt = 0; ///< characters that the code page lacks
    explicit operator bool() const { return gelungen; }
};

/// Appends one line; a file that does not exist is created. A line that could not be written whole is taken
/// back.
Dateiergebnis ZEILE_ANHAENGEN(const std::string& pfad, const std::string& zeile);

/// Field `index`, counted from 0, of a line split at `trenner`, as a view of the line; "ERROR" if there is
/// none, and for an empty line.
std::string_view FELD_AUS_ZEILE(std::string_view zeile, std::string_view trenner, int index);

} // namespace quittika
