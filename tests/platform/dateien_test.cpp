#include "platform/datei.hpp"
#include "platform/dateiname.hpp"
#include "platform/dateisuche.hpp"
#include "platform/laufwerke.hpp"
#include "platform/text.hpp"
#include "tests/ohne_vorrechte.hpp"
#include "tests/pruefstand.hpp"
#include "tests/stoerung.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include <sys/stat.h>

namespace quittika {
namespace {

using testing::ElementsAre;

/// "53 /pfad" of the error, "" without one.
template <class Tun> std::string fehler_aus(Tun tun) {
    try {
        tun();
    } catch (const Laufzeitfehler& f) {
        return std::to_string(f.nummer()) + " " + f.ort();
    }
    return {};
}

TEST(Dateien, Kopieren) {
    constexpr auto kErsetzen = Kopierziel::Ersetzen;
    constexpr auto kNeu = Kopierziel::Neu;
    const struct {
        const char* von;
        const char* nach;
        Kopierziel ziel;
        const char* fehler; ///< number and path inside the folder
    } faelle[] = {
        {"quelle", "frei", kErsetzen, ""},
        {"quelle", "frei", kNeu, ""},
        {"quelle", "alt", kErsetzen, ""},
        {"quelle", "alt", kNeu, "58 alt"},
        {"quelle", "ins_leere", kNeu, ""},
        {"fehlt", "alt", kNeu, "53 fehlt"},
        {"quelle", "kein/ordner", kNeu, "76 kein/"},
        {"ordner", "frei", kNeu, "75 ordner"},
        {"quelle", "ordner", kErsetzen, "75 ordner"},
        {"quelle", "ordner", kNeu, "75 ordner"},
        {"quelle", "quelle", kErsetzen, "70 quelle"},
        {"verweis", "quelle", kNeu, "70 quelle"},
    };
    const std::string bytes("a\0\x81\r\n", 5);
    for (const auto& f : faelle) {
        SCOPED_TRACE(std::string(f.von) + " " + f.nach);
        const Probenordner o;
        o.schreiben("quelle", bytes);
        o.schreiben("alt", "alt");
        std::filesystem::create_directory(o.pfad("ordner"));
        std::filesystem::create_symlink("quelle", o.pfad("verweis"));
        std::filesystem::create_symlink("frei", o.pfad("ins_leere"));
        std::string fehler = fehler_aus([&] { DATEI_KOPIEREN(o.pfad(f.von), o.pfad(f.nach), f.ziel); });
        EXPECT_EQ(ersetzen(fehler, o.ordner() + "/", ""), f.fehler);
        EXPECT_EQ(o.lesen("quelle"), bytes);
        EXPECT_EQ(o.lesen(fehler.empty() ? f.nach : "alt"), fehler.empty() ? bytes : "alt");
    }
}

TEST(Dateien, KopieWirdGanzOderGarNicht) {
    const Probenordner o;
    o.schreiben("quelle", "neuer");
    o.schreiben("alt", "alt");
    for (const char* nach : {"alt", "frei"}) {
        const Stoerung voll("write", 1, Stoerung::kHalbDannVoll);
        EXPECT_EQ(fehler_aus([&] { DATEI_KOPIEREN(o.pfad("quelle"), o.pfad(nach)); }), "61 " + o.pfad(nach));
    }
    EXPECT_EQ(o.lesen("alt"), "alt");
    EXPECT_THAT(DATEIEN_SUCHEN(o.ordner(), "*"), ElementsAre("alt", "quelle"));
    EXPECT_THAT(DATEIEN_SUCHEN(o.ordner(), ".*"), ElementsAre()) << "nothing is left behind";
    const Stoerung kennt_kein_freies_ziel("renameat2", 1, EINVAL);
    DATEI_KOPIEREN(o.pfad("quelle"), o.pfad("frei"), Kopierziel::Neu);
    EXPECT_TRUE(kennt_kein_freies_ziel.eingetreten());
    EXPECT_EQ(o.lesen("frei"), "neuer");
}

TEST(Dateien, Loeschen) {
    const Probenordner o;
    o.schreiben("da", "x");
    o.schreiben("geschuetzt", "x");
    std::filesystem::create_directory(o.pfad("ordner"));
    std::filesystem::create_symlink("ordner", o.pfad("verweis"));
    DATEI_LOESCHEN(o.pfad("verweis"));
    DATEI_LOESCHEN(o.ordner() + "\\da");
    EXPECT_EQ(fehler_aus([&] { DATEI_LOESCHEN(o.pfad("da")); }), "53 " + o.pfad("da"));
    EXPECT_EQ(fehler_aus([&] { DATEI_LOESCHEN(o.pfad("ordner")); }), "75 " + o.pfad("ordner"));
    EXPECT_EQ(fehler_aus([&] { DATEI_LOESCHEN(o.pfad("kein/da")); }), "76 " + o.pfad("kein/da"));
    {
        const OhneVorrechte niemand(o.ordner(), o.pfad("geschuetzt"));
        chmod(o.pfad("geschuetzt").c_str(), 0400);
        EXPECT_EQ(fehler_aus([&] { DATEI_LOESCHEN(o.pfad("geschuetzt")); }), "70 " + o.pfad("geschuetzt"));
        chmod(o.pfad("geschuetzt").c_str(), 0600);
        chmod(o.ordner().c_str(), 0500);
        EXPECT_EQ(fehler_aus([&] { DATEI_LOESCHEN(o.pfad("geschuetzt")); }), "70 " + o.pfad(""));
        chmod(o.ordner().c_str(), 0700);
    }
    EXPECT_THAT(DATEIEN_SUCHEN(o.ordner(), "*"), ElementsAre("geschuetzt"));
}

TEST(Dateien, SuchenNachMuster) {
    const Probenordner o;
    for (const char* name :
         {"b.qk8", "A.QK8", "a.qk8", "Äpfel.qk8", "äpfel2.qk8", "z.qk8", "kein.UTF8\xFF.qk8", "a.qk8.bak",
          "aqk8", ".versteckt.qk8", "10.qk8", "9.qk8", "*.txt"}) {
        o.schreiben(name, "x");
    }
    std::filesystem::create_directory(o.pfad("ordner.qk8"));
    std::filesystem::create_symlink("ordner.qk8", o.pfad("verweis.qk8"));
    std::filesystem::create_symlink("nirgends", o.pfad("leer.qk8"));
    EXPECT_THAT(DATEIEN_SUCHEN(o.ordner(), "*.qk8"),
                ElementsAre("10.qk8", "9.qk8", "A.QK8", "a.qk8", "b.qk8", "kein.UTF8\xFF.qk8", "leer.qk8",
                            "z.qk8", "Äpfel.qk8", "äpfel2.qk8"));
    EXPECT_THAT(DATEIEN_SUCHEN(o.ordner() + "/", "?PFEL?.qk*"), ElementsAre("äpfel2.qk8"));
    EXPECT_THAT(DATEIEN_SUCHEN(o.ordner(), "*a*.*a*"), ElementsAre("a.qk8.bak"));
    EXPECT_THAT(DATEIEN_SUCHEN(o.ordner(), "*8?.qk8"), ElementsAre("kein.UTF8\xFF.qk8"));
    EXPECT_THAT(DATEIEN_SUCHEN(o.ordner(), "aqk8"), ElementsAre("aqk8"));
    EXPECT_EQ(DATEIEN_SUCHEN(o.ordner(), "*.*").size(), 13U);
    EXPECT_THAT(DATEIEN_SUCHEN(o.ordner(), ".*"), ElementsAre(".versteckt.qk8"));
    EXPECT_EQ(fehler_aus([&] { DATEIEN_SUCHEN(o.pfad("fehlt"), "*"); }), "76 " + o.pfad("fehlt/"));
    EXPECT_EQ(fehler_aus([&] { DATEIEN_SUCHEN(o.pfad("b.qk8"), "*"); }), "76 " + o.pfad("b.qk8/"));
    EXPECT_EQ(fehler_aus([&] { DATEIEN_SUCHEN("", "*"); }), "76 /");
}

TEST(Dateien, VorgeschlageneNamen) {
    const auto lang = [](std::size_t anzahl) { return ersetzen(std::string(anzahl, 'x'), "x", "ä"); };
    const std::pair<std::string, std::string> faelle[] = {
        {"", ""},
        {"RECHNUNG 2008/05\\7: \"neu\"?.pdf", "RECHNUNG 2008-05-7 neu.pdf"},
        {std::string("a\0b\tc\r\nd\x7F.txt", 13), "a b c d.txt"},
        {"a\xC2\x85z<>", "a z"},
        {"../..x.pdf", "-..x.pdf"},
        {"..RE 5.pdf", "RE 5.pdf"},
        {".pdf", "Unbenannt.pdf"},
        {"1.200 EUR: Müller", "1.200 EUR Müller"},
        {"a.b*c", "a.b c"},
        {"...", "Unbenannt"},
        {lang(200) + "z.pdf", lang(125) + ".pdf"}, // 251 bytes have room for 125 letters of two bytes
        {"Nr. " + lang(200), "Nr. " + lang(125)},
        {lang(127) + "z", lang(127) + "z"},
    };
    for (const auto& [vorschlag, name] : faelle) {
        EXPECT_EQ(DATEINAME_BEREINIGEN(vorschlag), name) << vorschlag;
    }
}

TEST(Dateien, LaufwerkeSindWurzelHeimUndMedien) {
    const Probenordner o;
    o.schreiben("mounts", "/dev/sda1 / ext4 rw 0 0\n"
                          "/dev/sdb1 /run/media/anna/STICK vfat rw 0 0\n"
                          "/dev/sdc1 /media/anna/Meine\\040Bilder vfat rw 0 0\n"
                          "/dev/sdc1 /media/anna/Meine\\040Bilder vfat ro 0 0\n"
                          "tmpfs /mediathek tmpfs rw 0 0\n"
                          "server:/x /mnt nfs rw 0 0\n");
    const std::string tabelle = o.pfad("mounts");
    const char* heim = getenv("HOME");
    const std::string gemerkt = heim == nullptr ? "/" : heim;
    setenv("HOME", "/home/anna/", 1);
    std::string gesehen;
    for (const Laufwerk& laufwerk : LAUFWERKE(tabelle)) {
        gesehen += laufwerk.pfad + ": " + laufwerk.name + "\n";
    }
    setenv("HOME", gemerkt.c_str(), 1);
    EXPECT_EQ(gesehen,
              "/: Dateisystem\n/home/anna: Persönlicher Ordner\n/media/anna/Meine Bilder: Meine Bilder\n"
              "/mnt: mnt\n/run/media/anna/STICK: STICK\n");
}

} // namespace
} // namespace quittika
