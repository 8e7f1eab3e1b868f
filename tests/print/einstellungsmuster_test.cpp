#include "print/einstellungsmuster.hpp"

#include "platform/recording.hpp"
#include "tests/einstellungsstand.hpp"
#include "tests/feste_schrift.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quittika {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// The dialog in sight, with the page beside it.
struct Musterstand : Einstellungsstand {
    FesteSchrift schrift;
    Einstellungsmuster muster{form1, einstellungen, [this] {
                                  return std::make_unique<Musterbeleg>(form1, einstellungen, programm, werte,
                                                                       verzeichnis, dialoge, uhr, schrift,
                                                                       bilder);
                              }};

    Musterstand() {
        zeile("2", "Stuhl", "50");
        speichern("Beispielrechnung.qk8");
        rechnung.RechnungLeeren();
        summen.jetztberechnen_List();
        einstellungen.Check_mwst.Value = 1;
        einstellungen.Option_mwst_plus.Value = true;
        einstellungen.Check_mit_Wasserz.Value = 0;
        einstellungen.Check_keinlogo.Value = 1;
    }

    /// Lets the time pass that a pause in typing takes. Returns how often the timer came.
    int warten() {
        int mal = 0;
        for (; einstellungen.Timer_Muster.running(); ++mal) {
            einstellungen.Timer_Muster.Tick();
        }
        return mal;
    }
    /// The page as lines: texts with font, size and colour, rules with their colour.
    static std::string seite(const PictureControl& bild) {
        std::string zeilen;
        for (const Drawing& teil : bild.page()->drawings) {
            if (const auto* t = std::get_if<drawn::Text>(&teil)) {
                zeilen += t->text + " |" + t->font.name + "|" + std::to_string(int(t->font.size)) + "|" +
                          std::to_string(t->color) + "|" + std::to_string(int(t->left)) + "\n";
            } else if (const auto* l = std::get_if<drawn::Line>(&teil)) {
                zeilen += "linie|" + std::to_string(l->color) + "\n";
            }
        }
        return zeilen;
    }
    std::string seite() const { return seite(einstellungen.Picture_Muster); }
    std::string text() const { return einstellungen.Label_Muster.Caption(); }
};

TEST(Einstellungsmuster, DieSeiteFolgtDenFeldernUndAendertNichts) {
    struct Fall {
        const char* name;
        std::function<void(frm_einstellungen&)> tun;
        const char* danach; ///< stands on the page then, and not before
    };
    const Fall faelle[] = {
        {"Firma", [](auto& e) { e.Text_firma_1.Text = "Tischlerei"; }, "Tischlerei |"},
        {"Titel", [](auto& e) { e.Text_rechnung.Text = "BELEG"; }, "BELEG "},
        {"Bemerkung", [](auto& e) { e.Text_Bemerkung1[1].Text = "Danke!"; }, "Danke! |"},
        {"Spaltenkopf", [](auto& e) { e.Label_Leistung.Caption = "Arbeit"; }, "Arbeit |"},
        {"Linienfarbe", [](auto& e) { e.Linien.Muster.BackColor = 4711; }, "linie|4711"},
        {"Groesse", [](auto& e) { e.HScroll_GROESSE_WERBUNG.Value = 17; }, "Ihr Werbespruch |Arial|17"},
        // 100 net and a quarter of it
        {"Satz", [](auto& e) { e.Text_MwSt.Text = "25"; }, "125,00"},
        {"brutto", [](auto& e) { e.Option_inkl_MwSt.Value = true; }, "Enthaltene MwSt."},
        {"Layout", [](auto& e) { e.Option6_Layout.Value = true; },
         "MUSTERFIRMA |Arial|11|0|119"}, // ends at 145
        {"Justierung", [](auto& e) { e.HScroll_druckj.Value = 5; }, "Ihr Werbespruch |Arial|10|0|17"},
    };
    for (const Fall& f : faelle) {
        Musterstand p;
        p.einstellungen.Show();
        EXPECT_EQ(p.text(), "Muster mit der Beispielrechnung");
        const std::string vorher = p.seite();
        EXPECT_THAT(vorher, AllOf(HasSubstr("Stuhl |"), HasSubstr("119,00"))) << f.name;

        f.tun(p.einstellungen);
        EXPECT_EQ(p.seite(), vorher) << f.name << ": nothing is drawn while somebody types";
        EXPECT_EQ(p.warten(), 1) << f.name;
        EXPECT_NE(p.seite(), vorher) << f.name;
        EXPECT_THAT(p.seite(), HasSubstr(f.danach)) << f.name;
        EXPECT_THAT(vorher, Not(HasSubstr(f.danach))) << f.name;
        EXPECT_EQ(p.form1.List_K.ListCount(), 0) << f.name;
        EXPECT_EQ(p.form1.Text_rechnung.Text(), vorgabe::kTitel) << f.name;
        EXPECT_EQ(p.werte.FARBE_LINIEN, 0) << f.name;
        EXPECT_EQ(p.form1.Text_MwSt.Text(), Musterstand().form1.Text_MwSt.Text()) << f.name;
    }
}

TEST(Einstellungsmuster, ZeigtDieRechnungInArbeitUndWasAnIhrNichtStimmt) {
    Musterstand p;
    p.zeile("1", "Tisch", "99");
    p.form1.Text_Bemerkung1[1].Text = "Nur in dieser Rechnung";
    p.einstellungen.Option9_Layout.Value = true;
    p.einstellungen.Show();
    EXPECT_EQ(p.text(), "Muster mit der Rechnung in Arbeit\r\nEs ist noch kein eigenes Layout gespeichert: "
                        "gezeigt wird das Standard-Design. Ohne das Bild " +
                            p.ordner.pfad("wasserzqk2008.bmp") + " gezeichnet.");
    EXPECT_THAT(p.seite(), AllOf(HasSubstr("Tisch |"), HasSubstr("Nur in dieser Rechnung |")));
    EXPECT_TRUE(p.dialoge.take_boxes().empty()) << "a sample asks nobody";

    p.einstellungen.check_uebern_f_aktuellerechnung[1].Value = 1;
    p.einstellungen.Option1_Layout.Value = true;
    p.warten();
    EXPECT_EQ(p.text(), "Muster mit der Rechnung in Arbeit");
    EXPECT_THAT(p.seite(), Not(HasSubstr("Nur in dieser Rechnung")));
    EXPECT_EQ(p.form1.Text_Bemerkung1[1].Text(), "Nur in dieser Rechnung");

    p.form1.Text_Kunde_1.Text = "Galerie Sommer";
    p.warten();
    EXPECT_THAT(p.seite(), HasSubstr("Galerie Sommer |")) << "entered in the main window beside it";
    p.form1.Command_printform.BackColor = 255;
    EXPECT_EQ(p.warten(), 0) << "a button that blinks";

    p.einstellungen.Hide();
    p.einstellungen.Text_firma_1.Text = "ungesehen";
    EXPECT_EQ(p.warten(), 0) << "nobody sees it";
    p.einstellungen.Show();
    EXPECT_THAT(p.seite(), HasSubstr("ungesehen |")) << "at once when it comes into sight again";
}

TEST(Einstellungsmuster, DieKleinenSeitenKommenEineNachDerAnderenWennManSieSieht) {
    Musterstand p;
    frm_einstellungen& e = p.einstellungen;
    e.Show();
    EXPECT_EQ(p.warten(), 0);
    EXPECT_EQ(e.Image1_Layout.page(), nullptr);
    e.SSTab1.Tab = 6;
    EXPECT_EQ(p.warten(), 8);
    EXPECT_EQ(p.seite(e.Image2_Layout), p.seite()) << "design 2 is chosen";
    e.SSTab1.Tab = 0;
    e.Text_firma_1.Text = "Tischlerei";
    EXPECT_LE(p.warten(), 2);
    EXPECT_THAT(p.seite(e.Image6_Layout), Not(HasSubstr("Tischlerei")));
    e.SSTab1.Tab = 6;
    EXPECT_EQ(p.warten(), 8);
    EXPECT_THAT(p.seite(e.Image6_Layout), HasSubstr("Tischlerei |"));
}

} // namespace
} // namespace quittika
