#include "app/befehlszeile.hpp"
#include "app/programm.hpp"
#include "platform/script/runner.hpp"
#include "tests/feste_schrift.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace quittika {
namespace {

namespace fs = std::filesystem;

TEST(Befehlszeile, NenntDieRechnungOderAntwortet) {
    const std::string hier = fs::current_path().string();
    const struct {
        std::vector<std::string> argumente;
        std::string rechnung;
        const char* antwort; ///< a part of it
        bool fehler;
    } faelle[] = {
        {{}, "", "", false},
        {{"/tmp/Müller & Söhne 1.qk8"}, "/tmp/Müller & Söhne 1.qk8", "", false},
        {{"alt/neu 2.qk8"}, hier + "/alt/neu 2.qk8", "", false},
        {{"./a.qk8"}, hier + "/a.qk8", "", false},
        {{"../a.qk8"}, hier + "/../a.qk8", "", false},
        {{"--", "-a.qk8"}, hier + "/-a.qk8", "", false},
        {{"--", "--help"}, hier + "/--help", "", false},
        {{"-platform", "offscreen", "/a.qk8"}, "/a.qk8", "", false},
        {{"/a.qk8", "-session"}, "/a.qk8", "", false},
        {{"--help"}, "", "Aufruf: quittika [RECHNUNG]", false},
        {{"/a.qk8", "--version"}, "", "Quittika 2008, Version 1.0\n", false},
        {{"--versoin"}, "", "Die Option --versoin gibt es nicht.", true},
        {{"-h"}, "", "Die Option -h gibt es nicht.", true},
        {{"/a.qk8", "/b c.qk8"}, "", "Nur eine Rechnung auf einmal: /b c.qk8 ist eine zu viel.", true},
        {{""}, "", "Der Name der Rechnung ist leer.", true},
    };
    for (const auto& f : faelle) {
        const std::string name = testing::PrintToString(f.argumente);
        const Befehlszeile zeile = BEFEHLSZEILE(f.argumente);
        EXPECT_EQ(zeile.rechnung.string(), f.rechnung) << name;
        EXPECT_EQ(zeile.antwort.empty(), *f.antwort == '\0') << name;
        EXPECT_NE(zeile.antwort.find(f.antwort), std::string::npos) << name << zeile.antwort;
        EXPECT_EQ(zeile.fehler, f.fehler) << name;
    }
}

/// What the program answers to commands after it was started with a file.
std::string gestartet_mit(const Probenordner& o, const std::string& rechnung, const std::string& befehle) {
    const auto programm = [&rechnung](Platform platform, const std::string& ordner) {
        auto p = std::make_shared<Programm>(platform, ordner);
        Form& fenster = p->hauptfenster();
        fenster.Shown = [&fenster] {
            EXPECT_EQ(dynamic_cast<Label&>(*fenster.find("Label_Pfad")).Caption(), "")
                << "the window comes first";
        };
        p->starten(rechnung);
        return p;
    };
    const FesteSchrift schrift;
    std::istringstream ein("start " + o.pfad("daten") + " 2008-03-05T10:20:30\n" + befehle);
    std::ostringstream aus;
    Runner runner({programm, schrift}, ein, aus);
    runner.run();
    return aus.str();
}

TEST(Startrechnung, WirdVorDemFertigenFensterGeoeffnetWieVonHand) {
    const Probenordner o;
    fs::create_directory(o.pfad("daten"));
    o.schreiben("daten/prgaufruf.lld", "1\r\n"); // not the first start, which has a question
    const std::string gut =
        o.schreiben("Müller & Söhne 1.qk8", "qk8\r\nRECHNUNG 17\r\n05.03.2008\r\nMüller\r\n");
    EXPECT_EQ(gestartet_mit(o, gut, "boxes\nget form1.Label_Pfad\nget form1.m_R1\nget form1.Text_rechnung\n"),
              "ok\nok\n" + gut + "\nok\n" + gut + "\nok\nRECHNUNG 17\nok\n");
    const std::string alt = o.schreiben("alt.qk6", "qk6\r\n");
    const std::string abgelehnt = gestartet_mit(o, alt, "boxes\nget form1.Label_Pfad\n");
    EXPECT_NE(abgelehnt.find(">>*.qk6<< und >>*.qk7<<"), std::string::npos) << abgelehnt;
    EXPECT_TRUE(abgelehnt.ends_with("ok\n\nok\n")) << abgelehnt;
    const std::string fehlt = gestartet_mit(o, o.pfad("fehlt.qk8"), "forms\nboxes\n");
    EXPECT_NE(fehlt.find("form1|"), std::string::npos) << fehlt;
    EXPECT_NE(fehlt.find("|Fehler beim öffnen dieser Datei.|"), std::string::npos) << fehlt;
}

} // namespace
} // namespace quittika
