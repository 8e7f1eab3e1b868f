#include "designer/designdatei.hpp"

#include "platform/text.hpp"
#include "platform/textdatei.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

namespace quittika {
namespace {

/// The standard design as the file says it, with the folder's path.
std::string standardzeilen(const std::string& ordner) {
    return "X_Logo:63;\r\nY_Logo:14;\r\nB_Logo:140;\r\nH_Logo:30;\r\nVISIBLE_Logo:-1;\r\n"
           "X_Wasserz:2;\r\nY_Wasserz:-2;\r\nB_Wasserz:205;\r\nH_Wasserz:296;\r\nVISIBLE_Wasserz:-1;\r\n"
           "X_ADRESSEFIRMA:11;\r\nY_ADRESSEFIRMA:15;\r\nX_ADRESSEKUNDE:11;\r\nY_ADRESSEKUNDE:74;\r\n"
           "X_RN:150;\r\nY_RN:93;\r\nX_DATUM:179;\r\nY_DATUM:59;\r\nX_WERBESPRUCH:62;\r\nY_WERBESPRUCH:56;"
           "\r\n"
           "X_LISTE:12;\r\nY_LISTE:148;\r\nLIST_OPTION:0;\r\nX_BEMERKUNG:64;\r\nY_BEMERKUNG:242;\r\n"
           "X_SEITE:187;\r\nY_SEITE:268;\r\nX_BANKZEILE:14;\r\nY_BANKZEILE:273;\r\nX_KDNR:150;\r\nY_KDNR:85;"
           "\r\n"
           "X_BEMERKUNG_1:12;\r\nY_BEMERKUNG_1:120;\r\nX_LIEFERDATUM:150;\r\nY_LIEFERDATUM:100;\r\n"
           "IMG_WASSERZEICHEN:" +
           ordner + "/wasserzqk2008.bmp;\r\nIMG_LOGO:" + ordner + "/ihrlogo.bmp;\r\n";
}

struct Designstand : Pruefstand {
    Designdatei datei{verzeichnis, dialoge, form1.Hinweise};

    Design geladen(const std::string& bytes) {
        ordner.schreiben("design.dsg", bytes);
        datei.DESIGN_LADEN();
        return datei.design;
    }
    std::string geschrieben() const {
        datei.DESIGN_SPEICHERN();
        return ordner.lesen("design.dsg");
    }
    std::string hinweis() const { return form1.StatusBar1[3].Caption(); }
};

TEST(Designdatei, WasSieSagtGiltInJederReihenfolge) {
    Designstand p;
    p.datei.DESIGN_STANDARD();
    const Design standard = p.datei.design;
    EXPECT_EQ(standard.IMG_LOGO, p.ordner.ordner() + "\\ihrlogo.bmp");
    const std::string zeilen = standardzeilen(p.ordner.ordner());
    ASSERT_EQ(p.geschrieben(), zeilen);
    const Design wieder = p.geladen("UNBEKANNT:5;\r\nohne Trenner\r\n\r\n" + zeilen);
    std::string umgekehrt;
    zeilen_durchgehen(zeilen, [&umgekehrt](std::string_view zeile) {
        const std::size_t wert = zeile.find(':');
        umgekehrt =
            grossbuchstaben(zeile.substr(0, wert)) + std::string(zeile.substr(wert)) + "\n" + umgekehrt;
        return true;
    });
    EXPECT_EQ(p.geladen(umgekehrt), wieder);
    EXPECT_EQ(p.geschrieben(), zeilen);
    EXPECT_TRUE(p.dialoge.take_boxes().empty());
    EXPECT_EQ(p.hinweis(), "");
}

TEST(Designdatei, ZahlenKommenGanzHeraus) {
    const struct {
        const char* zeile;
        double Design::*feld;
        double wert;
    } faelle[] = {
        {"X_RN:63,4;", &Design::X_RN, 63},         {"x_rn:63,5;", &Design::X_RN, 64},
        {"X_RN:62,5;5;", &Design::X_RN, 62},       {"X_RN: -7", &Design::X_RN, -7},
        {"X_RN:1;\r\nX_RN:2;", &Design::X_RN, 2},  {"X_LISTE:50;", &Design::X_LISTE, 12},
        {"X_LISTE:links;", &Design::X_LISTE, 12},  {"Y_RN:5;", &Design::X_RN, 0},
        {"Y_Logo:32767;", &Design::Y_LOGO, 32767},
    };
    Designstand p;
    for (const auto& f : faelle) {
        EXPECT_DOUBLE_EQ(p.geladen(f.zeile).*f.feld, f.wert) << f.zeile;
    }
    EXPECT_EQ(p.hinweis(), "In design.dsg fehlen Zeilen: 36, zuerst X_LOGO; sie gelten als 0.");
    p.geladen(standardzeilen("") + "LIST_OPTION:5;");
    EXPECT_NE(p.hinweis().find("Das Tabellendesign 5 in design.dsg gibt es nicht"), std::string::npos);
    EXPECT_TRUE(p.geladen("VISIBLE_LOGO:7").VISIBLE_LOGO);
    EXPECT_FALSE(p.geladen("VISIBLE_LOGO:0;").VISIBLE_LOGO);
    p.datei.DESIGN_STANDARD();
    p.datei.design.X_RN = 63.4;
    EXPECT_NE(p.geschrieben().find("X_RN:63,4;\r\n"), std::string::npos);
    p.datei.DESIGN_LADEN();
    EXPECT_DOUBLE_EQ(p.datei.design.X_RN, 63);
}

TEST(Designdatei, WasNichtZuLesenIstGibtJedesMalDenStandardUndSagtEs) {
    Designstand p;
    p.datei.DESIGN_STANDARD();
    const Design standard = p.datei.design;
    for (const char* bytes : {"", "X_RN:150;\r\nY_RN:oben;", "X_RN:32768;", "X_RN:;", "LIST_OPTION:eins;",
                              "VISIBLE_LOGO:;", "FREMD:1;"}) {
        p.form1.Hinweise.leeren();
        EXPECT_EQ(p.geladen(bytes), standard) << bytes;
        EXPECT_EQ(p.dialoge.take_boxes(),
                  std::vector<std::string>{
                      "box|Quittika 2008|ok|none|Es konnte die gespeicherte Designvorlage nicht geöffnet "
                      "werden! Das ist normal, wenn Sie noch kein Design erstellt und gespeichert haben. Es "
                      "wird nun ein Standard-Design geladen.|ok"});
        EXPECT_EQ(p.hinweis(), " Problem beim öffnen der Designdatei >design.dsg<");
        EXPECT_EQ(p.ordner.lesen("design.dsg"), bytes) << "nothing is written by reading";
    }
}

TEST(Designdatei, EinWertKommtDirektAusDerDatei) {
    Designstand p;
    EXPECT_EQ(DESIGN_WERT(p.verzeichnis, "IMG_LOGO"), "ERROR");
    p.ordner.schreiben("design.dsg", "img_Logo:/a:b/\xfc.bmp;rest;\r\nIMG_LOGO:zwei;\r\nX_RN:Text");
    EXPECT_EQ(DESIGN_WERT(p.verzeichnis, "IMG_LOGO"), "/a:b/ü.bmp");
    EXPECT_EQ(DESIGN_WERT(p.verzeichnis, "X_RN"), "Text");
    EXPECT_EQ(DESIGN_WERT(p.verzeichnis, "IMG_WASSERZEICHEN"), "");
    EXPECT_TRUE(p.dialoge.take_boxes().empty());
    p.datei.DESIGN_STANDARD();
    for (const auto& [bild, geht] :
         {std::pair<const char*, bool>{"/bild;1.png", false}, {"/Ω.png", false}, {"/ä.png", true}}) {
        p.form1.Hinweise.leeren();
        p.datei.design.IMG_LOGO = p.ordner.ordner() + bild;
        p.geschrieben();
        EXPECT_EQ(DESIGN_WERT(p.verzeichnis, "IMG_LOGO") == p.datei.design.IMG_LOGO, geht) << bild;
        EXPECT_EQ(p.hinweis().empty(), geht) << bild;
    }
}

} // namespace
} // namespace quittika
