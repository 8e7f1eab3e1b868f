#include "invoice/form1.hpp"

#include "platform/forms/twips.hpp"

#include <string>

namespace quittika {

namespace {

std::string nummeriert(const char* name, int n) {
    return name + std::to_string(n);
}

} // namespace

Form1::Rasterzeile::Rasterzeile(ControlArray<Frame, kSeiten>& seiten, int n)
    : Check_K(seiten, nummeriert("Check_K", n), std::string("K")),
      Text_menge(seiten, nummeriert("Text_menge", n), std::string(vorgabe::kMenge)),
      Text_leistung(seiten, nummeriert("Text_leistung", n)),
      Text_preis(seiten, nummeriert("Text_preis", n), std::string(vorgabe::kBetrag)),
      Text_gesamtp(seiten, nummeriert("Text_gesamtp", n), std::string(vorgabe::kBetrag)),
      Command_PLUS_(seiten, nummeriert("Command_PLUS_", n), std::string("+")) {}

Form1::Form1()
    : Form("form1", "Quittika 2008", {.width = twips(1360), .height = twips(860)}),
      Raster{{{Frame_seite1, 1},
              {Frame_seite1, 2},
              {Frame_seite1, 3},
              {Frame_seite1, 4},
              {Frame_seite1, 5},
              {Frame_seite1, 6},
              {Frame_seite1, 7},
              {Frame_seite1, 8},
              {Frame_seite1, 9}}} {
    Option_RECHNUNG.Value.adopt(true);
    Option_Satz1.Value.adopt(true);
    Option_anschreiben.Value.adopt(true);
    Frame_Bemerkungen[1].Visible.adopt(false);
    Combo1_mahnung.Enabled.adopt(false);
    Command_AENDERN.Enabled.adopt(false);
    m_speichern_direkt.Enabled.adopt(false);
    Text_LIEFERDATUM.Enabled.adopt(false);
    Image_hintergrund.Visible.adopt(false);
    Image_WASSERZ.Visible.adopt(false);
    Label_gesamtbetrag.Visible.adopt(false);
    for (TextBox* ergebnis :
         {&Text_gesamtp, &Text_summe, &Text_summeRabatt, &Text_summeNACHRABATT, &Text_summemwst,
          &Text_gesamtbetrag, &Text_PreisVersankosten, &Text_PreisVersankostenMwST}) {
        ergebnis->Locked.adopt(true);
    }
    for (int seite = 0; seite < kSeiten; ++seite) {
        CMD_Seite1[seite].Caption.adopt("Seite " + std::to_string(seite + 1));
        Frame_seite1[seite].Visible.adopt(seite == 0);
    }
    for (Menu* m : {&m_R1, &m_R2, &m_R3}) {
        m->Visible.adopt(false);
    }
    Option_anschreiben.ToolTipText.adopt("Das Anschreiben druckt nur das eigene Layout");
    Command_KD_Add.ToolTipText.adopt("Nimmt den Kunden dieser Rechnung in die Kundenliste auf");
    for (CommandButton* taste : {&Command_printform, &Command_jetztSpeichern}) {
        taste->BackColor.adopt(color::kLightGrey);
    }
}

ControlArray<TextBox, 2>& Form1::Text_Bemerkung(int n) {
    const std::array<ControlArray<TextBox, 2>*, 4> zeilen{&Text_Bemerkung1, &Text_Bemerkung2,
                                                          &Text_Bemerkung3, &Text_Bemerkung4};
    return *zeilen.at(static_cast<std::size_t>(n - 1));
}

std::array<ListBox*, 6> Form1::Positionslisten() {
    return {&List_K, &List_pos, &List_Menge, &List_Leistung, &List_Preis, &List_Gesamtp};
}

} // namespace quittika
