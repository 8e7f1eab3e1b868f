#pragma once

#include "invoice/rechnungszustand.hpp"
#include "invoice/summen.hpp"
#include "platform/forms/tasten.hpp"
#include "safety/rueckgaengig.hpp"

#include <functional>
#include <string>

namespace quittika {

/// Makes the handlers of the main window. Controls fire their events for the program as they do for the user:
/// which of them a handler answers is decided here alone.
class Ereignisse {
public:
    using Ereignis = Control::Event;
    Ereignisse(Hinweiszeile& hinweise, Rechnungszustand& zustand, Summen& summen, Rueckgaengig& schritte);

    /// Runs for the user only, not while the program fills the control.
    Ereignis vom_benutzer(Ereignis tun) const;
    /// The same for an entry that no amount depends on: the change of the invoice is noted.
    Ereignis eintrag(Ereignis tun = {}) const;
    /// The same for what amounts depend on: everything is recalculated behind it, too.
    Ereignis aenderung(Ereignis tun = {}) const;
    /// A command of the user, before which panel 3 forgets the command before. What was typed before can be
    /// taken back by itself.
    Ereignis befehl(Ereignis tun) const;
    /// The end of what is typed in a field, by a key: the same, but one step with what was typed.
    Ereignis eingabeende(Ereignis tun) const;
    /// Recalculates, whoever fired the event.
    Ereignis rechnen() const;

private:
    Hinweiszeile& hinweise_;
    Rechnungszustand& zustand_;
    Summen& summen_;
    Rueckgaengig& schritte_;
};

/// Takes dropped text over in one line: each character of a line end becomes a blank.
std::function<void(const std::string&)> ABLEGEN(TextBox& feld);

} // namespace quittika
