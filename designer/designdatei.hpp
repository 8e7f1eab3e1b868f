#pragma once

#include "designer/design.hpp"
#include "invoice/hinweiszeile.hpp"
#include "platform/dialogs.hpp"
#include "platform/verzeichnis.hpp"

#include <string>
#include <string_view>

namespace quittika {

/// What `design.dsg` says of one key, in capitals: the first line counts. Empty where no line has it, "ERROR"
/// where the file cannot be read. Tells the user nothing.
std::string DESIGN_WERT(const Programmverzeichnis& verzeichnis, std::string_view schluessel);

/// Gives one key, in capitals, a value, all else in the file unchanged, byte for byte; where there is no file
/// it becomes the standard design with that value. Throws the error of the file, and 52 for a value that the
/// file cannot hold; nothing is written then.
void DESIGN_WERT_SETZEN(const Programmverzeichnis& verzeichnis, std::string_view schluessel,
                        std::string_view wert);

/// What the file says. Throws its error, or that of a value. Tells the user nothing.
Designlesung DESIGN_EINLESEN(const Programmverzeichnis& verzeichnis);

/// The user's own page design and its file `design.dsg` in the program folder.
class Designdatei {
public:
    Designdatei(const Programmverzeichnis& verzeichnis, Dialogs& dialogs, Hinweiszeile& hinweise)
        : verzeichnis_(verzeichnis), dialogs_(dialogs), hinweise_(hinweise) {}

    Design design;

    /// Reads the file into `design`. One that is missing or cannot be read gives the standard design, and a
    /// box and panel 3 say so.
    void DESIGN_LADEN();
    bool geladen() const { return geladen_; } ///< whether `design` was ever loaded
    /// Makes `design` the standard design; the file stays as it is.
    void DESIGN_STANDARD() { design = quittika::DESIGN_STANDARD(verzeichnis_); }
    /// Replaces the file by `design`. Panel 3 names a path that the file cannot hold. Throws the error of the
    /// file.
    void DESIGN_SPEICHERN() const;

private:
    const Programmverzeichnis& verzeichnis_;
    Dialogs& dialogs_;
    Hinweiszeile& hinweise_;
    bool geladen_ = false;
};

} // namespace quittika
