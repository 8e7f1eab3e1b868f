#pragma once

#include "platform/verzeichnis.hpp"
#include "settings/einstellungsleser.hpp"

namespace quittika {

/// What the settings windows hold when the program starts.
class Einstellungsstart {
public:
    Einstellungsstart(frm_einstellungen& einstellungen, frm_Programm& programm, PROGRAMMEINSTELLUNG& werte,
                      const Programmverzeichnis& verzeichnis, Einstellungsleser& leser)
        : einstellungen_(einstellungen),
          programm_(programm),
          werte_(werte),
          verzeichnis_(verzeichnis),
          leser_(leser) {}

    /// The pictures of the program folder, then the settings files. Both windows are loaded, but not shown.
    void Laden();

private:
    void BilderLaden();

    frm_einstellungen& einstellungen_;
    frm_Programm& programm_;
    PROGRAMMEINSTELLUNG& werte_;
    const Programmverzeichnis& verzeichnis_;
    Einstellungsleser& leser_;
};

} // namespace quittika
