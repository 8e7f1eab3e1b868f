#pragma once

#include "invoice/file/dateiablage.hpp"
#include "invoice/file/dateifelder.hpp"
#include "invoice/file/dateistand.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/dialogs.hpp"
#include "platform/shell.hpp"
#include "platform/textdatei.hpp"
#include "platform/verzeichnis.hpp"
#include "settings/programmeinstellung.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// Writes the invoice in hand as a file.
class Rechnungsschreiber {
public:
    Rechnungsschreiber(Form1& form1, const PROGRAMMEINSTELLUNG& einstellung, const Rechnungszustand& zustand,
                       const Programmverzeichnis& verzeichnis, Dateistand& stand, Dialogs& dialogs,
                       const Clock& uhr);

    /// Called before the file is written, with what it will hold.
    std::function<void(const std::string& pfad, std::string_view bytes)> VorSchreiben;

    /// Fills `DatenSchreiben` from the window.
    void DateiDatenSammeln();
    /// Writes `DatenSchreiben`, the time of saving and a line for each position; the old file stays until the
    /// new one is complete. Shows a message and answers false when that fails. Panel 3 tells why, or of
    /// characters that the file cannot hold, or where the old content of a file written in place lies.
    bool DateiSchreiben(const std::string& pfad);
    /// The bytes of the present invoice's file, with this text in place of the time of saving. `vorlaeufig`:
    /// a line behind them tells that the number is not used up yet.
    std::string Abbild(const std::string& gespeichert, bool vorlaeufig);
    /// What panel 3 told of the file written last, a line each; empty for nothing.
    const std::string& Meldung() const { return ablage_.Meldung(); }

private:
    void BesondereZeilen();
    Textpuffer Dateitext(const std::string& gespeichert) const;
    void PositionenAnfuegen(Textpuffer& datei) const;

    Form1& form1_;
    const PROGRAMMEINSTELLUNG& einstellung_;
    const Rechnungszustand& zustand_;
    Dateistand& stand_;
    const Clock& uhr_;
    std::vector<Dateifeld> felder_;
    Dateizeilen DatenSchreiben;
    Dateiablage ablage_;
};

} // namespace quittika
