#pragma once

#include "platform/dateisperre.hpp"
#include "platform/shell.hpp"

#include <optional>
#include <string>

namespace quittika {

/// Who works on an invoice's file.
struct Sperrvermerk {
    std::string benutzer;
    std::string rechner;
    std::string seit; ///< date and time
    std::string pfad; ///< of the lock file
    bool hier = true; ///< on this machine: it is certain that the program still runs there
};

/// Path of the lock file beside an invoice's.
std::string SPERRPFAD(const std::string& rechnung);

/// The lock beside the file of the invoice in hand, which keeps others from working on it at the same time.
/// Where a folder takes no lock, there is none.
class Rechnungssperre {
public:
    explicit Rechnungssperre(const Clock& uhr) : uhr_(uhr) {}

    /// Who else has the invoice of this file. What a program left that is gone from this machine does not
    /// count.
    std::optional<Sperrvermerk> WerSonst(const std::string& pfad) const;
    /// From now on the invoice in hand is the one of this file; an empty path is none.
    void Setzen(const std::string& pfad);

private:
    const Clock& uhr_;
    std::optional<Dateisperre> sperre_;
};

/// "anna auf dem Rechner kontor, seit 23.11.2026 14:32:53"
std::string SPERRTEXT(const Sperrvermerk& vermerk);

} // namespace quittika
