#pragma once

#include "app/erinnerung.hpp"
#include "app/ladefolge.hpp"
#include "invoice/file/dateibefehle.hpp"
#include "invoice/positionen.hpp"
#include "invoice/zeilenmenue.hpp"
#include "masterdata/kunde_aufnehmen.hpp"
#include "platform/platform.hpp"
#include "print/druckauftrag.hpp"

namespace quittika {

/// Ties the events of the main window to the routines that do the work, and holds what belongs to no other
/// module.
class Hauptfenster {
public:
    struct Teile {
        Form1& form1;
        const frm_einstellungen& einstellungen;
        const PROGRAMMEINSTELLUNG& werte;
        Rechnungszustand& zustand;
        const Programmverzeichnis& verzeichnis;
        Platform& platform;
        Rechnung& rechnung;
        Summen& summen;
        Positionen& positionen;
        Zeilenmenue& zeilenmenue;
        Dateibefehle& dateibefehle;
        Druckauftrag& druckauftrag;
        KundeAufnehmen& kunde_aufnehmen;
        Erinnerung& erinnerung;
        Ladefolge& ladefolge;
    };
    explicit Hauptfenster(Teile teile);

private:
    void FensterVerdrahten();
    void MenueVerdrahten();
    void KopfVerdrahten();
    void EingabeVerdrahten();
    void ListenVerdrahten();
    void ZeilenmenueVerdrahten();
    void BetraegeVerdrahten();
    void StatusVerdrahten();
    void RasterVerdrahten();
    void AblegenVerdrahten();
    void SpaeteresSperren();

    void Form_QueryUnload(bool& abbrechen);
    void TitelZeigen();
    void Form_FilesDropped(const std::vector<std::string>& pfade);
    void m_beenden_Click();
    void ueber_QUITTIKA_Click();
    void m_Schlagwortsuche_Click();
    void Check_datum_Click();
    void Check_LIEFERDATUM_Click();
    void Check_abgemahnt_Click();
    void Option_anschreiben_Click();
    void Satz_Click(const std::string& satz);
    void Text_MwSt_LostFocus();
    void DOKUMENT_OEFFNEN(const std::string& dokument);
    /// Recalculates after a change by the user, and notes the change.
    void geaendert_und_rechnen();

    Teile t_;
    bool ohne_frage_schliessen_ = false;
};

} // namespace quittika
