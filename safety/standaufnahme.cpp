#include "safety/standaufnahme.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quittika {

Standaufnahme::Standaufnahme(Form1& form1, PROGRAMMEINSTELLUNG& werte, Rechnungszustand& zustand,
                             Eingabezeile& eingabezeile, Rechnung& rechnung, Summen& summen,
                             Positionen& positionen, Rechnungsnummern& nummern, Dateistand& dateistand,
                             Rechnungssperre& sperre)
    : form1_(form1),
      werte_(werte),
      zustand_(zustand),
      eingabezeile_(eingabezeile),
      rechnung_(rechnung),
      summen_(summen),
      positionen_(positionen),
      nummern_(nummern),
      dateistand_(dateistand),
      sperre_(sperre),
      felder_(STANDFELDER(form1, zustand, rechnung, eingabezeile)),
      nummernfeld_(NUMMERNFELD(felder_)) {}

std::array<ListBox*, 5> Standaufnahme::listen() const {
    return {&form1_.List_K, &form1_.List_Menge, &form1_.List_Leistung, &form1_.List_Preis,
            &form1_.List_Gesamtp};
}

Schritt Standaufnahme::nachfuehren(Rechnungsstand& stand) {
    Belegbezug bezug = beleg();
    const bool derselbe = bezug.beleg == stand.beleg.beleg;
    Schritt schritt;
    schritt.kennung = stand.kennung;
    const bool nummer_folgt = derselbe && (stand.beleg.nummer_vom_zaehler || bezug.nummer_vom_zaehler);
    felder_nachfuehren(stand, nummer_folgt, schritt);
    zeilen_nachfuehren(stand, schritt);
    schritt.begleitung = std::exchange(stand.begleitung, begleitung());
    bezug.gespeichert = stand.beleg.gespeichert;
    std::swap(stand.beleg, bezug);
    if (!derselbe) {
        schritt.beleg = std::move(bezug);
    }
    return schritt;
}

void Standaufnahme::felder_nachfuehren(Rechnungsstand& stand, bool nummer_folgt, Schritt& schritt) const {
    stand.felder.resize(felder_.size());
    for (std::size_t i = 0; i < felder_.size(); ++i) {
        std::string text = felder_[i].lesen();
        if (text != stand.felder[i]) {
            std::swap(text, stand.felder[i]);
            if (i != nummernfeld_ || !nummer_folgt) {
                schritt.felder.emplace_back(i, std::move(text));
            }
        }
    }
}

void Standaufnahme::zeilen_nachfuehren(Rechnungsstand& stand, Schritt& schritt) {
    std::array<std::uint64_t, 5> jetzt{};
    std::array<const std::vector<std::string>*, 5> spalten{};
    for (std::size_t s = 0; s < jetzt.size(); ++s) {
        jetzt.at(s) = listen().at(s)->revision();
        spalten.at(s) = &listen().at(s)->items();
    }
    if (std::exchange(gelesen_, jetzt) != jetzt) {
        schritt.zeilen = ZEILEN_NACHFUEHREN(stand.zeilen, spalten);
    }
}

Begleitung Standaufnahme::begleitung() const {
    return {form1_.List_DARSTELLUNG.ListIndex(),  eingabezeile_.zeile(),
            form1_.Option_anschreiben.Value(),    summen_.Versand(),
            form1_.Label_Versandkosten.Caption(), form1_.Label_VersandkostenMWST.Caption()};
}

Belegbezug Standaufnahme::beleg() const {
    return {
        zustand_.Beleg(), zustand_.AktuellerPfad(), zustand_.IstDateiDesPfads(), form1_.Label_Pfad.Caption(),
        dateistand_,      werte_.RECHNUNGSSCHRIFT,  nummern_.IstVorlaeufig()};
}

void Standaufnahme::gehen(const Schritt& schritt) {
    const Rechnungszustand::Sperre still(zustand_);
    const std::vector<std::string> eingabe_vorher = eingabe();
    felder_setzen(schritt);
    if (schritt.beleg) {
        beleg_setzen(*schritt.beleg);
    }
    if (!schritt.zeilen.leer()) {
        zeilen_setzen(schritt.zeilen);
    }
    eingabe_setzen(schritt, eingabe_vorher);
    (schritt.begleitung.anschreiben ? form1_.Option_anschreiben : form1_.Option_Bemerkungen).Value = true;
    form1_.Label_Versandkosten.Caption = schritt.begleitung.versandtext;
    form1_.Label_VersandkostenMWST.Caption = schritt.begleitung.versandsteuertext;
    summen_.VersandMerken(schritt.begleitung.versand);
    if (schritt.beleg && schritt.beleg->nummer_vom_zaehler) {
        nummern_.RNNUMMERZUWEISEN(); // the counter may have gone on since
    }
    summen_.jetztberechnen_List();
}

void Standaufnahme::felder_setzen(const Schritt& schritt) {
    for (const auto& [index, text] : schritt.felder) {
        if (felder_[index].art != Feldart::Eingabe) {
            felder_[index].setzen(text);
        }
    }
    form1_.Combo1_mahnung.Enabled = form1_.Check_abgemahnt.ticked();
    LieferdatumFreigeben(form1_);
    ZweiteKopfzeileZeigen(form1_);
    SatzAuswahlZeigen(form1_, werte_);
}

void Standaufnahme::zeilen_setzen(const Zeilentausch& tausch) {
    Zeilenspalten frueher = FRUEHERE_ZEILEN(tausch);
    const int ab = static_cast<int>(tausch.ab);
    for (std::size_t s = 0; s < frueher.size(); ++s) {
        const std::vector<std::string>& jetzt = listen().at(s)->items();
        std::vector<std::string> rest = std::move(frueher.at(s));
        rest.insert(rest.end(), jetzt.begin() + static_cast<std::ptrdiff_t>(tausch.ab + tausch.jetzt),
                    jetzt.end());
        listen().at(s)->assign(std::move(rest), ab);
    }
    summen_.PositionenNummerieren();
    rechnung_.DarstellungAufbauen(ab);
}

void Standaufnahme::beleg_setzen(const Belegbezug& beleg) {
    const auto anderer = beleg.ist_datei ? sperre_.WerSonst(beleg.pfad) : std::nullopt;
    zustand_.BelegWiederholen(beleg.beleg);
    zustand_.DateiSetzen(anderer ? std::string() : beleg.pfad);
    if (!beleg.ist_datei) {
        zustand_.DateiLoesen();
    }
    sperre_.Setzen(zustand_.IstDateiDesPfads() ? beleg.pfad : std::string());
    if (anderer) {
        form1_.Hinweise.melden("Die Rechnung ist inzwischen geöffnet von " + SPERRTEXT(*anderer) +
                               ": Änderungen lassen sich unter einem anderen Namen speichern.");
    }
    form1_.Label_Pfad.Caption = beleg.pfadanzeige;
    dateistand_ = beleg.dateistand;
    werte_.RECHNUNGSSCHRIFT = beleg.schrift;
}

std::vector<std::string> Standaufnahme::eingabe() const {
    std::vector<std::string> texte;
    for (const Standfeld& feld : felder_) {
        if (feld.art == Feldart::Eingabe) {
            texte.push_back(feld.lesen());
        }
    }
    return texte;
}

/// A step that leaves rows and input line alone leaves the selection alone, too.
void Standaufnahme::eingabe_setzen(const Schritt& schritt, const std::vector<std::string>& vorher) {
    const std::size_t erstes = felder_.size() - vorher.size();
    std::vector<std::string> texte = vorher;
    for (const auto& [index, text] : schritt.felder) {
        if (index >= erstes) {
            texte[index - erstes] = text;
        }
    }
    if (schritt.zeilen.leer() && texte == vorher && !schritt.beleg) {
        return;
    }
    positionen_.StillAuswaehlen(
        std::min(schritt.begleitung.auswahl, form1_.List_DARSTELLUNG.ListCount() - 1));
    eingabezeile_.leeren();
    if (schritt.begleitung.eingabezeile >= 0) {
        positionen_.ZeileInEingabeHolen();
    }
    for (std::size_t i = 0; i < texte.size(); ++i) {
        felder_[erstes + i].setzen(texte[i]);
    }
    eingabezeile_.felder_zeigen();
}

} // namespace quittika
