#include "settings/programmstil.hpp"

#include "invoice/rechnung.hpp"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace quittika {

namespace {

struct Stil {
    OptionButton frm_Programm::*knopf;
    Color hintergrund;
    Color formular;
    Image frm_Programm::*bild = nullptr;
};

constexpr Color kHellgrau = 0xC0C0C0;
constexpr int kIndividuell = 5; ///< number of the style of the user's own colours

/// The user's own colours are none of the table's.
constexpr Stil kStile[] = {
    {&frm_Programm::Option_stil1, 0x97785B, kHellgrau},
    {&frm_Programm::Option_stil2, kHellgrau, kHellgrau},
    {&frm_Programm::Option_stil3, color::kWhite, 0xFFC0C0},
    {&frm_Programm::Option_stil4, color::kBlack, kHellgrau},
    {&frm_Programm::Option_stil5, 0, 0},
    {&frm_Programm::Option_stil6stroh, color::kBlack, color::rgb(235, 235, 235),
     &frm_Programm::Image_Speicher_stroh},
    {&frm_Programm::Option_stil7stroh, color::kBlack, kHellgrau, &frm_Programm::Image_Speicher_strohbraun},
};

/// The style that is on, or null.
const Stil* stil_von(const frm_Programm& programm) {
    const auto* an = std::find_if(std::begin(kStile), std::end(kStile),
                                  [&](const Stil& stil) { return (programm.*stil.knopf).Value(); });
    return an == std::end(kStile) ? nullptr : an;
}

void rasterteile(Form1& f, std::vector<Control*>& teile) {
    for (int seite = 0; seite < Form1::kSeiten; ++seite) {
        teile.push_back(&f.Frame_seite1[seite]);
        for (Form1::Rasterzeile& zeile : f.Raster) {
            teile.insert(teile.end(), {&zeile.Check_K[seite], &zeile.Text_gesamtp[seite]});
        }
    }
}

/// What has the colour of the forms: groups of the main window, what is placed on them, and the sums.
std::vector<Control*> formularteile(Form1& f) {
    std::vector<Control*> teile{&f.Frame_Kundendaten,
                                &f.Frame_rechnung,
                                &f.Frame1,
                                &f.Frame3,
                                &f.Frame4,
                                &f.Frame6,
                                &f.Frame_Versandkosten,
                                &f.Frame_Bemerkungen[0],
                                &f.Frame_Bemerkungen[1],
                                &f.Frame_status,
                                &f.Frame_drucke,
                                &f.Frame_container,
                                &f.Frame_MwSatz,
                                &f.Frame_LIST,
                                &f.Frame_ADDs,
                                &f.Check_000,
                                &f.Check_RABATT,
                                &f.Check_bezahlt,
                                &f.Check_versendet,
                                &f.Check_abgemahnt,
                                &f.Check_tele_nichtdrucken,
                                &f.Check_mwst,
                                &f.Check_mengenartDECIMAL,
                                &f.Check_datum,
                                &f.Option_RECHNUNG,
                                &f.Option_RECHNUNG_KOPIE,
                                &f.Option_LIEFERSCHEIN,
                                &f.Option_LIEFERSCHEIN_KOPIE,
                                &f.Option_anschreiben,
                                &f.Option_Bemerkungen,
                                &f.Option_Satz1,
                                &f.Option_Satz2,
                                &f.Option_mwst_plus,
                                &f.Option_mwst_minus,
                                &f.Option_inkl_MwSt,
                                &f.Text_summe,
                                &f.Text_summeRabatt,
                                &f.Text_summeNACHRABATT,
                                &f.Text_summemwst,
                                &f.Text_gesamtbetrag,
                                &f.Text_PreisVersankosten,
                                &f.Text_PreisVersankostenMwST};
    rasterteile(f, teile);
    return teile;
}

} // namespace

Programmstil::Programmstil(Form1& form1, frm_einstellungen& einstellungen, frm_Programm& programm,
                           PROGRAMMEINSTELLUNG& werte, Desktop& desktop, std::function<void()> mitziehen)
    : form1_(form1),
      einstellungen_(einstellungen),
      programm_(programm),
      werte_(werte),
      desktop_(desktop),
      mitziehen_(std::move(mitziehen)) {
    for (int n = programm.Shape_hintergrund.first(); n <= programm.Shape_hintergrund.size(); ++n) {
        programm.Shape_hintergrund[n].BackColor = kStile[n - 1].hintergrund;
        programm.Shape_formular[n].BackColor = kStile[n - 1].formular;
    }
    DIALOG_ZEIGEN();
}

void Programmstil::FARBEN_WAEHLEN() {
    const Stil* stil = stil_von(programm_);
    if (stil == nullptr) {
        return;
    }
    const bool individuell = stil->knopf == &frm_Programm::Option_stil5;
    werte_.HINTERGRUNDFARBE = individuell ? werte_.FARBE_INDIVIDUELL_HINTERGRUND : stil->hintergrund;
    werte_.FORMULARFARBE = individuell ? werte_.FARBE_INDIVIDUELL_FORMULAR : stil->formular;
}

void Programmstil::Option_stil_Click() {
    const Stil* stil = stil_von(programm_);
    if (stil == nullptr) {
        const PROGRAMMEINSTELLUNG anfang;
        werte_.HINTERGRUNDFARBE = anfang.HINTERGRUNDFARBE;
        werte_.FORMULARFARBE = anfang.FORMULARFARBE;
    }
    FARBEN_WAEHLEN();
    werte_.HINTERGRUNDBILD = stil != nullptr && stil->bild != nullptr;
    DIALOG_ZEIGEN();
    Command_Vorschau_Click();
}

void Programmstil::HINTERGRUNDBILD_NEHMEN() {
    const Stil* stil = stil_von(programm_);
    if (stil != nullptr && stil->bild != nullptr) {
        form1_.Image_hintergrund.Picture = (programm_.*stil->bild).Picture();
    }
    form1_.Image_hintergrund.Visible = werte_.HINTERGRUNDBILD;
}

void Programmstil::Command_Vorschau_Click() {
    const bool eigenes_aussehen = stil_von(programm_) == nullptr;
    desktop_.set_look(eigenes_aussehen ? Look{} : Look{werte_.HINTERGRUNDFARBE, werte_.FORMULARFARBE});
    for (Form* fenster : std::initializer_list<Form*>{&form1_, &einstellungen_, &programm_}) {
        fenster->OwnLook = eigenes_aussehen;
        fenster->BackColor = werte_.HINTERGRUNDFARBE;
    }
    for (Control* teil : formularteile(form1_)) {
        teil->OwnLook = eigenes_aussehen;
        teil->BackColor = werte_.FORMULARFARBE;
    }
    LieferdatumFreigeben(form1_);
    HINTERGRUNDBILD_NEHMEN();
    mitziehen_();
    gezeigt_ = wahl();
}

void Programmstil::DIALOG_ZEIGEN() {
    programm_.Option_stil_standard.Value = stil_von(programm_) == nullptr;
    programm_.Frame_Individuell.Visible = programm_.Option_stil5.Value();
    for (Control* muster : std::initializer_list<Control*>{&programm_.Frame_farbe_formular,
                                                           &programm_.Shape_formular[kIndividuell]}) {
        muster->BackColor = werte_.FARBE_INDIVIDUELL_FORMULAR;
    }
    for (Control* muster : std::initializer_list<Control*>{&programm_.Frame_farbe_hintergrund,
                                                           &programm_.Shape_hintergrund[kIndividuell]}) {
        muster->BackColor = werte_.FARBE_INDIVIDUELL_HINTERGRUND;
    }
}

Stilwahl Programmstil::wahl() const {
    const Stil* stil = stil_von(programm_);
    return {stil == nullptr ? &frm_Programm::Option_stil_standard : stil->knopf,
            werte_.HINTERGRUNDFARBE,
            werte_.FORMULARFARBE,
            werte_.FARBE_INDIVIDUELL_HINTERGRUND,
            werte_.FARBE_INDIVIDUELL_FORMULAR,
            werte_.HINTERGRUNDBILD};
}

void Programmstil::setzen(const Stilwahl& wahl) {
    (programm_.*wahl.knopf).Value = true;
    werte_.HINTERGRUNDFARBE = wahl.hintergrund;
    werte_.FORMULARFARBE = wahl.formular;
    werte_.FARBE_INDIVIDUELL_HINTERGRUND = wahl.individuell_hintergrund;
    werte_.FARBE_INDIVIDUELL_FORMULAR = wahl.individuell_formular;
    werte_.HINTERGRUNDBILD = wahl.bild;
    DIALOG_ZEIGEN();
}

} // namespace quittika
