#pragma once

#include "platform/verzeichnis.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/frm_programm.hpp"
#include "settings/programmeinstellung.hpp"

namespace quittika {

/// What the settings windows hold when the program starts.
class Einstellungsstart {
public:
    Einstellungsstart(frm_einstellungen& einstellungen, frm_Programm& programm, PROGRAMMEINSTELLUNG& werte,
                      const Programmverzeichnis& verzeichnis);

    /// Column headings and the pictures of the program folder; then loads both windows without showing them.
    void Laden();

private:
    void SpaltenBenennen();
    void BilderLaden();
    void SchriftgroessenPruefen();

    frm_einstellungen& einstellungen_;
    frm_Programm& programm_;
    PROGRAMMEINSTELLUNG& werte_;
    const Programmverzeichnis& verzeichnis_;
};

} // namespace quittika
