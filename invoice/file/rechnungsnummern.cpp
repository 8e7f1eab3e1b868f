#include "invoice/file/rechnungsnummern.hpp"

#include "invoice/programmname.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/textdatei.hpp"
#include "platform/zahlen.hpp"

#include <limits>
#include <string>
#include <utility>

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

Zaehlerstand ZAEHLERSTAND(const Programmverzeichnis& verzeichnis) {
    const std::string pfad = verzeichnis.pfad("\\RN.txt");
    if (!datei_vorhanden(pfad)) {
        return {};
    }
    const std::optional<int> wert = zaehler_aus(DATEI_ERSTE_ZEILE(pfad));
    return {wert, !wert};
}

Rechnungsnummern::Rechnungsnummern(Form1& form1, frm_einstellungen& einstellungen, Rechnungszustand& zustand,
                                   const Programmverzeichnis& verzeichnis, Dialogs& dialogs)
    : form1_(form1),
      einstellungen_(einstellungen),
      zustand_(zustand),
      verzeichnis_(verzeichnis),
      dialogs_(dialogs) {}

void Rechnungsnummern::RNStartLesen() {
    const Hinweiszeile::Befehl befehl(form1_.Hinweise);
    const Zaehlerstand stand = ZAEHLERSTAND(verzeichnis_);
    zaehler_ = stand.wert ? *stand.wert : zaehler_aus(einstellungen_.Text_RNStartwert.Text()).value_or(1);
    ZaehlerZeigen();
    NummerZeigen();
    LesbarkeitMelden(stand);
}

void Rechnungsnummern::RNNUMMERZUWEISEN() {
    if (automatisch()) {
        LesbarkeitMelden(ZaehlerNachlesen());
    }
    NummerZeigen();
}

bool Rechnungsnummern::IstVorlaeufig() const {
    return automatisch() && ZeigtNaechste();
}

bool Rechnungsnummern::ZeigtNaechste() const {
    return !zustand_.IstDateiDesPfads() && !verbraucht_ && form1_.Text_RNnr.Text() == gezeigt_;
}

std::string Rechnungsnummern::NummerErneuern() {
    if (!IstVorlaeufig()) {
        return {};
    }
    const std::string vorher = Nummer();
    ZaehlerNachlesen();
    if (Nummer() == vorher) {
        return {};
    }
    NummerZeigen();
    std::string meldung =
        "Die Nummer " + vorher + " ist inzwischen vergeben: diese Rechnung bekommt die " + Nummer() + ".";
    form1_.Hinweise.melden(meldung);
    return meldung;
}

std::optional<Dateisperre> Rechnungsnummern::Sperren() const {
    constexpr std::chrono::seconds kGeduld{3}; // a program that holds it for longer has come to a stop
    try {
        return Dateisperre::NEHMEN(systempfad(verzeichnis_.pfad("\\.RN.txt.sperre")), kGeduld);
    } catch (const Laufzeitfehler&) {
        return std::nullopt; // a folder that takes no lock takes no counter either
    }
}

std::string Rechnungsnummern::NummerVerbrauchen() {
    if (!automatisch()) {
        verbraucht_ = false;
        return {};
    }
    const auto sperre = Sperren();
    std::string meldung = NummerErneuern();
    verbraucht_ = false;
    ZaehlerHeben();
    return meldung;
}

void Rechnungsnummern::ZaehlerHeben() {
    const Zaehlerstand stand = ZaehlerNachlesen();
    if (zaehler_ == std::numeric_limits<int>::max()) {
        form1_.Hinweise.melden("Der Zähler ist am Ende: die nächste Rechnung bekäme wieder die Nummer " +
                               Nummer() + ". Bitte RN.txt berichtigen und neu starten.");
        return;
    }
    ++zaehler_;
    verbraucht_ = true;
    ZaehlerZeigen();
    LesbarkeitMelden(stand);
    ZaehlerSchreiben();
}

void Rechnungsnummern::NummerZurueckgeben() {
    const auto sperre = Sperren();
    const std::optional<int> geschrieben = ZAEHLERSTAND(verzeichnis_).wert;
    if (!std::exchange(verbraucht_, false) || geschrieben > zaehler_) {
        return;
    }
    --zaehler_;
    ZaehlerZeigen();
    if (geschrieben > zaehler_) {
        ZaehlerSchreiben();
    }
}

void Rechnungsnummern::Command_RNSTartwertSET_Click() {
    const std::optional<int> wert = zaehler_aus(einstellungen_.Text_RNStartwert.Text());
    if (!wert) {
        dialogs_.message({"Bitte verwenden Sie nur Zahlenwerte!",
                          std::string(kProgrammname) + "Information...          ", Buttons::Ok,
                          Symbol::Information});
        return;
    }
    zaehler_ = *wert;
    ZaehlerSchreiben();
    ZaehlerAuffrischen();
}

void Rechnungsnummern::NummerAuffrischen() {
    if (ZeigtNaechste()) {
        NummerZeigen();
    } else {
        form1_.Text_RNnr.Locked = automatisch();
    }
}

void Rechnungsnummern::ZaehlerAuffrischen() {
    ZaehlerZeigen();
    NummerAuffrischen();
}

void Rechnungsnummern::ZaehlerSchreiben() {
    try {
        DATEI_SCHREIBEN(verzeichnis_.pfad("\\RN.txt"), std::to_string(zaehler_));
    } catch (const Laufzeitfehler& fehler) {
        dialogs_.message(
            {"Die nächste Rechnungsnummer konnte nicht in >>RN.txt<< gespeichert werden. Fehlernr.: " +
                 std::to_string(fehler.nummer()),
             "Achtung!", Buttons::Ok, Symbol::Exclamation});
    }
}

Zaehlerstand Rechnungsnummern::ZaehlerNachlesen() {
    const Zaehlerstand stand = ZAEHLERSTAND(verzeichnis_);
    if (stand.wert && *stand.wert > zaehler_) {
        zaehler_ = *stand.wert;
        ZaehlerZeigen();
    }
    return stand;
}

void Rechnungsnummern::LesbarkeitMelden(const Zaehlerstand& stand) {
    if (stand.unlesbar) {
        form1_.Hinweise.melden("Der Zähler in RN.txt ist nicht lesbar, die nächste Nummer ist " +
                               std::to_string(zaehler_) + ": stimmt sie nicht, bitte RN.txt berichtigen.");
    }
}

std::string Rechnungsnummern::Nummer() const {
    const std::string muster(static_cast<std::size_t>(einstellungen_.Slider_RNFORMAT.Value()), '0');
    return format_zahl(automatisch() ? zaehler_ : 0, muster);
}

void Rechnungsnummern::NummerZeigen() {
    const Rechnungszustand::Sperre still(zustand_);
    gezeigt_ = Nummer();
    verbraucht_ = false;
    form1_.Text_RNnr.Text = gezeigt_;
    form1_.Text_RNnr.Locked = automatisch();
}

void Rechnungsnummern::ZaehlerZeigen() {
    einstellungen_.Text_RNStartwert.Text = std::to_string(zaehler_);
    einstellungen_.Label_RNAKTUELL.Caption = std::to_string(zaehler_);
}

} // namespace quittika
