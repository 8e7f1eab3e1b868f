#pragma once

#include "settings/einstellungsschreiber.hpp"
#include "settings/einstellungsuebernahme.hpp"
#include "settings/folgeschritte.hpp"

#include <string_view>

namespace quittika {

/// Reads the settings when the program starts. Nothing is told of files that are missing or broken: what
/// could not be read begins as designed. The caller keeps the events of the controls quiet.
class Einstellungsleser {
public:
    Einstellungsleser(const Einstellungstabelle& tabelle, const Programmverzeichnis& verzeichnis,
                      Folgeschritte& folgeschritte, Einstellungsuebernahme& uebernahme,
                      Einstellungsschreiber& schreiber)
        : tabelle_(tabelle),
          verzeichnis_(verzeichnis),
          folgeschritte_(folgeschritte),
          uebernahme_(uebernahme),
          schreiber_(schreiber) {}

    /// Reads `prog_n.cfg`, or takes over the older `prog.cfg` where that stands alone.
    void EINSTELLUNGEN_LADEN();
    /// Reads `prog_n.cfg`.
    void LETZTE_EINSTELLUNGEN_LADEN();
    /// Reads `prog.cfg`. A file without its mark changes nothing.
    void ALTE_EINSTELLUNGEN_LADEN();

    /// The same from the bytes of such a file. Whether all that it holds is in the windows then.
    bool LETZTE_EINSTELLUNGEN_UEBERNEHMEN(std::string_view bytes);
    void ALTE_EINSTELLUNGEN_UEBERNEHMEN(std::string_view bytes);

private:
    std::size_t Verteilen(const std::vector<std::string>& texte, Einstellungsquelle quelle);

    const Einstellungstabelle& tabelle_;
    const Programmverzeichnis& verzeichnis_;
    Folgeschritte& folgeschritte_;
    Einstellungsuebernahme& uebernahme_;
    Einstellungsschreiber& schreiber_;
};

} // namespace quittika
