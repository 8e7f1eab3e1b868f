#pragma once

#include "platform/datum.hpp"
#include "safety/sicherungsnamen.hpp"
#include "safety/sicherungsplan.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quittika {

/// A file of a backup.
struct Sicherungsdatei {
    std::size_t nummer; ///< in the archive
    std::string pfad;   ///< below the folder of its part
    std::uint64_t groesse;
    std::int64_t zeit; ///< last change, seconds since 1970
};

/// What is restored together, or not at all.
struct Sicherungsteil {
    std::string titel;
    std::optional<Programmgruppe> gruppe; ///< none for a folder outside of the program's
    bool bilder = false;
    std::string ordner; ///< where it lay, a system path; empty for the program folder
    std::vector<Sicherungsdatei> dateien;

    std::uint64_t bytes() const;
    /// Time of the file that was changed last.
    std::int64_t juengste() const;
};

/// A backup that was opened and looked at: nothing in it leads outside of its parts' folders or grows beyond
/// what a backup can be.
class Sicherungsinhalt {
public:
    /// Throws `Laufzeitfehler` for a file that cannot be read and `Sicherungsfehler` for one that is no
    /// backup or that nobody should unpack.
    explicit Sicherungsinhalt(const std::string& pfad);

    /// Those that hold files.
    const std::vector<Sicherungsteil>& teile() const { return teile_; }
    const std::string& zeit() const { return zeit_; }
    void lesen(const Sicherungsdatei& datei, const std::function<void(std::string_view bytes)>& senke) const {
        leser_.lesen(datei.nummer, senke);
    }

private:
    Datei datei_;
    Zipleser leser_;
    std::string zeit_;
    std::vector<Sicherungsteil> teile_;
};

} // namespace quittika
