#include "safety/wiederherstellung.hpp"

#include "invoice/programmname.hpp"
#include "safety/belegauszug.hpp"

#include <utility>

namespace quittika {

Wiederherstellung::Wiederherstellung(Entwurf& entwurf, Fassungsablage& fassungen, Dateibefehle& dateibefehle,
                                     Dialogs& dialogs)
    : entwurf_(entwurf), fassungen_(fassungen), dateibefehle_(dateibefehle), dialogs_(dialogs) {}

void Wiederherstellung::Anbieten() {
    while (auto fund = entwurf_.Finden()) {
        if (BELEGAUSZUG(fund->bytes).lesbar && Fragen(fund->bytes)) {
            dateibefehle_.AlsUngespeichertOeffnen(fund->bytes);
            entwurf_.Uebernehmen(std::move(*fund));
            return;
        }
        if (!Aufheben(*fund)) {
            return; // it stays, and is offered once more at the next start
        }
    }
}

bool Wiederherstellung::Fragen(const std::string& bytes) const {
    const Belegauszug auszug = BELEGAUSZUG(bytes);
    return dialogs_.message({"Quittika wurde beim letzten Mal nicht richtig beendet. Diese Rechnung war noch "
                             "nicht gespeichert:\r\n\r\nStand: " +
                                 auszug.gespeichert + "\r\nKunde: " + auszug.kunde +
                                 "\r\nNummer: " + auszug.nummer + "\r\nBetrag: " + auszug.betrag +
                                 "\r\n\r\nSoll sie wieder geöffnet werden? Nein legt sie zu den früheren "
                                 "Fassungen (Menü Datei).",
                             kProgrammname, Buttons::YesNo, Symbol::Question}) == Answer::Yes;
}

bool Wiederherstellung::Aufheben(const Entwurfsfund& fund) {
    try {
        if (!fassungen_.EntwurfAufheben(fund.bytes)) {
            return false;
        }
        DATEI_LOESCHEN(fund.pfad);
        return true;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace quittika
