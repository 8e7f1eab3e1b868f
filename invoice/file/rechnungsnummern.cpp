#include "invoice/file/rechnungsnummern.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/textdatei.hpp"
#include "platform/zahlen.hpp"

#include <limits>
#include <optional>
#include <string>

namespace quittika {

namespace {

std::optional<int> zaehler_aus(const std::string& text) {
    if (!ist_numerisch(text)) {
        return std::nullopt;
    }
    try {
        return nach_int32(text);
    } catch (const Laufzeitfehler&) {
        return std::nullopt;
    }
}

} // namespace

Rechnungsnummern::Rechnungsnummern(Form1& form1, frm_einstellungen& einstellungen, Rechnungszustand& zustand,
                                   const Programmverzeichnis& verzeichnis, Dialogs& dialogs)
    : form1_(form1),
      einstellungen_(einstellungen),
      zustand_(zustand),
      verzeichnis_(verzeichnis),
      dialogs_(dialogs) {}

void Rechnungsnummern::RNStartLesen() {
    const auto gelesen = zaehler_aus(DATEI_ERSTE_ZEILE(verzeichnis_.pfad("\\RN.txt")));
    zaehler_ = gelesen ? *gelesen : zaehler_aus(einstellungen_.Text_RNStartwert.Text()).value_or(1);
    ZaehlerZeigen();
    RNNUMMERZUWEISEN();
}

void Rechnungsnummern::RNNUMMERZUWEISEN() {
    const Rechnungszustand::Sperre still(zustand_);
    const bool automatisch = einstellungen_.Check_RN_automatisch.ticked();
    const std::string muster(static_cast<std::size_t>(einstellungen_.Slider_RNFORMAT.Value()), '0');
    form1_.Text_RNnr.Text = format_zahl(automatisch ? zaehler_ : 0, muster);
    form1_.Text_RNnr.Locked = automatisch;
}

void Rechnungsnummern::NummerVerbrauchen() {
    if (!einstellungen_.Check_RN_automatisch.ticked() || zaehler_ == std::numeric_limits<int>::max()) {
        return;
    }
    ++zaehler_;
    ZaehlerZeigen();
    try {
        DATEI_SCHREIBEN(verzeichnis_.pfad("\\RN.txt"), std::to_string(zaehler_));
    } catch (const Laufzeitfehler& fehler) {
        dialogs_.message(
            {"Die nächste Rechnungsnummer konnte nicht in >>RN.txt<< gespeichert werden. Fehlernr.: " +
                 std::to_string(fehler.nummer()),
             "Achtung!", Buttons::Ok, Symbol::Exclamation});
    }
}

void Rechnungsnummern::ZaehlerZeigen() {
    einstellungen_.Text_RNStartwert.Text = std::to_string(zaehler_);
    einstellungen_.Label_RNAKTUELL.Caption = std::to_string(zaehler_);
}

} // namespace quittika
