#include "app/ereignisse.hpp"

#include "platform/text.hpp"

#include <utility>

namespace quittika {

Ereignisse::Ereignisse(Hinweiszeile& hinweise, Rechnungszustand& zustand, Summen& summen,
                       Rueckgaengig& schritte)
    : hinweise_(hinweise), zustand_(zustand), summen_(summen), schritte_(schritte) {}

Ereignisse::Ereignis Ereignisse::vom_benutzer(Ereignis tun) const {
    return [&zustand = zustand_, tun = std::move(tun)] {
        if (!zustand.gesperrt()) {
            tun();
        }
    };
}

Ereignisse::Ereignis Ereignisse::eintrag(Ereignis tun) const {
    return vom_benutzer([&zustand = zustand_, tun = std::move(tun)] {
        zustand.aendern();
        if (tun) {
            tun();
        }
    });
}

Ereignisse::Ereignis Ereignisse::aenderung(Ereignis tun) const {
    return eintrag([&summen = summen_, tun = std::move(tun)] {
        if (tun) {
            tun();
        }
        summen.jetztberechnen_List();
    });
}

Ereignisse::Ereignis Ereignisse::befehl(Ereignis tun) const {
    return eingabeende([&schritte = schritte_, tun = std::move(tun)] {
        schritte.vor_befehl();
        tun();
    });
}

Ereignisse::Ereignis Ereignisse::eingabeende(Ereignis tun) const {
    return [&hinweise = hinweise_, tun = std::move(tun)] {
        const Hinweiszeile::Befehl laeuft(hinweise);
        tun();
    };
}

Ereignisse::Ereignis Ereignisse::rechnen() const {
    return [&summen = summen_] { summen.jetztberechnen_List(); };
}

std::function<void(const std::string&)> ABLEGEN(TextBox& feld) {
    return [&feld](const std::string& text) { feld.Text = einzeilig(text); };
}

} // namespace quittika
