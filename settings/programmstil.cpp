#include "settings/programmstil.hpp"

#include <algorithm>
#include <iterator>
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

void Programmstil::FARBEN_WAEHLEN() {
    const Stil* stil = stil_von(programm_);
    if (stil == nullptr) {
        return;
    }
    const bool individuell = stil->knopf == &frm_Programm::Option_stil5;
    werte_.HINTERGRUNDFARBE = individuell ? werte_.FARBE_INDIVIDUELL_HINTERGRUND : stil->hintergrund;
    werte_.FORMULARFARBE = individuell ? werte_.FARBE_INDIVIDUELL_FORMULAR : stil->formular;
}

void Programmstil::HINTERGRUNDBILD_NEHMEN() {
    const Stil* stil = stil_von(programm_);
    if (stil != nullptr && stil->bild != nullptr) {
        form1_.Image_hintergrund.Picture = (programm_.*stil->bild).Picture();
    }
}

void Programmstil::Command_Vorschau_Click() {
    const bool eigenes_aussehen = stil_von(programm_) == nullptr;
    for (Form* fenster : std::initializer_list<Form*>{&form1_, &einstellungen_, &programm_}) {
        fenster->OwnLook = eigenes_aussehen;
        fenster->BackColor = werte_.HINTERGRUNDFARBE;
    }
    for (Control* teil : formularteile(form1_)) {
        teil->OwnLook = eigenes_aussehen;
        teil->BackColor = werte_.FORMULARFARBE;
    }
}

} // namespace quittika
