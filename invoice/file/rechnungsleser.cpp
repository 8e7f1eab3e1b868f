#include "invoice/file/rechnungsleser.hpp"

#include "invoice/zahleneingabe.hpp"
#include "platform/datei.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "platform/zahlen.hpp"

#include <array>
#include <cstdint>

namespace quittika {

namespace {

constexpr int kHoechstzeilen = 32001;
constexpr std::size_t kHoechstbytes = 50U << 20U;

/// Text to number and back; what is no number becomes 0.
std::string normalisiert(const std::string& text) {
    return zahl_text(double_versuch(MIT_KOMMA(text)).value_or(0));
}

} // namespace

Rechnungsleser::Rechnungsleser(Form1& form1, PROGRAMMEINSTELLUNG& einstellung, Rechnungszustand& zustand,
                               Rechnung& rechnung, Dateistand& stand, Dialogs& dialogs)
    : form1_(form1),
      einstellung_(einstellung),
      zustand_(zustand),
      rechnung_(rechnung),
      stand_(stand),
      dialogs_(dialogs),
      felder_(DATEIFELDER(form1)) {}

void Rechnungsleser::DateiEinlesen(const std::string& pfad) {
    const std::string bytes = bytes_lesen(pfad, kHoechstbytes);
    InhaltUebernehmen(bytes);
    stand_.merken(pfad, bytes);
}

void Rechnungsleser::InhaltUebernehmen(std::string_view bytes) {
    rechnung_.RechnungLeeren();
    DatenLesen.leeren();
    Dateiformat.clear();
    befund_ = {};
    int gelesen = 0;
    int nummer = 0;
    zeilen_durchgehen(bytes, [&](std::string_view zeile) {
        if (gelesen == kHoechstzeilen) {
            befund_.abgeschnitten = true;
            return false;
        }
        if (gelesen++ == 0) {
            Dateiformat = zeile;
        }
        if (beginnt_mit(zeile, kListenmarke)) {
            PositionUebernehmen(POSITION_TEILEN(zeile));
        } else if (Dateiformat == kDateikennung) {
            DatenLesen.setzen(nummer++, std::string(zeile));
        }
        return true;
    });
    befund_.gekuerzt = nummer <= dateizeile::kGespeichert || bytes.back() != '\n';
    befund_.werte = UNVERSTANDENE_WERTE(DatenLesen, felder_);
}

void Rechnungsleser::PositionUebernehmen(const Positionszeile& zeile) {
    befund_.positionen += POSITION_HEIL(zeile) ? 0 : 1;
    const std::array<ListBox*, 6> ziele{&form1_.List_pos,      &form1_.List_K,     &form1_.List_Menge,
                                        &form1_.List_Leistung, &form1_.List_Preis, &form1_.List_Gesamtp};
    for (std::size_t i = 0; i < ziele.size(); ++i) {
        ziele.at(i)->AddItem(std::string(zeile.werte.at(i)));
    }
}

bool Rechnungsleser::DateiDatenAnzeigen() {
    if (Dateiformat != kDateikennung) {
        dialogs_.message(
            {"Leider können Rechnungsdateien von früheren Versionen nicht geöffnet werden.\r\n"
             "Dazu gehören Dateien mit folgender Endkennung: >>*.qk6<< und >>*.qk7<<. Evtl. ist die "
             "gesuchte Datei auch nicht mehr am ursprünglichen Speicherort.",
             "Fehler...Datei ist keine >>*.qk8<< - Datei..."});
        befund_ = {};
        return false;
    }
    const Rechnungszustand::Sperre still(zustand_);
    FelderUebernehmen();
    VersandUebernehmen();
    BetraegeUebernehmen();
    UebrigesUebernehmen();
    return true;
}

void Rechnungsleser::FelderUebernehmen() {
    // What a file does not set must not be left from the invoice before.
    for (CheckBox* haekchen :
         {&form1_.Check_mwst, &form1_.Check_mengenartDECIMAL, &form1_.Check_000, &form1_.Check_RABATT,
          &form1_.Check_VersandMwStEXTRA, &form1_.Check_VersandINKL_MwSt}) {
        haekchen->Value = 0;
    }
    form1_.Combo1_mahnung.ListIndex = -1;
    for (const Dateifeld& feld : felder_) {
        FeldUebernehmen(feld);
    }
}

void Rechnungsleser::FeldUebernehmen(const Dateifeld& feld) {
    const std::string& text = DatenLesen[feld.zeile];
    switch (feld.lesart) {
    case Lesart::Nie:
    case Lesart::Von_Hand:
        break;
    case Lesart::Wenn_Gesetzt:
        if (text != kNichtGesetzt) {
            FELD_SETZEN(feld, text);
        }
        break;
    case Lesart::Immer:
        FELD_SETZEN(feld, text);
        break;
    }
}

void Rechnungsleser::VersandUebernehmen() {
    const bool vorhanden = ist_numerisch(DatenLesen[dateizeile::kVersand]);
    if (vorhanden) {
        HAEKCHEN_SETZEN(form1_.Check_Versandkosten, DatenLesen[dateizeile::kVersand]);
        form1_.Text_Versandk.Text = DatenLesen[dateizeile::kVersandText];
        const std::string& eingabe = DatenLesen[dateizeile::kVersandEingabe];
        form1_.Text_PreisVersankostenEingabe.Text =
            ist_numerisch(MIT_KOMMA(eingabe)) ? eingabe : vorgabe::kBetrag;
        HAEKCHEN_SETZEN(form1_.Check_VersandMwStEXTRA, DatenLesen[dateizeile::kVersandExtra]);
        HAEKCHEN_SETZEN(form1_.Check_VersandINKL_MwSt, DatenLesen[dateizeile::kVersandInklusive]);
    } else {
        form1_.Check_Versandkosten.Value = 0;
        form1_.Text_Versandk.Text = vorgabe::kVersandtext;
        form1_.Text_PreisVersankostenEingabe.Text = vorgabe::kBetrag;
    }
    form1_.Label_Versandkosten.Caption = form1_.Text_Versandk.Text();
}

void Rechnungsleser::BetraegeUebernehmen() {
    for (TextBox* betrag : {&form1_.Text_summe, &form1_.Text_summemwst, &form1_.Text_gesamtbetrag}) {
        if (!ist_numerisch(betrag->Text())) {
            betrag->Text = vorgabe::kBetrag;
        }
    }
    form1_.Text_Rabatt.Text = normalisiert(DatenLesen[dateizeile::kRabattprozent]);
    form1_.Text_summeRabatt.Text = normalisiert(DatenLesen[dateizeile::kRabattbetrag]);
    form1_.Text_summeNACHRABATT.Text = normalisiert(DatenLesen[dateizeile::kNachRabatt]);
    if (ist_numerisch(MIT_KOMMA(DatenLesen[dateizeile::kMwStSatz]))) {
        form1_.Text_MwSt.Text = normalisiert(DatenLesen[dateizeile::kMwStSatz]);
    } else if (!ist_numerisch(MIT_KOMMA(form1_.Text_MwSt.Text()))) {
        form1_.Text_MwSt.Text = einstellung_.MWST_SATZ1;
    }
    SatzAuswahlZeigen(form1_, einstellung_);
}

Versandaufteilung Rechnungsleser::VersandGelesen() const {
    return {double_versuch(MIT_KOMMA(DatenLesen[dateizeile::kVersandNetto])).value_or(0),
            double_versuch(MIT_KOMMA(DatenLesen[dateizeile::kVersandMwSt])).value_or(0)};
}

bool Rechnungsleser::NummerVorlaeufig() const {
    return DatenLesen[dateizeile::kVorlaeufig] == kVorlaeufig;
}

void Rechnungsleser::UebrigesUebernehmen() {
    const std::string& nummer = DatenLesen[dateizeile::kNummer];
    form1_.Text_RNnr.Text = nummer == kNichtGesetzt ? std::string() : nummer;
    form1_.Combo1_mahnung.Enabled = form1_.Check_abgemahnt.ticked();
    const auto stufe = double_versuch(DatenLesen[dateizeile::kMahnung]);
    if (stufe && *stufe >= -1 && *stufe < form1_.Combo1_mahnung.ListCount()) {
        form1_.Combo1_mahnung.ListIndex = static_cast<int>(*stufe);
    }
    const std::string& schrift = DatenLesen[dateizeile::kSchrift];
    if (!schrift.empty() && schrift != kNichtGesetzt) {
        einstellung_.RECHNUNGSSCHRIFT = schrift;
    }
    const std::string& notiz = DatenLesen[dateizeile::kNotiz];
    rechnung_.NotizSetzen(notiz == kNichtGesetzt ? std::string(vorgabe::kNotiz) : notiz);
    ZweiteKopfzeileZeigen(form1_);
    LieferdatumFreigeben(form1_);
}

} // namespace quittika
