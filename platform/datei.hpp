#pragma once

#include "platform/laufzeitfehler.hpp"

#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace quittika {

// Files as wholes. Paths are the program's own or the system's. Errors are `Laufzeitfehler` with the path:
// 53 file missing, 76 folder missing, 70 not permitted, 75 no file, 52 bad name, 61 disk full, 71 device not
// there, 58 file exists already, 57 anything else. Where a folder refused, the path is the folder's and ends
// with "/".

inline constexpr std::size_t kUnbegrenzt = std::numeric_limits<std::size_t>::max() / 2;

/// Makes a file that outgrows the system's limit an error of its own, where the system would end the program.
void dateigroesse_als_fehler();

/// The bytes of a file. Throws 7 for more than `hoechstens`, before they are read.
std::string bytes_lesen(const std::string& pfad, std::size_t hoechstens = kUnbegrenzt);

/// A file that was damaged while it was written in place; its old content lies in `beiseite()`.
class Dateischaden : public Laufzeitfehler {
public:
    Dateischaden(const Laufzeitfehler& ursache, std::string beiseite)
        : Laufzeitfehler(ursache), beiseite_(std::move(beiseite)) {}
    const std::string& beiseite() const { return beiseite_; }

private:
    std::string beiseite_;
};

/// Replaces a file by these bytes. They are written beside it first, under a hidden name with the number of
/// this process, and take its place when they are completely on disk: old content or new, nothing between.
/// What killed processes left in the folder is removed.
/// A file that may be written in a folder that takes no new one is written in place, after its old content
/// was put aside in `ausweichordner` (none: it is refused). The path put aside is returned, else "".
std::string datei_ersetzen(const std::string& pfad, std::string_view bytes,
                           const std::string& ausweichordner = {});

/// How the content of a file goes.
enum class Abgang {
    Ersetzt, ///< another file takes its place, or none: the old one may live on under another name
    AmOrt,   ///< the file itself is written over
};

/// While one lives, it is told of each file just before `datei_ersetzen`, `DATEI_KOPIEREN` or
/// `DATEI_LOESCHEN` takes its content away: nobody who writes files can forget to ask. The new content is
/// completely on disk by then. At most one in a process, for the files are the same for all of it.
class Abgangswache {
public:
    /// `pfad` leads to the file itself, past all links. What `vorher` throws must not be a file's error.
    using Vorher = std::function<void(const std::string& pfad, Abgang abgang)>;
    explicit Abgangswache(Vorher vorher);
    Abgangswache(const Abgangswache&) = delete;
    Abgangswache& operator=(const Abgangswache&) = delete;
    ~Abgangswache();

private:
    friend void abgang_melden(const std::string& ort, Abgang abgang);
    Vorher vorher_;
    Abgangswache* bisher_; ///< the one that counts again afterwards
};

/// Takes the next bytes of a file that is being written.
using Bytesenke = std::function<void(std::string_view bytes)>;

/// The same for a content that `schreiben` makes piece by piece. What it throws leaves the old file.
void datei_ersetzen(const std::string& pfad, const std::function<void(const Bytesenke&)>& schreiben);

/// Creates a file with these bytes in the same manner; throws 58 where one stands, 75 for a folder.
void datei_anlegen(const std::string& pfad, std::string_view bytes);

/// Appends bytes on a new line and returns when they are on disk; a file that does not exist is created. What
/// could not be written whole is taken back.
void datei_anhaengen(const std::string& pfad, std::string_view bytes);

/// Whether two paths name one file, whatever they are written like. False where one of them is missing.
bool IST_DIESELBE_DATEI(const std::string& a, const std::string& b);

/// What a copy does where a file stands at its target.
enum class Kopierziel {
    Ersetzen, ///< as `datei_ersetzen` does
    Neu,      ///< throws 58
};

/// Copies a file byte for byte. Source and target stay as they were where that fails. Throws 70 for a file
/// that would be copied onto itself. The error's path tells which of the two it was.
void DATEI_KOPIEREN(const std::string& von, const std::string& nach, Kopierziel ziel = Kopierziel::Ersetzen);

/// Gives a file a second name, under which its content stays where another file takes its place. Throws 58
/// where something has that name, and what the file system answers that cannot do it.
void DATEI_VERKNUEPFEN(const std::string& pfad, const std::string& name);

/// Moves a file within one file system; throws 58 where something has that name.
void DATEI_UMBENENNEN(const std::string& alt, const std::string& neu);

/// Makes sure that there is such a folder, and the one that it lies in.
void ORDNER_ANLEGEN(const std::string& ordner);

/// Deletes a file, but throws 70 for one that may not be written. Of a symbolic link only the link goes.
void DATEI_LOESCHEN(const std::string& pfad);

} // namespace quittika
