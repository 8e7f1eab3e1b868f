#pragma once

#include "platform/forms/property.hpp"

#include <array>
#include <string>

namespace quittika {

/// Settings that no control of a dialog holds.
struct PROGRAMMEINSTELLUNG {
    std::string VERSIONSTEXT = "Version 1.0";
    Color FORMULARFARBE = 0xC0C0C0;
    Color HINTERGRUNDFARBE = 0x97785B;
    Color FARBE_INDIVIDUELL_HINTERGRUND = 0x97785B;
    Color FARBE_INDIVIDUELL_FORMULAR = 0xC0C0C0;
    bool HINTERGRUNDBILD = false;  ///< the main window has a background picture
    std::string MWST_SATZ1 = "19"; ///< per cent, as typed
    std::string MWST_SATZ2 = "7";  ///< per cent, as typed
    std::string WAEHRUNG = "EUR";
    bool MENGE_DEZIMAL = false; ///< quantities of new invoices have decimals: what the user chose last
    std::array<std::string, 3> LETZTE_DATEI{"ERROR", "ERROR", "ERROR"}; ///< newest first, "ERROR" when none
    Color FARBE_LINIEN = 0;
    Color FARBE_WERBESPRUCH = 0;
    Color FARBE_BANKDATEN = 0;
    Color FARBE_BEMERKUNGEN = 0;
    Color FARBE_FIRMENDATEN = 0;
    Color FARBE_KUNDENNR = 0;
    int LAYOUTNUMMER = 2;                   ///< page design, 1 to 8 built in, 9 the user's own
    std::string DRUCKERSCHRIFT = "Arial";   ///< print font of new invoices
    std::string RECHNUNGSSCHRIFT = "Arial"; ///< print font of the invoice in hand
    int GROESSE_RECHNUNG = 10;              ///< points
    int GROESSE_WERBUNG = 10;               ///< points
    int GROESSE_ANSCHREIBEN = 10;           ///< points
    int GROESSE_BEMERKUNGEN = 10;           ///< points
    int GROESSE_ZUSATZ_1 = 10;              ///< points
    int GROESSE_ZUSATZ_2 = 10;              ///< points
};

} // namespace quittika
