#include "print/eigene_bloecke.hpp"

#include "invoice/belegtexte.hpp"
#include "print/druckfuss.hpp"
#include "print/druckkopf.hpp"
#include "print/drucktabelle.hpp"
#include "print/firmenkopf.hpp"
#include "print/summenblock.hpp"
#include "print/tabellenstil.hpp"

#include <algorithm>
#include <string>
#include <utility>

namespace quittika {

namespace {

constexpr double kZeilenabstandBank = 4; ///< mm
constexpr double kLuecke = 2;            ///< mm between bank data
constexpr double kBanklinie = 1;         ///< mm from the rule to the bank data
constexpr double kBlattbreite = 297;     ///< the rule runs over the sheet's right edge
constexpr double kStrich = 0.2;          ///< mm above and below its middle

} // namespace

Textblock EigeneBloecke::absender() const {
    return {design_.X_ADRESSEFIRMA,
            design_.Y_ADRESSEFIRMA,
            static_cast<double>(programm_.GROESSE_ZUSATZ_2),
            einstellungen_.Check_FETT_firma1.ticked() ? std::size_t{1} : 0,
            programm_.FARBE_FIRMENDATEN,
            FIRMENZEILEN(einstellungen_)};
}

Textblock EigeneBloecke::kunde() const {
    return {design_.X_ADRESSEKUNDE, design_.Y_ADRESSEKUNDE, kSchriftKopf, 0,
            color::kBlack,          KUNDENZEILEN(form1_)};
}

Textblock EigeneBloecke::kundennummer() const {
    return {design_.X_KDNR,
            design_.Y_KDNR,
            kSchriftKopf,
            1,
            programm_.FARBE_KUNDENNR,
            {KUNDENTEXT(form1_, form1_.Text_KundennrK)}};
}

Textblock EigeneBloecke::datum() const {
    return {design_.X_DATUM, design_.Y_DATUM, kSchriftKopf, 0, color::kBlack, {form1_.Text_Datum.Text()}};
}

Textblock EigeneBloecke::lieferdatum() const {
    Textblock block{design_.X_LIEFERDATUM,
                    design_.Y_LIEFERDATUM,
                    static_cast<double>(programm_.GROESSE_ZUSATZ_1),
                    0,
                    color::kBlack,
                    {}};
    if (form1_.Check_LIEFERDATUM.ticked()) {
        block.zeilen = {form1_.Text_LIEFERDATUM.Text()};
    }
    return block;
}

Textblock EigeneBloecke::werbespruch() const {
    return {design_.X_WERBESPRUCH,
            design_.Y_WERBESPRUCH,
            static_cast<double>(programm_.GROESSE_WERBUNG),
            1,
            programm_.FARBE_WERBESPRUCH,
            {einstellungen_.Text_Werbung.Text()}};
}

Textblock EigeneBloecke::titel() const {
    return {design_.X_RN,
            design_.Y_RN,
            static_cast<double>(programm_.GROESSE_RECHNUNG),
            1,
            color::kBlack,
            {BELEGTITEL(form1_, einstellungen_)}};
}

Textblock EigeneBloecke::anschreiben() const {
    return {design_.X_BEMERKUNG_1,
            design_.Y_BEMERKUNG_1,
            static_cast<double>(programm_.GROESSE_ANSCHREIBEN),
            0,
            programm_.FARBE_BEMERKUNGEN,
            textzeilen(0)};
}

Textblock EigeneBloecke::bemerkungen() const {
    return {design_.X_BEMERKUNG,
            design_.Y_BEMERKUNG,
            static_cast<double>(programm_.GROESSE_BEMERKUNGEN),
            0,
            programm_.FARBE_BEMERKUNGEN,
            textzeilen(1)};
}

std::vector<std::string> EigeneBloecke::textzeilen(int block) const {
    std::vector<std::string> zeilen;
    for (const auto* zeile : {&form1_.Text_Bemerkung1, &form1_.Text_Bemerkung2, &form1_.Text_Bemerkung3,
                              &form1_.Text_Bemerkung4}) {
        zeilen.push_back((*zeile)[block].Text());
    }
    return zeilen;
}

Textblock EigeneBloecke::seitenzahl(const Druckseite& seite) const {
    Textblock block{design_.X_SEITE, design_.Y_SEITE, kSchriftTabelle, 0, color::kBlack, {}};
    if (einstellungen_.Check_SEITENZAHLDRUCKEN.ticked()) {
        block.zeilen = {SEITENZAHL(seite.nummer, seite.anzahl)};
    }
    return block;
}

std::vector<Textblock> EigeneBloecke::freie_zeilen() const {
    const frm_einstellungen& e = einstellungen_;
    std::vector<std::string> texte{e.Text_Bankverb1.Text()};
    if (e.Check_Bankverb_Zeile2.ticked()) {
        texte.push_back(e.Text_Bankverb2.Text());
    }
    if (e.Check_Bankverb_Zeile3.ticked()) {
        texte.push_back(e.Text_Bankverb3.Text());
    }
    std::vector<Textblock> bloecke;
    double y = design_.Y_BANKZEILE;
    for (std::string& text : texte) {
        bloecke.push_back(
            {design_.X_BANKZEILE, y, kSchriftFuss, 0, programm_.FARBE_BANKDATEN, {std::move(text)}});
        y += kZeilenabstandBank;
    }
    return bloecke;
}

std::vector<Textblock> EigeneBloecke::bankzeilen(Blatt& blatt) const {
    if (!einstellungen_.Option_BankVerb_Vorgabe.Value()) {
        return freie_zeilen();
    }
    std::vector<Textblock> bloecke;
    const std::vector<Bankfeld> felder = BANKFELDER(einstellungen_);
    double frei = design_.X_BANKZEILE;
    double y = design_.Y_BANKZEILE;
    for (const Bankfeld& feld : felder) {
        Textblock block{0, y, kSchriftFuss, 0, programm_.FARBE_BANKDATEN, {feld.text}};
        const double breite = BLOCK_MESSEN(blatt, block).breite;
        const double spaetestens = RECHTER_RAND(blatt) - breite;
        if (frei > spaetestens && frei > design_.X_BANKZEILE) {
            y += kZeilenabstandBank;
            block.x = design_.X_BANKZEILE;
            block.y = y;
        } else {
            const double spalte = design_.X_BANKZEILE + feld.x - felder.front().x;
            block.x = std::max(std::min(spalte, spaetestens), frei);
        }
        frei = breite > 0 ? block.x + breite + kLuecke : frei;
        bloecke.push_back(std::move(block));
    }
    return bloecke;
}

std::optional<Kasten> EigeneBloecke::banklinie() const {
    if (!einstellungen_.Check_BANKLINIE.ticked()) {
        return {};
    }
    const double y = design_.Y_BANKZEILE - kBanklinie;
    return Kasten{0, y - kStrich, kBlattbreite, y + kStrich};
}

void EigeneBloecke::BANKLINIE_DRUCKEN(Blatt& blatt) const {
    if (const std::optional<Kasten> linie = banklinie()) {
        const double y = blatt.Y(linie->oben + kStrich);
        blatt.surface.Line(blatt.X(linie->links), y, blatt.X(linie->rechts), y, programm_.FARBE_LINIEN);
    }
}

EigeneBloecke::Tabellenende EigeneBloecke::TABELLE_DRUCKEN(Blatt& blatt, const Druckseite& seite,
                                                           const Druckoptionen& optionen, double y) const {
    const Color farbe = programm_.FARBE_LINIEN;
    const Drucktabelle tabelle(form1_, einstellungen_, programm_, optionen);
    blatt.schrift(kSchriftTabelle, false);
    blatt.gehe_zu(0, y);
    DRUCKE_TABELLE(blatt, tabelle, seite.zeilen, design_.LIST_OPTION, farbe);
    const std::optional<double> summen = DRUCKE_BETRAEGE(blatt, seite, tabelle, form1_, farbe);
    return {blatt.surface.CurrentY - blatt.just.Yjust - kTabellenschluss, summen};
}

} // namespace quittika
