#include "einvoice/pflichtpruefung.hpp"

#include "einvoice/pflichtangaben.hpp"

#include <array>
#include <string>

namespace quittika {

Pflichtpruefung::Pflichtpruefung(Form1& form1, const frm_einstellungen& einstellungen,
                                 const PROGRAMMEINSTELLUNG& werte, const Rechnungszustand& zustand,
                                 const ZuletztGeoeffnet& zuletzt, Dialogs& dialogs)
    : form1_(form1),
      einstellungen_(einstellungen),
      werte_(werte),
      zustand_(zustand),
      zuletzt_(zuletzt),
      dialogs_(dialogs) {}

Maengel Pflichtpruefung::maengel() const {
    const std::array<std::string, 3> dateien{zuletzt_.Eintrag(1), zuletzt_.Eintrag(2), zuletzt_.Eintrag(3)};
    return PFLICHTANGABEN(BELEGQUELLE(form1_, einstellungen_, werte_),
                          NUMMERN_AUS_DATEIEN(dateien, zustand_.AktuellerPfad()));
}

void Pflichtpruefung::m_Pflichtangaben_Click() const {
    std::string punkte;
    for (const Mangel& mangel : maengel()) {
        punkte += "\r\n\r\n• " + mangel.text;
    }
    const bool ok = punkte.empty();
    dialogs_.message(
        {ok ? "Auf dem Beleg steht, was das Gesetz verlangt."
            : "Das fehlt nach dem Umsatzsteuergesetz noch auf dem Beleg. Gedruckt werden kann er "
              "trotzdem." +
                  punkte,
         "Pflichtangaben", Buttons::Ok, ok ? Symbol::Information : Symbol::Exclamation});
}

void Pflichtpruefung::ERSTEN_PUNKT_NENNEN() const {
    if (const Maengel punkte = maengel(); !punkte.empty()) {
        form1_.Hinweise.melden("Pflichtangaben: " + punkte.front().text);
    }
}

} // namespace quittika
