#include "invoice/notiztext.hpp"
#include "tests/fehlernummer.hpp"
#include "tests/pruefstand.hpp"
#include "tests/vorlagenmodell.hpp"
#include "tools/helferlein.hpp"
#include "tools/updatecheck.hpp"

#include <gtest/gtest.h>

#include <random>

namespace quittika {
namespace {

TEST(Helferlein, TeiltAnAllenZeilenendenUndReinigt) {
    struct Fall {
        const char* text;
        std::array<std::string, kHelferzeilen> zeilen;
    };
    const Fall faelle[] = {
        {"", {"", "", "", ""}},
        {"eins", {"eins", "", "", ""}},
        {"eins\r\n", {"eins", "", "", ""}},
        {"eins\rzwei\ndrei\r\nvier", {"eins", "zwei", "drei", "vier"}},
        {"1\r\n2\r\n3\r\n4\r\n5\r\n6", {"1", "2", "3", "4"}},
        {"\n\r\r\nvier", {"", "", "", "vier"}},
        {"\tEva\x01\x1F M\x7F", {"Eva M\x7F", "", "", ""}},
        {"Größe 4 €\nÖl", {"Größe 4 €", "Öl", "", ""}},
    };
    for (const Fall& fall : faelle) {
        EXPECT_EQ(TEXT_AUFTEILEN(fall.text), fall.zeilen) << fall.text;
    }
}

TEST(Notiztext, JedesZeilenendeWirdZurMarkeUndDieMarkeZumZeilenende) {
    EXPECT_EQ(NOTIZ_ABLEGEN("a\r\nb\nc\rd\n\n"), "a#$§$#b#$§$#c#$§$#d#$§$##$§$#");
    EXPECT_EQ(NOTIZ_LESBAR("#$§$#a#$§$#$§$#"), "\r\na\r\n$§$#");
    EXPECT_EQ(NOTIZ_LESBAR(NOTIZ_ABLEGEN("a#$§$#b")), "a\r\nb");
}

TEST(Updatecheck, ZaehltInSechzehnBit) {
    struct Fall {
        const char* zeile;
        int zaehler;
        int danach;
    };
    const Fall faelle[] = {
        {"FEHLER", 0, 1},
        {"", 0, 1},
        {"0", 0, 1},
        {" 30 ", 30, 31},
        {"31999", 31999, 32000},
        {"32000", 32000, 1001},
        {"1e9", 32767, 1001},
        {"-1e9", -32768, -32767},
    };
    for (const Fall& fall : faelle) {
        EXPECT_EQ(STARTZAEHLER(fall.zeile), fall.zaehler) << fall.zeile;
        EXPECT_EQ(NAECHSTER_START(fall.zaehler), fall.danach) << fall.zeile;
    }
    EXPECT_EQ(VERSIONSNUMMER(2, 3, 45), 2345);
    EXPECT_EQ(VERSIONSNUMMER(32, 7, 67), 32767);
    EXPECT_EQ(fehlernummer([] { VERSIONSNUMMER(32, 7, 68); }), fehler::kUeberlauf);
}

TEST(Updatecheck, OhneBrowserSagtEsWoManSelbstNachsieht) {
    struct KeinBrowser : Shell {
        void open(const std::string& dokument) override {
            throw Laufzeitfehler(fehler::kDateiFehlt, dokument);
        }
        void mail(const MailMessage&) override {}
    };
    Pruefstand p;
    KeinBrowser shell;
    Updatecheck updatecheck(p.form1, p.verzeichnis, p.dialoge, shell, p.uhr);
    p.dialoge.queue(Answer::Yes);
    updatecheck.m_updatesuchen_Click();
    const std::vector<std::string> boxen = p.dialoge.take_boxes();
    ASSERT_EQ(boxen.size(), 2U);
    EXPECT_EQ(boxen[1], "box|Updatecheck: Fehler beim Update suchen!|ok|exclamation|Es gab ein Problem beim "
                        "Suchen nach einer neuen Version. Bitte schauen Sie selbst unter "
                        "https://www.quittika.example/ nach.|ok");
    EXPECT_EQ(p.form1.StatusBar1[2].Caption(), "Es gab ein Problem beim Suchen nach einer neuen Version.");
}

/// Files of chance, of lines that are nearly right, read by the program and by the model.
TEST(Vorlagendatei, LiestUndSchreibtWieDasModell) {
    const std::string stuecke[] = {"Text1(1):",
                                   "TEXT2(2):",
                                   "text3(18):",
                                   "Text4(19):",
                                   "Text1(0):",
                                   "Text1(01):",
                                   "Text",
                                   ":",
                                   ";",
                                   "\r\n",
                                   "\n",
                                   "\r",
                                   " ",
                                   "a",
                                   "Gr\xFC\xDF"
                                   "e",
                                   "\x80",
                                   "(1)",
                                   std::string(1, '\0')};
    std::mt19937 zufall(1); // NOLINT(cert-msc51-cpp): the same files each time
    for (int lauf = 0; lauf < 1000; ++lauf) {
        std::string bytes;
        for (unsigned n = zufall() % 40; n > 0; --n) {
            bytes += stuecke[zufall() % std::size(stuecke)];
        }
        ASSERT_EQ(Vorlagenbefund(bytes), "") << ::testing::PrintToString(bytes);
    }
}

} // namespace
} // namespace quittika
