#pragma once

#include "invoice/file/rechnungsnummern.hpp"
#include "platform/dialogs.hpp"
#include "settings/frm_einstellungen.hpp"
#include "settings/programmeinstellung.hpp"

#include <functional>
#include <string>

namespace quittika {

/// What the fields of the invoice settings do when the user changes them; while the program fills them they
/// do nothing.
class Einstellungsfelder {
public:
    Einstellungsfelder(frm_einstellungen& einstellungen, PROGRAMMEINSTELLUNG& werte,
                       const Rechnungszustand& zustand, Rechnungsnummern& nummern, Dialogs& dialogs);

private:
    using Ereignis = Control::Event;
    Ereignis vom_benutzer(Ereignis tun) const;

    void texte_verdrahten();
    void nummern_verdrahten(Rechnungsnummern& nummern);
    void bank_verdrahten();
    void seite_verdrahten();
    void layouts_verdrahten();
    void farben_verdrahten();
    void spalten_verdrahten();
    void schrift_verdrahten();

    void FARBE_WAEHLEN(frm_einstellungen::Farbzeile& zeile);
    void FARBE_SETZEN(frm_einstellungen::Farbzeile& zeile, Color farbe);
    void Command_DRUCKERSCHRIFT_Click();
    void DRUCKERSCHRIFT_SETZEN(const std::string& name);

    frm_einstellungen& form_;
    PROGRAMMEINSTELLUNG& werte_;
    const Rechnungszustand& zustand_;
    Dialogs& dialogs_;
};

} // namespace quittika
