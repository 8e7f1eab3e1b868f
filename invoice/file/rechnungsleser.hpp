#pragma once

#include "invoice/berechnung.hpp"
#include "invoice/file/befund.hpp"
#include "invoice/file/dateifelder.hpp"
#include "invoice/file/dateistand.hpp"
#include "invoice/form1.hpp"
#include "invoice/rechnung.hpp"
#include "invoice/rechnungszustand.hpp"
#include "platform/dialogs.hpp"
#include "settings/programmeinstellung.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// Reads an invoice file into the window.
class Rechnungsleser {
public:
    Rechnungsleser(Form1& form1, PROGRAMMEINSTELLUNG& einstellung, Rechnungszustand& zustand,
                   Rechnung& rechnung, Dateistand& stand, Dialogs& dialogs);

    /// Resets the invoice and takes the file's lines into `DatenLesen` and its positions into the lists.
    /// A file that cannot be read, or of more than 50 MB, raises its `Laufzeitfehler` and leaves the window
    /// as it was.
    void DateiEinlesen(const std::string& pfad);

    /// The same with the bytes of a file.
    void InhaltUebernehmen(std::string_view bytes);

    /// Split of the shipping costs as the file holds it; zeros where it holds none.
    Versandaufteilung VersandGelesen() const;

    /// Whether the file holds an unsaved invoice whose number may be another's by now.
    bool NummerVorlaeufig() const;

    /// What is wrong with the file, if it is an invoice.
    const Befund& befund() const { return befund_; }

    /// Moves `DatenLesen` to the window. Says so and answers false when the file is no invoice.
    bool DateiDatenAnzeigen();

private:
    void PositionUebernehmen(const Positionszeile& zeile);
    void FelderUebernehmen();
    void FeldUebernehmen(const Dateifeld& feld);
    void VersandUebernehmen();
    void BetraegeUebernehmen();
    void UebrigesUebernehmen();

    Form1& form1_;
    PROGRAMMEINSTELLUNG& einstellung_;
    Rechnungszustand& zustand_;
    Rechnung& rechnung_;
    Dateistand& stand_;
    Dialogs& dialogs_;
    std::vector<Dateifeld> felder_;
    Dateizeilen DatenLesen;
    std::string Dateiformat; ///< first line of the file
    Befund befund_;
};

} // namespace quittika
