#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

TEST(Vorgaben, NeueRechnungenBeginnenMitDenEinstellungen) {
    Pruefstand p;
    p.ordner.schreiben("RN.txt", "41\r\n");
    p.ordner.schreiben("alt.qk8", "qk6\r\n");
    p.einstellungen.Check_RN_automatisch.Value = 1;
    p.nummern.RNStartLesen();
    p.einstellungen.Check_mwst.Value = 1;
    p.einstellungen.Option_mwst_minus.Value = true;
    p.einstellungen.Text_Bemerkung3[1].Text = "Danke";
    p.einstellungen.Label_Menge.Caption = "Stück";
    p.werte.MWST_SATZ1 = "16";
    p.werte.DRUCKERSCHRIFT = "Courier";
    p.werte.MENGE_DEZIMAL = true;
    p.programm.Check_datum.Value = 1;
    const auto fremde_rechnung = [&p] {
        p.form1.Check_mwst.Value = 0;
        p.form1.Option_inkl_MwSt.Value = true;
        p.form1.Text_MwSt.Text = "7";
        p.form1.Text_Bemerkung3[1].Text = "-";
        p.form1.Label_Menge.Caption = "kg";
        p.form1.Text_RNnr.Text = "3";
        p.werte.RECHNUNGSSCHRIFT = "Arial";
        p.form1.Check_mengenartDECIMAL.Value = 0;
        p.form1.Check_datum.Value = 0;
        p.form1.Check_000.Value = 1;
    };
    const auto wie_eingestellt = [&p] {
        EXPECT_EQ(p.form1.Check_mwst.Value(), 1);
        EXPECT_TRUE(p.form1.Option_mwst_minus.Value());
        EXPECT_EQ(p.form1.Text_MwSt.Text(), "16,00");
        EXPECT_EQ(p.form1.Option_Satz1.Caption(), "16,00 %");
        EXPECT_EQ(p.form1.Text_Bemerkung3[1].Text(), "Danke");
        EXPECT_EQ(p.form1.Label_Menge.Caption(), "Stück");
        EXPECT_EQ(p.form1.Label_Mengex.Caption(), "Stück");
        EXPECT_EQ(p.form1.Text_RNnr.Text(), "41");
        EXPECT_EQ(p.werte.RECHNUNGSSCHRIFT, "Courier");
        EXPECT_TRUE(p.form1.Check_mengenartDECIMAL.ticked());
        EXPECT_TRUE(p.form1.Check_datum.ticked());
        EXPECT_EQ(p.form1.Text_preis.Text(), "0,00");
    };
    fremde_rechnung();
    p.befehle.m_neu_Click();
    wie_eingestellt();
    fremde_rechnung();
    EXPECT_TRUE(p.oeffnen("alt.qk8"));
    wie_eingestellt();
}

} // namespace
} // namespace quittika
