#include "invoice/file/rechnungsschreiber.hpp"

#include "invoice/zahleneingabe.hpp"
#include "platform/datum.hpp"
#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "platform/zahlen.hpp"

#include <array>
#include <utility>

namespace quittika {

namespace {

/// A field that begins like a position or reads like the mark of an unset one would be taken for that: a
/// blank in front keeps it a field.
std::string feldzeile(std::string text) {
    text = einzeilig(std::move(text));
    return beginnt_mit(text, kListenmarke) || text == kNichtGesetzt ? " " + text : text;
}

std::string numerisch_oder_null(const std::string& text) {
    return ist_numerisch(text) ? text : "0";
}

} // namespace

Rechnungsschreiber::Rechnungsschreiber(Form1& form1, const PROGRAMMEINSTELLUNG& einstellung,
                                       const Rechnungszustand& zustand,
                                       const Programmverzeichnis& verzeichnis, Dateistand& stand,
                                       Dialogs& dialogs, const Clock& uhr)
    : form1_(form1),
      einstellung_(einstellung),
      zustand_(zustand),
      stand_(stand),
      uhr_(uhr),
      felder_(DATEIFELDER(form1)),
      ablage_(form1.Hinweise, verzeichnis, dialogs) {}

void Rechnungsschreiber::DateiDatenSammeln() {
    DatenSchreiben.leeren();
    for (int zeile = 0; zeile <= dateizeile::kLetzteFeste; ++zeile) {
        DatenSchreiben.setzen(zeile, kNichtGesetzt);
    }
    for (const Dateifeld& feld : felder_) {
        DatenSchreiben.setzen(feld.zeile, feldzeile(FELDTEXT(feld)));
    }
    BesondereZeilen();
}

void Rechnungsschreiber::BesondereZeilen() {
    const double satz = double_versuch(MIT_KOMMA(form1_.Text_MwSt.Text())).value_or(0);
    const std::pair<int, std::string> zeilen[] = {
        {dateizeile::kKennung, kDateikennung},
        {dateizeile::kMahnung, std::to_string(form1_.Combo1_mahnung.ListIndex())},
        {dateizeile::kMwStSatz, zahl_text(satz)},
        {dateizeile::kSchrift, einstellung_.RECHNUNGSSCHRIFT},
        {dateizeile::kNotiz, zustand_.Notiztext},
        {dateizeile::kVersandMwSt, numerisch_oder_null(form1_.Text_PreisVersankostenMwST.Text())},
        {dateizeile::kVersandNetto, numerisch_oder_null(form1_.Text_PreisVersankosten.Text())},
    };
    for (const auto& [zeile, text] : zeilen) {
        DatenSchreiben.setzen(zeile, feldzeile(text));
    }
}

void Rechnungsschreiber::PositionenAnfuegen(Textpuffer& datei) const {
    const Form1& f = form1_;
    const std::array<const ListBox*, 6> listen{&f.List_pos,      &f.List_K,     &f.List_Menge,
                                               &f.List_Leistung, &f.List_Preis, &f.List_Gesamtp};
    std::string zeile;
    for (int i = 0; i < f.List_Gesamtp.ListCount(); ++i) {
        zeile = kListenmarke;
        for (const ListBox* liste : listen) {
            zeile += ';';
            zeile += liste->List(i);
        }
        zeile = einzeilig(std::move(zeile));
        datei.zeile(zeile);
    }
}

Textpuffer Rechnungsschreiber::Dateitext(const std::string& gespeichert) const {
    Textpuffer datei;
    for (const std::string& zeile : DatenSchreiben.alle()) {
        datei.zeile(zeile);
    }
    datei.zeile(kGespeichertAm + gespeichert);
    PositionenAnfuegen(datei);
    return datei;
}

std::string Rechnungsschreiber::Abbild(const std::string& gespeichert, bool vorlaeufig) {
    DateiDatenSammeln();
    Textpuffer datei = Dateitext(gespeichert);
    if (vorlaeufig) {
        datei.zeile(kVorlaeufig);
    }
    return datei.bytes();
}

bool Rechnungsschreiber::DateiSchreiben(const std::string& pfad) {
    const Textpuffer datei = Dateitext(datum_zeit_text(uhr_.now()));
    stand_.vormerken(datei.bytes());
    if (VorSchreiben) {
        VorSchreiben(pfad, datei.bytes());
    }
    if (!ablage_.Ablegen(pfad, datei)) {
        return false;
    }
    stand_.geschrieben(pfad);
    return true;
}

} // namespace quittika
