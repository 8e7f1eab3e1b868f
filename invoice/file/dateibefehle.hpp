#pragma once

#include "invoice/file/rechnungsleser.hpp"
#include "invoice/file/rechnungsnummern.hpp"
#include "invoice/file/rechnungsschreiber.hpp"
#include "invoice/file/rechnungssperre.hpp"
#include "invoice/file/zuletzt_geoeffnet.hpp"
#include "invoice/summen.hpp"
#include "invoice/vorgaben.hpp"
#include "platform/laufzeitfehler.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace quittika {

/// New, open and save: the commands of the file menu.
class Dateibefehle {
public:
    Dateibefehle(Form1& form1, Rechnungszustand& zustand, Rechnung& rechnung, Vorgaben& vorgaben,
                 Summen& summen, const Dateistand& stand, Dialogs& dialogs, Rechnungsschreiber& schreiber,
                 Rechnungsleser& leser, Rechnungsnummern& nummern, ZuletztGeoeffnet& zuletzt,
                 Rechnungssperre& sperre);

    /// Called after `oeffneRN` has shown a file.
    std::function<void()> Geoeffnet;

    /// Called before unsaved changes go without a question.
    std::function<void()> VorVerlust;

    /// Starts a new invoice, after asking whether to save the present one. Answers whether it did.
    bool m_neu_Click();
    /// Saves under a name that the user chooses. Answers whether the invoice is on disk.
    bool m_speichern_Click();
    /// Saves to the current path after a question.
    void m_speichern_direkt_Click();
    /// Saves without a question to the current path if it is this invoice's own, else under a name that the
    /// user chooses.
    void m_speichern_kurz_Click();
    void m_oeffnen_Click();
    /// Opens `pfad`, or the file that the user chooses when it is empty, after asking whether to save.
    /// Answers whether anything was read.
    bool Oeffnen(const std::string& pfad);
    /// Opens `pfad`, or the file that the user chooses when it is empty. Answers whether anything was read.
    bool oeffneRN(const std::string& pfad);
    /// Shows the bytes of an invoice's file as an invoice that was changed and never saved. Answers whether
    /// they are one.
    bool AlsUngespeichertOeffnen(std::string_view bytes);
    /// Opens recent file `n`, 1 to 3, without asking.
    void m_R_Click(int n);
    /// Asks whether to save and does so. Answers false when the caller must stop: cancelled, or saving
    /// failed.
    bool VorherSpeichern(Buttons tasten);

private:
    /// Saves before the invoice leaves the window: what was changed on the way is told in a box.
    bool VorAnderemSpeichern();
    std::string SpeicherpfadWaehlen();
    bool SpeichernNach(const std::string& pfad);
    void AmPfadSpeichern();
    /// Asks before a file is replaced that another program has changed since it was opened.
    bool ErsetzenErlaubt(const std::string& pfad);
    void AbbruchZeigen();
    /// Who else works on a file: the user may only read it then.
    enum class Zugriff : std::uint8_t { Ganz, NurLesen, Keiner };
    Zugriff ZugriffErfragen(const std::string& pfad);
    /// Asks before another invoice's file is replaced by the one in the window.
    bool FremdeDateiUeberschreiben();
    void SpeicherfehlerMelden(const Laufzeitfehler& fehler);
    void OeffnungsfehlerMelden(const std::string& pfad, const Laufzeitfehler& fehler);
    void PfadZeigen(const std::string& pfad);
    /// A file that was refused leaves no current path: what stands in the window is not what another file
    /// holds.
    void AktuellenPfadSetzen(const std::string& pfad);
    /// Shows what the reader has read of a file; after a refusal a new invoice begins. Answers whether it is
    /// an invoice.
    bool GelesenesZeigen(const std::string& pfad, Zugriff zugriff);
    /// Gives a new invoice what `RechnungLeeren` does not reset.
    void NeuBeginnen();
    void Auffrischen();

    Form1& form1_;
    Rechnungszustand& zustand_;
    Rechnung& rechnung_;
    Vorgaben& vorgaben_;
    Summen& summen_;
    const Dateistand& stand_;
    Dialogs& dialogs_;
    Rechnungsschreiber& schreiber_;
    Rechnungsleser& leser_;
    Rechnungsnummern& nummern_;
    ZuletztGeoeffnet& zuletzt_;
    Rechnungssperre& sperre_;
    std::string nummernmeldung_; ///< what the last save told of the invoice's number
};

} // namespace quittika
