#pragma once

#include "invoice/berechnung.hpp"
#include "invoice/file/dateistand.hpp"
#include "safety/zeilentausch.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quittika {

/// Which invoice stands in the window, and what it is on disk.
struct Belegbezug {
    int beleg = 0;
    std::string pfad;
    bool ist_datei = false;
    std::string pfadanzeige;
    Dateistand dateistand;
    std::string schrift;             ///< print font
    bool nummer_vom_zaehler = false; ///< its number is the next one and not used up
    std::uint64_t gespeichert = 0;   ///< mark of the state that was saved last
};

/// What goes along with a step and is none by itself.
struct Begleitung {
    int auswahl = -1;      ///< selected row
    int eingabezeile = -1; ///< row that is being changed
    bool anschreiben = true;
    Versandaufteilung versand;
    std::string versandtext;
    std::string versandsteuertext;
};

/// A whole invoice as it stands in the window.
struct Rechnungsstand {
    std::vector<std::string> felder; ///< by `STANDFELDER`
    Zeilenspalten zeilen;
    Begleitung begleitung;
    Belegbezug beleg;
    std::uint64_t kennung = 0; ///< the same where the file would be the same
};

/// The way from one state of the invoice to another.
struct Schritt {
    std::vector<std::pair<std::size_t, std::string>> felder; ///< what they hold there
    Zeilentausch zeilen;
    Begleitung begleitung;
    std::optional<Belegbezug> beleg; ///< where it is another invoice
    std::uint64_t kennung = 0;
    const char* name = "";

    bool leer() const { return felder.empty() && zeilen.leer() && !beleg; }
};

} // namespace quittika
