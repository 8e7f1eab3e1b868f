#include "invoice/file/dateifelder.hpp"

#include "invoice/zahleneingabe.hpp"
#include "platform/datum.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace quittika {

namespace {

constexpr int kErsteRasterzeile = 8;
constexpr int kErsteRastersumme = 43;
constexpr int kErstesRasterhaekchen = 63;
constexpr int kZweiteRasterseite = 81;

using Felder = std::vector<Dateifeld>;

// The kinds of a line.
Dateifeld text(int zeile, TextBox& feld, Lesart lesart = Lesart::Immer) {
    return {zeile, &feld, lesart};
}
Dateifeld zahl(int zeile, TextBox& feld, Lesart lesart = Lesart::Immer) {
    return {zeile, &feld, lesart, Inhalt::Zahl};
}
Dateifeld datum(int zeile, TextBox& feld) {
    return {zeile, &feld, Lesart::Immer, Inhalt::Datum};
}
Dateifeld haekchen(int zeile, CheckBox& feld, Lesart lesart = Lesart::Immer) {
    return {zeile, &feld, lesart};
}
Dateifeld option(int zeile, OptionButton& feld) {
    return {zeile, &feld, Lesart::Immer};
}
Dateifeld beschriftung(int zeile, Label& feld) {
    return {zeile, &feld, Lesart::Wenn_Gesetzt};
}

void kopffelder(Form1& f, Felder& felder) {
    felder.insert(felder.end(), {text(1, f.Text_rechnung), datum(2, f.Text_Datum), text(3, f.Text_Kunde_1),
                                 text(4, f.Text_Kunde_2), text(5, f.Text_Kunde_3), text(6, f.Text_Kunde_4),
                                 text(7, f.Text_KundennrK)});
}

/// The first page of the grid lies apart in three runs of lines.
void erste_rasterseite(Form1& f, Felder& felder) {
    for (int n = 0; n < Form1::kZeilenProSeite; ++n) {
        Form1::Rasterzeile& zeile = f.Raster.at(static_cast<std::size_t>(n));
        const int erste = kErsteRasterzeile + 3 * n;
        felder.insert(felder.end(), {text(erste, zeile.Text_menge[0], Lesart::Nie),
                                     text(erste + 1, zeile.Text_leistung[0], Lesart::Nie),
                                     text(erste + 2, zeile.Text_preis[0], Lesart::Nie),
                                     text(kErsteRastersumme + n, zeile.Text_gesamtp[0], Lesart::Nie),
                                     haekchen(kErstesRasterhaekchen + n, zeile.Check_K[0], Lesart::Nie)});
    }
}

/// The other pages follow each other, five lines a row.
void weitere_rasterseiten(Form1& f, Felder& felder) {
    int nummer = kZweiteRasterseite;
    for (int seite = 1; seite < Form1::kSeiten; ++seite) {
        for (Form1::Rasterzeile& zeile : f.Raster) {
            felder.push_back(haekchen(nummer++, zeile.Check_K[seite], Lesart::Nie));
            for (TextBox* feld : {&zeile.Text_menge[seite], &zeile.Text_leistung[seite],
                                  &zeile.Text_preis[seite], &zeile.Text_gesamtp[seite]}) {
                felder.push_back(text(nummer++, *feld, Lesart::Nie));
            }
        }
    }
}

void textbloecke(Form1& f, Felder& felder) {
    constexpr int kAnschreiben = 39;
    constexpr int kBemerkungen = 221;
    for (int n = 1; n <= 4; ++n) {
        felder.push_back(text(kAnschreiben + n - 1, f.Text_Bemerkung(n)[0]));
        felder.push_back(text(kBemerkungen + n - 1, f.Text_Bemerkung(n)[1]));
    }
}

void werte_und_status(Form1& f, Felder& felder) {
    constexpr Lesart kHand = Lesart::Von_Hand;
    felder.insert(felder.end(), {
                                    haekchen(35, f.Check_mwst),
                                    option(36, f.Option_mwst_plus),
                                    option(37, f.Option_mwst_minus),
                                    zahl(38, f.Text_MwSt),
                                    zahl(52, f.Text_summe),
                                    zahl(53, f.Text_summemwst),
                                    zahl(54, f.Text_gesamtbetrag),
                                    haekchen(55, f.Check_mengenartDECIMAL),
                                    haekchen(56, f.Check_versendet),
                                    haekchen(57, f.Check_bezahlt),
                                    haekchen(58, f.Check_abgemahnt),
                                    haekchen(62, f.Check_000),
                                    haekchen(72, f.Check_RABATT),
                                    zahl(dateizeile::kRabattprozent, f.Text_Rabatt, kHand),
                                    zahl(dateizeile::kRabattbetrag, f.Text_summeRabatt, kHand),
                                    zahl(dateizeile::kNachRabatt, f.Text_summeNACHRABATT, kHand),
                                    text(dateizeile::kVersandText, f.Text_Versandk, kHand),
                                    zahl(dateizeile::kVersandEingabe, f.Text_PreisVersankostenEingabe, kHand),
                                    haekchen(dateizeile::kVersand, f.Check_Versandkosten, kHand),
                                    haekchen(dateizeile::kVersandExtra, f.Check_VersandMwStEXTRA, kHand),
                                    text(dateizeile::kNummer, f.Text_RNnr, kHand),
                                    option(216, f.Option_inkl_MwSt),
                                    haekchen(dateizeile::kVersandInklusive, f.Check_VersandINKL_MwSt, kHand),
                                });
}

void beschriftungen(Form1& f, Felder& felder) {
    felder.insert(felder.end(), {
                                    beschriftung(225, f.Label_Pos),
                                    beschriftung(226, f.Label_Menge),
                                    beschriftung(227, f.Label_Leistung),
                                    beschriftung(228, f.Label_preis),
                                    beschriftung(229, f.Label_gesamtp),
                                    text(230, f.Text_LIEFERDATUM, Lesart::Wenn_Gesetzt),
                                    haekchen(231, f.Check_LIEFERDATUM),
                                });
}

std::optional<int> haekchenwert(const std::string& text) {
    const auto wert = double_versuch(text);
    return wert && (*wert == 0 || *wert == 1 || *wert == 2) ? std::optional(static_cast<int>(*wert))
                                                            : std::nullopt;
}

/// What to do with each kind of control.
template <class... Teile> struct Je : Teile... { using Teile::operator()...; };
template <class... Teile> Je(Teile...) -> Je<Teile...>;

} // namespace

std::vector<Dateifeld> DATEIFELDER(Form1& form1) {
    std::vector<Dateifeld> felder;
    felder.reserve(256);
    kopffelder(form1, felder);
    erste_rasterseite(form1, felder);
    textbloecke(form1, felder);
    werte_und_status(form1, felder);
    weitere_rasterseiten(form1, felder);
    beschriftungen(form1, felder);
    std::sort(felder.begin(), felder.end(),
              [](const Dateifeld& a, const Dateifeld& b) { return a.zeile < b.zeile; });
    return felder;
}

std::string FELDTEXT(const Dateifeld& feld) {
    return std::visit(Je{[](const OptionButton* option) { return wahrheit_text(option->Value()); },
                         [](const auto* anderes) { return anderes->main_value(); }},
                      feld.steuerelement);
}

void FELD_SETZEN(const Dateifeld& feld, const std::string& text) {
    std::visit(Je{[&](TextBox* textfeld) { textfeld->Text = text; },
                  [&](CheckBox* haekchen) { HAEKCHEN_SETZEN(*haekchen, text); },
                  [&](OptionButton* option) { option->Value = wahrheitswert(text).value_or(false); },
                  [&](Label* beschriftung) { beschriftung->Caption = text; }},
               feld.steuerelement);
}

bool FELD_VERSTANDEN(const Dateifeld& feld, const std::string& text) {
    switch (feld.inhalt) {
    case Inhalt::Zahl:
        return IST_DATEIZAHL(text);
    case Inhalt::Datum:
        return datum_lesen(text).has_value();
    case Inhalt::Beliebig:
        break;
    }
    return std::visit(Je{[&](const CheckBox*) { return haekchenwert(text).has_value(); },
                         [&](const OptionButton*) { return wahrheitswert(text).has_value(); },
                         [](const auto*) { return true; }},
                      feld.steuerelement);
}

void HAEKCHEN_SETZEN(CheckBox& haekchen, const std::string& text) {
    if (const auto wert = haekchenwert(text)) {
        haekchen.Value = *wert;
    }
}

bool IST_DATEIZAHL(const std::string& text) {
    return ist_numerisch(text) || ist_numerisch(MIT_KOMMA(text));
}

Positionszeile POSITION_TEILEN(std::string_view zeile) {
    Positionszeile position{};
    std::size_t trenner = zeile.find(';');
    for (std::string_view& wert : position.werte) {
        position.vollzaehlig = trenner != std::string_view::npos;
        if (!position.vollzaehlig) {
            wert = "ERROR";
            continue;
        }
        zeile.remove_prefix(trenner + 1);
        trenner = zeile.find(';');
        wert = zeile.substr(0, trenner);
    }
    position.vollzaehlig = position.vollzaehlig && trenner == std::string_view::npos;
    return position;
}

const std::string& Dateizeilen::operator[](int zeile) const {
    static const std::string leer;
    if (zeile < 0 || zeile > dateizeile::kGrenze) {
        throw Laufzeitfehler(fehler::kIndex);
    }
    return static_cast<std::size_t>(zeile) < zeilen_.size() ? zeilen_[static_cast<std::size_t>(zeile)] : leer;
}

void Dateizeilen::setzen(int zeile, std::string text) {
    if (zeile < 0 || zeile > dateizeile::kGrenze) {
        throw Laufzeitfehler(fehler::kIndex);
    }
    if (static_cast<std::size_t>(zeile) >= zeilen_.size()) {
        zeilen_.resize(static_cast<std::size_t>(zeile) + 1);
    }
    zeilen_[static_cast<std::size_t>(zeile)] = std::move(text);
}

} // namespace quittika
