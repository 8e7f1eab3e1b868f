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
        PROGRAMMEINSTELLUNG& werte;
        Rechnungszustand& zustand;
        const Programmverzeichnis& verzeichnis;
        Platform& platform;
        Eingabezeile& eingabezeile;
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
    using Ereignis = Control::Event;
    /// The handler of an event that comes, too, when the program fills the control: it runs for the user
    /// only.
    Ereignis vom_benutzer(Ereignis tun);
    /// The same for what changes the invoice: the change is noted, and everything recalculated behind it.
    Ereignis aenderung(Ereignis tun = {});
    /// The handler of a command of the user, before which panel 3 forgets the command before.
    Ereignis befehl(Ereignis tun);

    void FensterVerdrahten();
    void MenueVerdrahten();
    void KopfVerdrahten();
    void EingabeVerdrahten();
    void ListenVerdrahten();
    void ZeilenmenueVerdrahten();
    void BetraegeVerdrahten();
    /// A rate, discount or shipping field: `rechnen` follows when it is left, and the Return key.
    void WertfeldVerdrahten(TextBox& feld, const Ereignis& rechnen);
    void StatusVerdrahten();
    void RasterVerdrahten();
    void AblegenVerdrahten();
    void SpaeteresSperren();

    void Form_QueryUnload(bool& abbrechen);
    void TitelZeigen();
    void Form_FilesDropped(const std::vector<std::string>& pfade);
    /// To the first field of the customer, where an invoice begins.
    void KundeAnwaehlen();
    void EingabezeileAnwaehlen();
    /// Marks the whole text of a customer field that holds its placeholder, so that typing replaces it.
    void PlatzhalterMarkieren(TextBox& feld);
    void m_beenden_Click();
    void ueber_QUITTIKA_Click();
    void m_Schlagwortsuche_Click();
    void Check_datum_Click();
    void Check_LIEFERDATUM_Click();
    void Check_abgemahnt_Click();
    void Check_mwst_Click();
    void Option_anschreiben_Click();
    void Text_MwSt_LostFocus();
    void Command_berechnen_Click();
    void DOKUMENT_OEFFNEN(const std::string& dokument);

    Teile t_;
    bool ohne_frage_schliessen_ = false;
};

} // namespace quittika
