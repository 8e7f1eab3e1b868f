#include "platform/laufzeitfehler.hpp"
#include "safety/datensicherung.hpp"
#include "safety/rueckspielen.hpp"
#include "tests/pruefstand.hpp"
#include "tests/safety/zipbau.hpp"
#include "tests/stoerung.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <filesystem>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace quittika {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

const std::string kInhalt = "Datensicherung von Quittika 2008\r\nZeit: 2008-03-05T10:20:30\r\n"
                            "Rechnungen 1: /nirgendwo/rechnungen\r\nBilder 2: /nirgendwo/bilder\r\n";

/// Whoever stops the work after so many steps.
struct Anzeige : ProgressDisplay {
    void update(std::size_t getan, std::size_t ganz, std::string_view /*detail*/) override {
        ++schritte;
        EXPECT_LE(getan, ganz);
    }
    bool aborted() const override { return schritte >= abbruch; }
    int schritte = 0;
    int abbruch = 1'000'000'000;
};

void schreiben(const std::string& pfad, const std::string& bytes, std::int64_t zeit) {
    fs::create_directories(fs::path(pfad).parent_path());
    std::ofstream(pfad, std::ios::binary) << bytes;
    const timespec zeiten[2] = {{zeit, 0}, {zeit, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, pfad.c_str(), zeiten, 0), 0);
}

std::string lesen(const std::string& pfad) {
    std::ifstream datei(pfad, std::ios::binary);
    return {std::istreambuf_iterator<char>(datei), {}};
}

std::int64_t zeit_von(const std::string& pfad) {
    struct stat stand {};
    return stat(pfad.c_str(), &stand) == 0 ? stand.st_mtime : -1;
}

/// Path below a folder, content and time of all its files.
std::map<std::string, std::pair<std::string, std::int64_t>> bild_von(const std::string& ordner) {
    std::map<std::string, std::pair<std::string, std::int64_t>> bild;
    for (const auto& eintrag : fs::recursive_directory_iterator(ordner)) {
        if (eintrag.is_regular_file()) {
            const std::string pfad = eintrag.path().string();
            bild[pfad.substr(ordner.size())] = {lesen(pfad), zeit_von(pfad)};
        }
    }
    return bild;
}

/// A shop with names that are hard to keep.
struct Laden {
    Laden() {
        fs::create_directories(ordner.pfad("ziel"));
        schreiben(ordner.pfad("prog/prog_n.cfg"), "ZWEITERSTART\r\n", 1'200'000'001);
        schreiben(ordner.pfad("prog/Kundenliste.txt"), std::string("\xD6l\0\r\n", 5), 1'200'000'002);
        schreiben(ordner.pfad("prog/Sicherung/2008/a.qk8"), "", 1'200'000'003);
        schreiben(ordner.pfad("prog/eigenes logo.PNG"), std::string(300'000, 'x'), 1'200'000'004);
        for (const char* name : {"b.qk8", "B.qk8", "M\xFCller.qk8", "Müller.qk8", "50%25.qk8",
                                 "zwei\nzeilen.qk8", "tief/unten/c.pdf"}) {
            schreiben(ordner.pfad(std::string("rechnungen/") + name), name, 1'200'000'005);
        }
        schreiben(ordner.pfad("fern/wasser.bmp"), "BM", 1'200'000'007);
        // none of the shop's
        schreiben(ordner.pfad("prog/quittika"), "ELF", 0);
        schreiben(ordner.pfad("prog/fenster.cfg"), "form1;1;1", 0);
        schreiben(ordner.pfad("rechnungen/.b.qk8.sperre"), "", 0);
        schreiben(ordner.pfad("rechnungen/Quittika Datensicherung 2008-01-01.zip"), "PK", 0);
        fs::create_directory_symlink("/", ordner.pfad("rechnungen/wurzel"));
    }
    Sicherungsplan plan() const {
        return SICHERUNG_PLANEN(ordner.pfad("prog"),
                                {ordner.pfad("rechnungen"), ordner.pfad("rechnungen/tief")},
                                {ordner.pfad("fern/wasser.bmp"), ordner.pfad("prog/eigenes logo.PNG"), ""});
    }
    std::string zip() const { return ordner.pfad("ziel/s.zip"); }
    void sichern(Anzeige&& anzeige = {}) const {
        DATENSICHERUNG_SCHREIBEN(plan(), {2008, 3, 5, 10, 20, 30}, zip(), anzeige);
    }
    std::vector<std::string> im_ziel() const {
        std::vector<std::string> namen;
        for (const auto& eintrag : fs::directory_iterator(ordner.pfad("ziel"))) {
            namen.push_back(eintrag.path().filename().string());
        }
        return namen;
    }
    Probenordner ordner;
};

std::vector<Rueckspielauftrag> alles_nach(const Sicherungsinhalt& inhalt, const std::string& wurzel) {
    std::vector<Rueckspielauftrag> auftraege;
    for (const Sicherungsteil& teil : inhalt.teile()) {
        auftraege.push_back({&teil, wurzel + (teil.gruppe   ? "/prog"
                                              : teil.bilder ? "/fern"
                                                            : "/rechnungen")});
    }
    return auftraege;
}

TEST(Datensicherung, comes_back_byte_for_byte_with_names_and_times) {
    const Laden laden;
    laden.sichern();
    const Sicherungsinhalt inhalt(laden.zip());
    EXPECT_EQ(inhalt.zeit(), "2008-03-05T10:20:30");
    const std::string neu = laden.ordner.pfad("neu");
    Anzeige anzeige;
    const auto stand = ZURUECKSPIELEN(inhalt, alles_nach(inhalt, neu), false, anzeige);
    EXPECT_EQ(stand.fehler, "");
    EXPECT_EQ(stand.zurueck, 12U);
    auto erwartet = bild_von(laden.ordner.pfad("rechnungen"));
    erwartet.erase("/.b.qk8.sperre");
    erwartet.erase("/Quittika Datensicherung 2008-01-01.zip");
    EXPECT_EQ(bild_von(neu + "/rechnungen"), erwartet);
    erwartet = bild_von(laden.ordner.pfad("prog"));
    erwartet.erase("/quittika");
    erwartet.erase("/fenster.cfg");
    EXPECT_EQ(bild_von(neu + "/prog"), erwartet);
    EXPECT_EQ(bild_von(neu + "/fern"), bild_von(laden.ordner.pfad("fern")));
}

TEST(Datensicherung, newer_files_stay_unless_they_may_go) {
    const Laden laden;
    laden.sichern();
    const Sicherungsinhalt inhalt(laden.zip());
    const auto auftraege = alles_nach(inhalt, laden.ordner.ordner());
    const std::string neuer = laden.ordner.pfad("rechnungen/b.qk8");
    schreiben(neuer, "neuer", 1'200'000'006);
    schreiben(laden.ordner.pfad("rechnungen/B.qk8"), "älter", 1'200'000'004);
    schreiben(laden.ordner.pfad("prog/prog_n.cfg"), "ZWEITERSTART\r\n", 1'300'000'000); // newer, but the same
    const auto neuere = NEUERE_DATEIEN(inhalt, auftraege);
    ASSERT_EQ(neuere.size(), 1U);
    EXPECT_EQ(neuere.front().ort, neuer);
    Anzeige anzeige;
    auto stand = ZURUECKSPIELEN(inhalt, auftraege, false, anzeige);
    EXPECT_EQ(stand.zurueck, 1U);
    EXPECT_EQ(stand.behalten, 1U);
    EXPECT_EQ(lesen(neuer), "neuer");
    EXPECT_EQ(lesen(laden.ordner.pfad("rechnungen/B.qk8")), "B.qk8");
    stand = ZURUECKSPIELEN(inhalt, auftraege, true, anzeige);
    EXPECT_EQ(stand.zurueck, 1U);
    EXPECT_EQ(lesen(neuer), "b.qk8");
    EXPECT_EQ(zeit_von(neuer), 1'200'000'005);
}

bool sichert_gestoert(const Laden& laden, const char* aufruf, int beim, int art, bool& eingetreten) {
    const Stoerung stoerung(aufruf, beim, art);
    bool gelungen = true;
    try {
        laden.sichern();
    } catch (const std::runtime_error&) { // of either kind
        gelungen = false;
    }
    eingetreten = stoerung.eingetreten();
    return gelungen;
}

TEST(Datensicherung, whatever_fails_leaves_the_former_backup_and_nothing_else) {
    const Laden laden;
    for (const int bisher : {0, 1}) {
        const auto zuruecksetzen = [&] {
            fs::remove(laden.zip());
            if (bisher == 1) {
                std::ofstream(laden.zip()) << "die vorige";
            }
        };
        zuruecksetzen();
        for (const char* aufruf : {"open", "write", "pread", "fsync", "close", "rename"}) {
            for (const int art : {EIO, ENOSPC, EACCES, Stoerung::kHalbDannVoll}) {
                for (int beim = 1;; beim = beim < 20 ? beim + 1 : beim * 2) {
                    bool eingetreten = false;
                    const bool gelungen = sichert_gestoert(laden, aufruf, beim, art, eingetreten);
                    if (!eingetreten) {
                        ASSERT_TRUE(gelungen) << aufruf << beim;
                        break;
                    }
                    if (gelungen) {
                        zuruecksetzen(); // a half write that went on, say
                        continue;
                    }
                    ASSERT_LE(laden.im_ziel().size(), 1U) << aufruf << beim;
                    const std::string steht = lesen(laden.zip());
                    if (steht != (bisher == 1 ? "die vorige" : "")) {
                        ASSERT_EQ(std::string(aufruf), "fsync") << beim; // the folder's: all is written
                        ASSERT_NO_THROW(Sicherungsinhalt{laden.zip()});
                    }
                    zuruecksetzen();
                }
                zuruecksetzen();
            }
        }
    }
}

TEST(Datensicherung, cancelling_leaves_nothing_at_any_moment) {
    const Laden laden;
    Anzeige ganz;
    DATENSICHERUNG_SCHREIBEN(laden.plan(), {}, laden.zip(), ganz);
    fs::remove(laden.zip());
    ASSERT_GT(ganz.schritte, 20);
    for (int i = 1; i <= ganz.schritte; ++i) {
        Anzeige anzeige;
        anzeige.abbruch = i;
        EXPECT_THROW(DATENSICHERUNG_SCHREIBEN(laden.plan(), {}, laden.zip(), anzeige), Laufzeitfehler) << i;
        ASSERT_TRUE(laden.im_ziel().empty()) << i;
    }
}

TEST(Datensicherung, a_file_that_cannot_be_restored_stays_and_says_so) {
    const Laden laden;
    laden.sichern();
    const Sicherungsinhalt inhalt(laden.zip());
    const auto auftraege = alles_nach(inhalt, laden.ordner.ordner());
    const std::string kunden = laden.ordner.pfad("prog/Kundenliste.txt");
    for (const char* aufruf : {"write", "fsync", "close", "rename"}) {
        schreiben(kunden, "anders", 1);
        Anzeige anzeige;
        const Stoerung stoerung(aufruf, 1, ENOSPC, true);
        const auto stand = ZURUECKSPIELEN(inhalt, auftraege, true, anzeige);
        EXPECT_THAT(stand.fehler, HasSubstr("Kundenliste.txt<< ging es nicht weiter: Datenträger voll"))
            << aufruf;
        EXPECT_EQ(lesen(kunden), "anders") << aufruf;
    }
}

TEST(Datensicherung, a_damaged_backup_restores_nothing_wrong) {
    const Laden laden;
    laden.sichern();
    const std::string heil = lesen(laden.zip());
    for (std::size_t i = 0; i < heil.size(); i += 37) {
        std::string krank = heil;
        krank[i] = static_cast<char>(krank[i] ^ 0x55);
        std::ofstream(laden.zip(), std::ios::binary) << krank;
        fs::remove_all(laden.ordner.pfad("neu"));
        try {
            const Sicherungsinhalt inhalt(laden.zip());
            Anzeige anzeige;
            ZURUECKSPIELEN(inhalt, alles_nach(inhalt, laden.ordner.pfad("neu")), true, anzeige);
        } catch (const Sicherungsfehler&) {
            continue;
        }
        if (!fs::exists(laden.ordner.pfad("neu/rechnungen"))) {
            continue;
        }
        for (const auto& [name, was] : bild_von(laden.ordner.pfad("neu/rechnungen"))) {
            const std::string urbild = laden.ordner.pfad("rechnungen" + name);
            EXPECT_TRUE(!fs::exists(urbild) || lesen(urbild) == was.first) << i << name;
        }
    }
}

struct Feindlich {
    const char* fall;
    std::string bytes;
    const char* grund;
};

Zipbau mit_inhalt() {
    return Zipbau().mit({kInhaltsdatei, kInhalt});
}

std::string bombe(std::uint32_t behauptet) {
    return mit_inhalt().mit({"Rechnungen 1/b.qk8", std::string(64, 'x'), 0100644, behauptet, 8}).bytes();
}

std::string ueberlagert() {
    Zipbau bau = Zipbau().mit({kInhaltsdatei, kInhalt + std::string(2'000, ' ')});
    for (int i = 0; i < 3'000; ++i) {
        bau.mit({"Rechnungen 1/" + std::to_string(i) + ".qk8", {}, 0100644, 0, 0, true});
    }
    return bau.bytes();
}

const std::string kHinaus = "der aus ihren Ordnern hinausführt";

TEST(Datensicherung, what_nobody_should_unpack_is_refused) {
    const auto eine = [](const std::string& name, std::uint32_t art = 0100644) {
        return mit_inhalt().mit({name, "x", art}).bytes();
    };
    const auto zwei = [](const std::string& a, const std::string& b) {
        return mit_inhalt().mit({a, "x"}).mit({b, "y"}).bytes();
    };
    const char* keine = "keine Datensicherung von Quittika oder beschädigt";
    const char* fremd = "die in keine Datensicherung gehört";
    const char* doppelt = "einen Namen zweimal";
    const char* gross = "übermäßig groß";
    const std::vector<Feindlich> faelle{
        {"absolute", eine("/etc/passwd"), kHinaus.c_str()},
        {"drive", eine("C:/x.qk8"), kHinaus.c_str()},
        {"dots", eine("Programm/../../x.txt"), kHinaus.c_str()},
        {"dots in numbers", eine("Rechnungen 1/%2E%2E/x.qk8"), kHinaus.c_str()},
        {"slash in numbers", eine("Rechnungen 1/a%2F..%2F..%2Fx"), kHinaus.c_str()},
        {"nul in numbers", eine("Rechnungen 1/a%00"), kHinaus.c_str()},
        {"backslash", eine("Programm\\..\\..\\x.txt"), kHinaus.c_str()},
        {"hidden", eine("Rechnungen 1/.bashrc"), kHinaus.c_str()},
        {"empty part", eine("Rechnungen 1//x.qk8"), kHinaus.c_str()},
        {"control", eine("Rechnungen 1/a\nb"), kHinaus.c_str()},
        {"link", eine("Programm/RN.txt", 0120777), "einen Verweis"},
        {"device", eine("Programm/RN.txt", 0020666), "einen Verweis"},
        {"program", eine("Programm/quittika"), fremd},
        {"folder of the program", eine("Programm/fremd/x.txt"), fremd},
        {"folder that is not named", eine("Rechnungen 7/x.qk8"), fremd},
        {"no picture", eine("Bilder 2/x.desktop"), fremd},
        {"outside of all", eine("x.qk8"), fremd},
        {"twice", zwei("Rechnungen 1/a.qk8", "Rechnungen 1/a.qk8"), doppelt},
        {"twice but for the case", zwei("Rechnungen 1/ä.qk8", "Rechnungen 1/Ä.QK8"), doppelt},
        {"twice in numbers", zwei("Rechnungen 1/a.qk8", "Rechnungen 1/%61.qk8"), doppelt},
        {"file and folder", zwei("Rechnungen 1/a", "Rechnungen 1/a/b.qk8"), doppelt},
        {"large", bombe(0x7FFFFFFF), gross},
        {"much packed", bombe(50U << 20U), gross},
        {"one content for all", ueberlagert(), keine},
        {"promises", mit_inhalt().verspricht(60'000).bytes(), keine},
        {"no list of folders", Zipbau().mit({"Programm/RN.txt", "1"}).bytes(), keine},
        {"folder that climbs",
         Zipbau()
             .mit({kInhaltsdatei,
                   "Datensicherung von Quittika 2008\r\nZeit: x\r\nRechnungen 1: /a/../etc\r\n"})
             .bytes(),
         keine},
        {"folder of nowhere",
         Zipbau()
             .mit({kInhaltsdatei, "Datensicherung von Quittika 2008\r\nZeit: x\r\nRechnungen 1: etc\r\n"})
             .bytes(),
         keine},
        {"many ends", mit_inhalt().mit({"Rechnungen 1/a", "PK\5\6PK\5\6PK\5\6PK\5\6"}).bytes(), keine},
        {"no archive", "Guten Tag", keine},
        {"nothing", "", keine},
    };
    const Probenordner ordner;
    for (const Feindlich& fall : faelle) {
        const std::string pfad = ordner.schreiben("x.zip", fall.bytes);
        const auto anfang = std::chrono::steady_clock::now();
        try {
            const Sicherungsinhalt inhalt(pfad);
            ADD_FAILURE() << fall.fall << " is taken";
        } catch (const Sicherungsfehler& fehler) {
            EXPECT_THAT(fehler.what(), HasSubstr(fall.grund)) << fall.fall;
        }
        EXPECT_LT(std::chrono::steady_clock::now() - anfang, std::chrono::seconds(1)) << fall.fall;
    }
    rusage verbrauch{};
    getrusage(RUSAGE_SELF, &verbrauch);
    EXPECT_LT(verbrauch.ru_maxrss, 100 * 1024) << "kB";
    EXPECT_NO_THROW(Sicherungsinhalt(ordner.schreiben("x.zip", eine("Rechnungen 1/a.qk8"))));
}

/// Packed content that is longer than it claims: nothing of it takes a file's place.
TEST(Datensicherung, content_that_outgrows_its_size_ends_there) {
    const Probenordner ordner;
    const std::string pfad = ordner.schreiben(
        "x.zip", mit_inhalt().mit({"Rechnungen 1/a.qk8", std::string(5'000, 'x'), 0100644, 10}).bytes());
    try {
        const Sicherungsinhalt inhalt(pfad);
        Anzeige anzeige;
        const auto stand =
            ZURUECKSPIELEN(inhalt, {{&inhalt.teile().front(), ordner.pfad("neu")}}, true, anzeige);
        EXPECT_THAT(stand.fehler, HasSubstr("beschädigt"));
    } catch (const Sicherungsfehler&) {
        // as good
    }
    EXPECT_FALSE(fs::exists(ordner.pfad("neu/a.qk8")));
}

} // namespace
} // namespace quittika
