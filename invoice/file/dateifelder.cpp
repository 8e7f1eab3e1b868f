#include "invoice/file/dateifelder.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/zahlen.hpp"

#include <algorithm>
#include <utility>

namespace quittika {

namespace {

constexpr int kErsteRasterzeile = 8;
constexpr int kErsteRastersumme = 43;
constexpr int kErstesRasterhaekchen = 63;
constexpr int kZweiteRasterseite = 81;

void kopffelder(Form1& f, std::vector<Dateifeld>& felder) {
    const std::pair<int, Control*> kopf[] = {
        {1, &f.Text_rechnung}, {2, &f.Text_Datum},   {3, &f.Text_Kunde_1},   {4, &f.Text_Kunde_2},
        {5, &f.Text_Kunde_3},  {6, &f.Text_Kunde_4}, {7, &f.Text_KundennrK},
    };
    for (const auto& [zeile, feld] : kopf) {
        felder.push_back({zeile, feld, Lesart::Immer});
    }
}

/// The first page of the grid lies apart in three runs of lines.
void erste_rasterseite(Form1& f, std::vector<Dateifeld>& felder) {
    for (int n = 0; n < Form1::kZeilenProSeite; ++n) {
        Form1::Rasterzeile& zeile = f.Raster.at(static_cast<std::size_t>(n));
        const int erste = kErsteRasterzeile + 3 * n;
        felder.push_back({erste, &zeile.Text_menge[0], Lesart::Nie});
        felder.push_back({erste + 1, &zeile.Text_leistung[0], Lesart::Nie});
        felder.push_back({erste + 2, &zeile.Text_preis[0], Lesart::Nie});
        felder.push_back({kErsteRastersumme + n, &zeile.Text_gesamtp[0], Lesart::Nie});
        felder.push_back({kErstesRasterhaekchen + n, &zeile.Check_K[0], Lesart::Nie});
    }
}

/// The other pages follow each other, five lines a row.
void weitere_rasterseiten(Form1& f, std::vector<Dateifeld>& felder) {
    int nummer = kZweiteRasterseite;
    for (int seite = 1; seite < Form1::kSeiten; ++seite) {
        for (Form1::Rasterzeile& zeile : f.Raster) {
            for (Control* feld : {static_cast<Control*>(&zeile.Check_K[seite]),
                                  static_cast<Control*>(&zeile.Text_menge[seite]),
                                  static_cast<Control*>(&zeile.Text_leistung[seite]),
                                  static_cast<Control*>(&zeile.Text_preis[seite]),
                                  static_cast<Control*>(&zeile.Text_gesamtp[seite])}) {
                felder.push_back({nummer++, feld, Lesart::Nie});
            }
        }
    }
}

void textbloecke(Form1& f, std::vector<Dateifeld>& felder) {
    constexpr int kAnschreiben = 39;
    constexpr int kBemerkungen = 221;
    for (int n = 1; n <= 4; ++n) {
        felder.push_back({kAnschreiben + n - 1, &f.Text_Bemerkung(n)[0], Lesart::Immer});
        felder.push_back({kBemerkungen + n - 1, &f.Text_Bemerkung(n)[1], Lesart::Immer});
    }
}

void werte_und_status(Form1& f, std::vector<Dateifeld>& felder) {
    const Dateifeld liste[] = {
        {35, &f.Check_mwst, Lesart::Wenn_Numerisch},
        {36, &f.Option_mwst_plus, Lesart::Immer},
        {37, &f.Option_mwst_minus, Lesart::Immer},
        {dateizeile::kMwStText, &f.Text_MwSt, Lesart::Immer},
        {52, &f.Text_summe, Lesart::Immer},
        {53, &f.Text_summemwst, Lesart::Immer},
        {54, &f.Text_gesamtbetrag, Lesart::Immer},
        {55, &f.Check_mengenartDECIMAL, Lesart::Wenn_Numerisch},
        {56, &f.Check_versendet, Lesart::Wenn_Numerisch},
        {57, &f.Check_bezahlt, Lesart::Wenn_Numerisch},
        {dateizeile::kAbgemahnt, &f.Check_abgemahnt, Lesart::Wenn_Numerisch},
        {dateizeile::kDreistellig, &f.Check_000, Lesart::Wenn_Numerisch},
        {dateizeile::kRabatt, &f.Check_RABATT, Lesart::Wenn_Numerisch},
        {dateizeile::kRabattprozent, &f.Text_Rabatt, Lesart::Von_Hand},
        {dateizeile::kRabattbetrag, &f.Text_summeRabatt, Lesart::Von_Hand},
        {dateizeile::kNachRabatt, &f.Text_summeNACHRABATT, Lesart::Von_Hand},
        {dateizeile::kVersandText, &f.Text_Versandk, Lesart::Von_Hand},
        {dateizeile::kVersandEingabe, &f.Text_PreisVersankostenEingabe, Lesart::Von_Hand},
        {dateizeile::kVersand, &f.Check_Versandkosten, Lesart::Von_Hand},
        {dateizeile::kVersandExtra, &f.Check_VersandMwStEXTRA, Lesart::Von_Hand},
        {dateizeile::kNummer, &f.Text_RNnr, Lesart::Von_Hand},
        {216, &f.Option_inkl_MwSt, Lesart::Immer},
        {dateizeile::kVersandInklusive, &f.Check_VersandINKL_MwSt, Lesart::Von_Hand},
    };
    felder.insert(felder.end(), std::begin(liste), std::end(liste));
}

void beschriftungen(Form1& f, std::vector<Dateifeld>& felder) {
    const Dateifeld liste[] = {
        {225, &f.Label_Pos, Lesart::Wenn_Gesetzt},
        {226, &f.Label_Menge, Lesart::Wenn_Gesetzt},
        {227, &f.Label_Leistung, Lesart::Wenn_Gesetzt},
        {228, &f.Label_preis, Lesart::Wenn_Gesetzt},
        {229, &f.Label_gesamtp, Lesart::Wenn_Gesetzt},
        {dateizeile::kLieferdatumText, &f.Text_LIEFERDATUM, Lesart::Wenn_Gesetzt},
        {dateizeile::kLieferdatum, &f.Check_LIEFERDATUM, Lesart::Wenn_Numerisch},
    };
    felder.insert(felder.end(), std::begin(liste), std::end(liste));
}

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

std::string Feldtext(const Control& steuerelement) {
    if (const auto* option = dynamic_cast<const OptionButton*>(&steuerelement)) {
        return wahrheit_text(option->Value());
    }
    return steuerelement.main_value();
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
