#include "print/eigenes_layout.hpp"

#include "invoice/belegtexte.hpp"
#include "print/druckkopf.hpp"
#include "print/eigene_bloecke.hpp"
#include "print/girodruck.hpp"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace quittika {

namespace {

constexpr double kKurzerKopf = 30;   ///< mm, highest place of date and title on a page without the full head
constexpr double kUnterAbsender = 6; ///< mm between logo or sender and them
constexpr double kBlattbreite = 297; ///< of the table's room: beyond the sheet's right edge

/// What the pages of a document have in common.
struct Beleg {
    const Form1& form1;
    const frm_einstellungen& einstellungen;
    const PROGRAMMEINSTELLUNG& programm;
    Design design;
    Druckoptionen optionen;
};

/// Draws one page.
class Eigenseite {
public:
    Eigenseite(Blatt& blatt, const Beleg& beleg, const Druckseite& seite)
        : blatt_(blatt),
          beleg_(beleg),
          design_(beleg.design),
          seite_(seite),
          voller_kopf_(seite.erste() || beleg.einstellungen.Option_RN_Kopf_alleSeiten.Value()),
          mit_absender_(voller_kopf_ || beleg.einstellungen.Check_MitLogoadresseFFSeite.ticked()),
          bloecke_(beleg.form1, beleg.einstellungen, beleg.programm, beleg.design),
          satz_(UNTERKANTE(blatt)) {}

    void drucken() {
        grund();
        const std::vector<Textblock> fuss = fuss_freihalten();
        std::vector<Textblock> ueber_tabelle;
        std::vector<Textblock> unter_tabelle;
        for (Textblock& block : kopfbloecke()) {
            (steht_oben(block) ? ueber_tabelle : unter_tabelle).push_back(std::move(block));
        }
        const double kopfende = setzen(ueber_tabelle);
        double ende = tabelle(voller_kopf_ ? satz_.frei_unter(design_.Y_LISTE) : kurzer_kopf(kopfende));
        ende = std::max(ende, girocode_freihalten());
        if (Textblock bemerkungen = bloecke_.bemerkungen(); mit_bemerkungen() && !im_kopf(bemerkungen)) {
            unter_tabelle.push_back(unter(ende, std::move(bemerkungen)));
        }
        setzen(unter_tabelle);
        fuss_drucken(fuss);
        if (summen_ && beleg_.optionen.girocode) {
            DRUCKE_GIROCODE(blatt_, *beleg_.optionen.girocode, *summen_);
        }
    }

private:
    bool steht_oben(const Textblock& block) const { return block.y < design_.Y_LISTE; }
    bool im_kopf(const Textblock& block) const { return voller_kopf_ && steht_oben(block); }
    bool mit_bemerkungen() const {
        return beleg_.optionen.lieferschein.bemerkungen &&
               (seite_.letzte() || beleg_.einstellungen.Option_RN_BM_alleSeite.Value());
    }

    /// What lies below all texts.
    void grund() {
        PrintSurface& surface = blatt_.surface;
        surface.FontName = beleg_.programm.RECHNUNGSSCHRIFT;
        surface.ForeColor = color::kBlack;
        if (design_.VISIBLE_WASSERZ) {
            surface.PaintPicture(systempfad(design_.IMG_WASSERZEICHEN), blatt_.X(design_.X_WASSERZ),
                                 blatt_.Y(design_.Y_WASSERZ), design_.B_WASSERZ, design_.H_WASSERZ);
        }
        Druckkopf(beleg_.form1, beleg_.einstellungen, beleg_.programm).DRUCKE_FALTMARKEN(blatt_);
        if (design_.VISIBLE_LOGO && mit_absender_) {
            surface.PaintPicture(systempfad(design_.IMG_LOGO), blatt_.X(design_.X_LOGO),
                                 blatt_.Y(design_.Y_LOGO), design_.B_LOGO, design_.H_LOGO);
        }
    }

    std::vector<Textblock> kopfbloecke() const {
        std::vector<Textblock> bloecke;
        if (mit_absender_) {
            bloecke.push_back(bloecke_.absender());
        }
        if (!voller_kopf_) {
            return bloecke;
        }
        for (const Textblock& block : {bloecke_.kunde(), bloecke_.kundennummer(), bloecke_.datum(),
                                       bloecke_.lieferdatum(), bloecke_.titel()}) {
            bloecke.push_back(block);
        }
        if (beleg_.optionen.lieferschein.werbespruch) {
            bloecke.push_back(bloecke_.werbespruch());
        }
        if (beleg_.optionen.lieferschein.anschreiben) {
            bloecke.push_back(bloecke_.anschreiben());
        }
        if (const Textblock bemerkungen = bloecke_.bemerkungen(); mit_bemerkungen() && im_kopf(bemerkungen)) {
            bloecke.push_back(bemerkungen);
        }
        return bloecke;
    }

    /// Prints the blocks from top to bottom and returns where the lowest one ends.
    double setzen(std::vector<Textblock>& bloecke) {
        std::stable_sort(bloecke.begin(), bloecke.end(), [](const Textblock& a, const Textblock& b) {
            return std::tie(a.y, a.x) < std::tie(b.y, b.x);
        });
        double ende = 0;
        for (const Textblock& block : bloecke) {
            ende = std::max(ende, BLOCK_SETZEN(blatt_, satz_, block));
        }
        return ende;
    }

    /// Date and title close below what stands above, so that all rows of the page fit. Returns where the
    /// table begins.
    double kurzer_kopf(double kopfende) {
        const double logoende = design_.Y_LOGO + design_.H_LOGO;
        if (mit_absender_ && design_.VISIBLE_LOGO && logoende < design_.Y_LISTE) {
            kopfende = std::max(kopfende, logoende);
        }
        Textblock datum = bloecke_.datum();
        datum.y = std::max(kKurzerKopf, kopfende + kUnterAbsender);
        Textblock titel = bloecke_.titel();
        titel.y = BLOCK_SETZEN(blatt_, satz_, datum);
        return satz_.frei_unter(BLOCK_SETZEN(blatt_, satz_, titel));
    }

    /// Prints rows and amounts from `y` on and returns where what follows them begins.
    double tabelle(double y) {
        const auto [ende, summen] = bloecke_.TABELLE_DRUCKEN(blatt_, seite_, beleg_.optionen, y);
        satz_.belegen({kListenrand, y, kBlattbreite, ende});
        summen_ = summen;
        return ende + kTabellenschluss;
    }

    /// Texts keep clear of the GiroCode as far as they fit below it. Returns where it ends, 0 where nothing
    /// was kept.
    double girocode_freihalten() {
        if (!summen_ || !beleg_.optionen.girocode) {
            return 0;
        }
        const Kasten kasten = GIROCODE_KASTEN(blatt_, *beleg_.optionen.girocode, *summen_);
        const double x = blatt_.just.Xjust;
        const double y = blatt_.just.Yjust;
        const double unten = kasten.unten - y;
        Textblock bemerkungen = bloecke_.bemerkungen();
        bemerkungen.y = unten;
        if (mit_bemerkungen() && !im_kopf(bloecke_.bemerkungen()) &&
            !satz_.frei(BLOCK_KASTEN(bemerkungen, BLOCK_MESSEN(blatt_, bemerkungen)))) {
            return 0;
        }
        satz_.belegen({kasten.links - x, kasten.oben - y, kasten.rechts - x, unten});
        return unten;
    }

    /// The block below `ende`, where the table ends; close below its last rule where it fits only there.
    Textblock unter(double ende, Textblock block) {
        const double y = block.y;
        block.y = std::max(y, ende);
        if (!satz_.frei(BLOCK_KASTEN(block, BLOCK_MESSEN(blatt_, block)))) {
            Textblock dicht = block;
            dicht.y = std::max(y, ende - kTabellenschluss);
            if (satz_.frei(BLOCK_KASTEN(dicht, BLOCK_MESSEN(blatt_, dicht)))) {
                return dicht;
            }
        }
        return block;
    }

    /// Page number and bank data stand where the design puts them; everything else makes room.
    std::vector<Textblock> fuss_freihalten() {
        std::vector<Textblock> fuss = bloecke_.bankzeilen(blatt_);
        fuss.push_back(bloecke_.seitenzahl(seite_));
        for (Textblock& block : fuss) {
            const Blockmass mass = BLOCK_MESSEN(blatt_, block);
            AUFS_BLATT_RUECKEN(blatt_, block, mass);
            if (mass.hoehe > 0) {
                satz_.belegen(BLOCK_KASTEN(block, mass));
            }
        }
        if (const std::optional<Kasten> linie = bloecke_.banklinie()) {
            satz_.belegen(*linie);
        }
        return fuss;
    }

    void fuss_drucken(const std::vector<Textblock>& fuss) {
        bloecke_.BANKLINIE_DRUCKEN(blatt_);
        for (const Textblock& block : fuss) {
            BLOCK_DRUCKEN(blatt_, block);
        }
    }

    Blatt& blatt_;
    const Beleg& beleg_;
    const Design& design_;
    const Druckseite& seite_;
    bool voller_kopf_;
    bool mit_absender_; ///< logo and sender stand on the page
    EigeneBloecke bloecke_;
    Satzspiegel satz_;
    std::optional<double> summen_; ///< where the totals begin, in mm of the surface
};

/// A delivery note shows what was ticked, but no prices.
Lieferscheinangaben angaben(const Form1& form1, Lieferscheinangaben gewaehlt) {
    gewaehlt.preise = false;
    return IST_LIEFERSCHEIN(form1) ? gewaehlt : Lieferscheinangaben{};
}

} // namespace

Druckvorlage DRUCKE_EIGENESLAYOUT(const Form1& form1, const frm_einstellungen& einstellungen,
                                  const PROGRAMMEINSTELLUNG& programm, const Design& design,
                                  const Druckoptionen& optionen) {
    const Beleg beleg{form1,
                      einstellungen,
                      programm,
                      design,
                      {angaben(form1, optionen.lieferschein), optionen.x_gesamt, optionen.girocode}};
    return {DRUCKSEITEN(form1, einstellungen),
            [beleg](Blatt& blatt, const Druckseite& seite) { Eigenseite(blatt, beleg, seite).drucken(); }};
}

} // namespace quittika
