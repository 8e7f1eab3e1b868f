#pragma once

#include "invoice/file/dateifelder.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/dialogs.hpp"
#include "platform/shell.hpp"
#include "platform/textdatei.hpp"
#include "settings/programmeinstellung.hpp"

#include <string>
#include <vector>

namespace quittika {

/// Writes the invoice in hand as a file.
class Rechnungsschreiber {
public:
    Rechnungsschreiber(Form1& form1, const PROGRAMMEINSTELLUNG& einstellung, const Rechnungszustand& zustand,
                       Dialogs& dialogs, const Clock& uhr);

    /// Fills `DatenSchreiben` from the window.
    void DateiDatenSammeln();
    /// Writes `DatenSchreiben`, the time of saving and a line for each position; the old file stays until the
    /// new one is complete. Shows a message and answers false when that fails. Characters that the file
    /// cannot hold are named in panel 3.
    bool DateiSchreiben(const std::string& pfad);

private:
    void BesondereZeilen();
    void PositionenAnfuegen(Textpuffer& datei) const;

    Form1& form1_;
    const PROGRAMMEINSTELLUNG& einstellung_;
    const Rechnungszustand& zustand_;
    Dialogs& dialogs_;
    const Clock& uhr_;
    std::vector<Dateifeld> felder_;
    Dateizeilen DatenSchreiben;
};

} // namespace quittika
