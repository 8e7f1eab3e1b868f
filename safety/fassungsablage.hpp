#pragma once

#include "invoice/hinweiszeile.hpp"
#include "platform/datei.hpp"
#include "platform/datum.hpp"
#include "platform/shell.hpp"
#include "platform/verzeichnis.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// The folder of all that is put aside.
std::string SICHERUNGSORDNER(const Programmverzeichnis& verzeichnis);

/// A content that a file had once.
struct Fassung {
    std::string pfad;
    Zeitpunkt zeit; ///< when it was put aside
};

/// A file that has versions.
struct Fassungsgruppe {
    std::string ordner;   ///< that of its versions
    std::string herkunft; ///< path of the file; for unsaved invoices what they are
    bool rechnung = true;
};

/// Keeps what files held before: a folder for each file, which its name and a mark of its path name. Where
/// that fails, panel 3 tells it once, and whatever replaces the file goes on.
class Fassungsablage {
public:
    Fassungsablage(const Programmverzeichnis& verzeichnis, const Clock& uhr, Hinweiszeile& hinweise);

    /// Keeps an unsaved invoice. Answers whether that succeeded.
    bool EntwurfAufheben(std::string_view bytes);

    /// All files that have versions, by their names.
    std::vector<Fassungsgruppe> Gruppen() const;
    /// Where the versions of a file are, whether there are any or not.
    std::string Gruppenordner(const std::string& pfad) const;
    /// The newest first.
    static std::vector<Fassung> Fassungen(const std::string& ordner);

private:
    void Aufheben(const std::string& ort, Abgang abgang);
    /// Where the versions of a file belong; empty for one that has none. The answer for the last file is
    /// known.
    const std::string& GemerkterOrdner(const std::string& ort);
    bool Betrifft(const std::string& ort) const;
    /// Puts a content among the versions in `ordner`. `quelle`: a file that holds it and lends its place on
    /// disk; empty for none.
    void Ablegen(const std::string& ordner, const std::string& herkunft, std::string_view bytes,
                 const std::string& quelle);
    void Misslungen(const Laufzeitfehler& fehler);

    const Programmverzeichnis& verzeichnis_;
    const Clock& uhr_;
    Hinweiszeile& hinweise_;
    bool gemeldet_ = false;
    std::string ort_;    ///< of the file that was asked about last
    std::string gruppe_; ///< of that file
    Abgangswache wache_;
};

} // namespace quittika
