#include "settings/frm_einstellungen.hpp"

#include <algorithm>
#include <string>

namespace quittika {

namespace {

constexpr const char* kAnschreiben[] = {
    "Sehr geehrte Damen und Herren,", "",
    "wir erlauben uns für unsere Dienstleistungen folgende Posten in Rechnung zu stellen:", ""};
constexpr const char* kBemerkungen[] = {
    "Bemerkungen: Hier steht Ihre Bemerkung", "Hier auch.....",
    "Unter >>Voreinstellungen>>Rechnungsdaten>>Registerkarte Textdaten =<< ",
    "können Sie den Bemerkungstext verändern."};

} // namespace

frm_einstellungen::Farbzeile::Farbzeile(Container& seite, const char* rahmen, const char* titel,
                                        const char* knopf, const char* muster, const char* regler)
    : Rahmen(seite, rahmen, titel),
      Command_FARBE(Rahmen, knopf, "Farbe wählen..."),
      Muster(Rahmen, muster),
      R(Rahmen, std::string(regler) + "_R", 0, 255, 0),
      G(Rahmen, std::string(regler) + "_G", 0, 255, 0),
      B(Rahmen, std::string(regler) + "_B", 0, 255, 0) {
    Muster.BackColor.adopt(color::kBlack);
}

frm_einstellungen::frm_einstellungen()
    : Form("frm_einstellungen", " Rechnungsdaten", {twips(1024), twips(700)}) {
    for (CheckBox* an : {&Check_FETT_firma1, &Check_Faltmarke_MITDRUCKEN, &Check_SEITENZAHLDRUCKEN,
                         &Check_Positionendruck, &Check_MitLogoadresseFFSeite, &Check_mit_Wasserz}) {
        an->Value.adopt(1);
    }
    for (OptionButton* an : {&Option_BankVerb_Vorgabe, &Option_RN_RK_Kopf_nurErsteSeite,
                             &Option_RN_BM_nurletzte_Seite, &Option2_Layout}) {
        an->Value.adopt(true);
    }
    for (Label* hinweis :
         {&Label_Hinweis_Steuernr, &Label_Hinweis_IBAN, &Label_Hinweis_MwSt, &Label_Hinweis_MwSt2}) {
        hinweis->Visible.adopt(false);
    }
    Frame_Bankverb_Zeilen.Visible.adopt(false);
    Text_Bankverb2.Enabled.adopt(false);
    Text_Bankverb3.Enabled.adopt(false);
    Label_Lieferschein.Visible.adopt(false);
    Label_Kopie.Visible.adopt(false);
    Frame3[0].Caption.adopt("Anschreiben");
    Frame3[1].Caption.adopt("Bemerkungen");
    for (int n = 1; n <= 4; ++n) {
        Text_Bemerkung(n)[0].Text.adopt(kAnschreiben[n - 1]);
        Text_Bemerkung(n)[1].Text.adopt(kBemerkungen[n - 1]);
    }
    for (TextBox* satz : {&Text_MwSt, &Text_MwSt2}) {
        satz->ToolTipText.adopt("Beispiel: 5 oder 5,0 aber nicht 5.0!!");
    }
    Slider_RNFORMAT.ToolTipText.adopt("Dient zum Einstellen des Zahlenformats. z.B. 001 oder 0001");
}

ControlArray<TextBox, 2>& frm_einstellungen::Text_Bemerkung(int n) {
    const std::array<ControlArray<TextBox, 2>*, 4> zeilen{&Text_Bemerkung1, &Text_Bemerkung2,
                                                          &Text_Bemerkung3, &Text_Bemerkung4};
    return *zeilen.at(static_cast<std::size_t>(n - 1));
}

const ControlArray<TextBox, 2>& frm_einstellungen::Text_Bemerkung(int n) const {
    return const_cast<frm_einstellungen*>(this)->Text_Bemerkung(n);
}

std::array<frm_einstellungen::Spaltenname, 5> frm_einstellungen::Spaltennamen() {
    return {{{Label_Pos, TName_Pos},
             {Label_Menge, TName_Menge},
             {Label_Leistung, TName_Leistung},
             {Label_preis, TNameEinzelpr},
             {Label_gesamtp, TNameGesamtpr}}};
}

std::array<OptionButton*, frm_einstellungen::kLayouts> frm_einstellungen::Layouts() {
    return {&Option1_Layout, &Option2_Layout, &Option3_Layout, &Option4_Layout, &Option5_Layout,
            &Option6_Layout, &Option7_Layout, &Option8_Layout, &Option9_Layout};
}

std::array<Image*, frm_einstellungen::kLayouts - 1> frm_einstellungen::Layoutbilder() {
    return {&Image1_Layout, &Image2_Layout, &Image3_Layout, &Image4_Layout,
            &Image5_Layout, &Image6_Layout, &Image7_Layout, &Image8_Layout};
}

int LAYOUT_GEWAEHLT(const frm_einstellungen& einstellungen) {
    const auto knoepfe = const_cast<frm_einstellungen&>(einstellungen).Layouts();
    const auto gewaehlt = std::find_if(knoepfe.begin(), knoepfe.end(),
                                       [](const OptionButton* knopf) { return knopf->Value(); });
    return gewaehlt == knoepfe.end() ? 0 : static_cast<int>(gewaehlt - knoepfe.begin()) + 1;
}

} // namespace quittika
