#pragma once

#include "platform/datei.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include <sys/stat.h>

namespace quittika {

// The system's file operations, for the file layer and for what reads and writes files piece by piece.

/// Throws the `Laufzeitfehler` that belongs to an error of the system. Where a folder refused, `pfad` is its
/// own and ends with "/".
[[noreturn]] void scheitern(int system, const std::string& pfad);

/// The system's form of a path. Throws `Laufzeitfehler` 52 for one with a NUL in it: it names no file.
std::string ort_von(const std::string& pfad);

/// Folder of a file, with "/" at its end.
std::string ordner_von(const std::string& ort);

/// Makes sure that a new or renamed file stays in its folder even if the machine stops now.
void ordner_sichern(const std::string& ordner);

/// Gives a file another name in the same file system, in the place of what has that name.
void umbenennen(const std::string& alt, const std::string& neu);
/// The same, but throws 58 where something has that name.
void umbenennen_ohne_ersatz(const std::string& alt, const std::string& neu);

/// Tells the watch that the content of a file goes; nothing where there is none.
void abgang_melden(const std::string& ort, Abgang abgang);

/// An open file, closed at the end of its life. What fails throws `Laufzeitfehler` with `pfad`.
class Datei {
public:
    Datei(std::string pfad, int art, mode_t rechte = 0666);
    /// Takes over a file that is open already.
    Datei(int nummer, std::string pfad) : pfad_(std::move(pfad)), nummer_(nummer) {}
    Datei(const Datei&) = delete;
    Datei& operator=(const Datei&) = delete;
    ~Datei();

    int nummer() const { return nummer_; }
    struct stat auskunft() const;
    /// Everything from the present position on. Throws 7 for a file of more than `hoechstens` bytes.
    std::string lesen(std::size_t hoechstens) const;
    void schreiben(std::string_view bytes) const;
    /// Bytes from a place on; returns how many there were, 0 at the end of the file.
    std::size_t lesen_ab(std::uint64_t stelle, char* ziel, std::size_t hoechstens) const;
    void schreiben_ab(std::uint64_t stelle, std::string_view bytes) const;
    /// Puts these bytes in the place of all that the file holds.
    void ueberschreiben(std::string_view bytes) const;
    /// Returns when everything written is on disk.
    void sichern() const;
    void schliessen();

private:
    std::string pfad_;
    int nummer_;
};

/// Replaces a file, as `datei_ersetzen` does, by what `schreiben` makes of a new one, which it may read, too.
void datei_ersetzen_am_stueck(const std::string& pfad, const std::function<void(const Datei&)>& schreiben);

} // namespace quittika
