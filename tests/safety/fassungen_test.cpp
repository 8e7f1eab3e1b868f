#include "safety/belegauszug.hpp"
#include "safety/entwurf.hpp"
#include "safety/fassungsablage.hpp"
#include "safety/fassungsname.hpp"
#include "safety/fassungsvergleich.hpp"
#include "tests/pruefstand.hpp"
#include "tests/stoerung.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <set>

#include <sys/wait.h>
#include <unistd.h>

namespace quittika {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

TEST(Fassungsname, IstHinUndZurueckDerselbe) {
    const std::string name = "2026-11-23 14-32-53-007 1a2b3c4d.qk8";
    const auto teile = FASSUNGSNAME_LESEN(name);
    ASSERT_TRUE(teile);
    EXPECT_EQ(teile->zeit, (Zeitpunkt{2026, 11, 23, 14, 32, 53}));
    EXPECT_EQ(FASSUNGSNAME(*teile), name);
    for (const char* keiner : {"", "Herkunft.txt", "2026-11-23 14-32-53 1a2b3c4d.qk8",
                               "2026-13-23 14-32-53-000 1a2b3c4d.qk8", "2026-11-23 14-32-53-x00 1a2b3c4d"}) {
        EXPECT_FALSE(FASSUNGSNAME_LESEN(keiner)) << keiner;
    }
}

/// Names of three versions a day, from `tage` days ago until today.
std::vector<std::string> namen(const Zeitpunkt& heute, int tage) {
    std::vector<std::string> alle;
    for (int tag = tage; tag >= 0; --tag) {
        for (const int stunde : {8, 12, 16}) {
            Zeitpunkt zeit = zeitpunkt_aus(sekunden_aus(heute) - std::int64_t{24} * 3600 * tag);
            zeit.stunde = stunde;
            alle.push_back(FASSUNGSNAME({zeit, 0, "00000000", ".qk8"}));
        }
    }
    return alle;
}

TEST(Fassungen, DieNeuestenFuenfzigUndNeunzigTageBleiben) {
    const Zeitpunkt heute{2026, 11, 23, 18, 0, 0};
    struct Fall {
        int tage;
        std::size_t bleiben;
    };
    // 50 are those of 16 days and two of the 17th; of the days before, up to the 90th, one each.
    for (const auto& [tage, bleiben] :
         {Fall{0, 3}, {15, 48}, {16, 50}, {17, 51}, {50, 84}, {89, 123}, {400, 123}}) {
        const std::vector<std::string> alle = namen(heute, tage);
        const std::vector<std::string> gehen = ENTBEHRLICH(alle, heute);
        EXPECT_EQ(alle.size() - gehen.size(), bleiben) << tage << " days";
        for (const std::string& name : gehen) {
            EXPECT_TRUE(tage > 89 || name.find(" 16-") == std::string::npos) << name << " was the day's last";
        }
    }
}

/// The invoice with its versions and its draft.
struct Netz : Pruefstand {
    Fassungsablage ablage{verzeichnis, uhr, form1.Hinweise};
    Entwurf entwurf{form1, zustand, schreiber, nummern, verzeichnis, uhr};

    /// What the versions of a file hold, the newest first.
    std::vector<std::string> inhalte(const std::string& name) const {
        std::vector<std::string> alle;
        for (const Fassung& fassung : Fassungsablage::Fassungen(ablage.Gruppenordner(ordner.pfad(name)))) {
            alle.push_back(bytes_lesen(fassung.pfad));
        }
        return alle;
    }
    void ersetzen(const std::string& name, const std::string& bytes) const {
        datei_ersetzen(ordner.pfad(name), bytes);
    }
};

TEST(Fassungen, HaltenWasErsetztWurdeJedesEinmal) {
    Netz n;
    for (const char* inhalt : {"a", "b", "a", "c", "b"}) {
        n.ersetzen("x.qk8", inhalt);
    }
    EXPECT_THAT(n.inhalte("x.qk8"), ElementsAre("c", "a", "b"));
    n.ersetzen("Kundenliste.txt", "eins");
    DATEI_LOESCHEN(n.ordner.pfad("Kundenliste.txt"));
    EXPECT_THAT(n.inhalte("Kundenliste.txt"), ElementsAre("eins"));
    n.ersetzen("RN.txt", "1");
    n.ersetzen("RN.txt", "2");
    EXPECT_THAT(n.inhalte("RN.txt"), ElementsAre());
    // the same name in another folder is another file
    fs::create_directory(n.ordner.pfad("alt"));
    n.ersetzen("alt/x.qk8", "fremd");
    n.ersetzen("alt/x.qk8", "neu");
    EXPECT_THAT(n.inhalte("alt/x.qk8"), ElementsAre("fremd"));
    EXPECT_EQ(n.ablage.Gruppen().size(), 3U);
}

TEST(Fassungen, EineVerknuepfteWaechstNichtMit) {
    Netz n;
    n.ersetzen("Kundenliste.txt", "eins\r\n");
    {
        const Stoerung weg("rename", 2, EIO); // the first one is that of Herkunft.txt
        EXPECT_THROW(n.ersetzen("Kundenliste.txt", "zwei\r\n"), Laufzeitfehler);
    }
    ASSERT_TRUE(ZEILE_ANHAENGEN(n.ordner.pfad("Kundenliste.txt"), "drei"));
    EXPECT_THAT(n.inhalte("Kundenliste.txt"), ElementsAre("eins\r\n"));
}

constexpr const char* kAufrufe[] = {"open",      "write", "fsync", "close", "rename",
                                    "renameat2", "read",  "link",  "mkdir", "unlink"};
constexpr int kArten[] = {ENOSPC, EACCES, EIO, Stoerung::kHalb, Stoerung::kHalbDannVoll};

/// Lets each call of `tun` fail in each manner, on a new net each time; `pruefen` looks at what is left.
template <class Vorher, class Tun, class Pruefen> void stoeren(Vorher vorher, Tun tun, Pruefen pruefen) {
    int stoerungen = 0;
    for (const char* aufruf : kAufrufe) {
        for (const int art : kArten) {
            for (int beim = 1;; ++beim) {
                SCOPED_TRACE(testing::Message() << aufruf << " " << beim << ", " << art);
                Netz n;
                vorher(n);
                bool eingetreten = false;
                bool gelungen = false;
                {
                    const Stoerung stoerung(aufruf, beim, art);
                    gelungen = tun(n);
                    eingetreten = stoerung.eingetreten();
                }
                pruefen(n, gelungen);
                if (!eingetreten) {
                    break;
                }
                ++stoerungen;
            }
        }
    }
    EXPECT_GT(stoerungen, 30);
}

TEST(Fassungen, HaltenKeinSpeichernAuf) {
    stoeren(
        [](Netz& n) {
            n.zeile("1", "alt", "10");
            ASSERT_TRUE(n.speichern("x.qk8"));
            n.zeile("1", "neu", "20");
        },
        [](Netz& n) {
            n.befehle.m_speichern_kurz_Click();
            return !n.zustand.geaendert();
        },
        [](Netz& n, bool gelungen) {
            const std::string jetzt = n.ordner.lesen("x.qk8");
            const bool neu = jetzt.find(";neu;") != std::string::npos;
            EXPECT_TRUE(BELEGAUSZUG(jetzt).lesbar && jetzt.ends_with("\r\n"));
            EXPECT_TRUE(!gelungen || neu);
            const std::vector<std::string> frueher = n.inhalte("x.qk8");
            for (const std::string& fassung : frueher) {
                EXPECT_TRUE(fassung.find(";alt;") != std::string::npos && fassung.ends_with("\r\n"));
            }
            // Either the old content is among the versions, or the user was told, or it is where it was.
            const std::string gesagt = n.form1.StatusBar1[3].Caption();
            EXPECT_TRUE(!frueher.empty() || !neu || gesagt.find("Frühere Fassungen") != std::string::npos)
                << gesagt;
            EXPECT_TRUE(gelungen || !gesagt.empty());
            n.befehle.m_speichern_kurz_Click();
            EXPECT_FALSE(n.zustand.geaendert()) << "the next save does not succeed";
        });
}

TEST(Entwurf, IstGanzOderDerAlte) {
    stoeren(
        [](Netz& n) {
            n.zeile("1", "alt", "10");
            n.entwurf.Sichern();
            n.zeile("1", "neu", "20");
        },
        [](Netz& n) {
            n.entwurf.Sichern();
            return true;
        },
        [](Netz& n, bool /*gelungen*/) {
            const std::string entwurf = n.ordner.lesen("Sicherung/entwurf.qk8");
            EXPECT_TRUE(BELEGAUSZUG(entwurf).lesbar && entwurf.ends_with("\r\n"));
            EXPECT_THAT(entwurf, HasSubstr(";alt;"));
            n.entwurf.Sichern();
            EXPECT_THAT(n.ordner.lesen("Sicherung/entwurf.qk8"), HasSubstr(";neu;"));
            n.zustand.als_gespeichert_merken();
            n.entwurf.Verwerfen();
            EXPECT_FALSE(fs::exists(n.ordner.pfad("Sicherung/entwurf.qk8")));
        });
}

TEST(Entwurf, ZweiProgrammeHabenJeEinen) {
    Netz n;
    n.zeile("1", "hier", "10");
    n.entwurf.Sichern();
    const pid_t kind = fork();
    if (kind == 0) {
        Pruefstand anderes;
        Entwurf dort{anderes.form1,   anderes.zustand, anderes.schreiber,
                     anderes.nummern, n.verzeichnis,   anderes.uhr};
        anderes.zeile("1", "dort", "10");
        const bool frei = dort.Finden().has_value();
        dort.Sichern();
        _exit(frei ? 1 : 0); // dies without a word
    }
    int ende = 0;
    waitpid(kind, &ende, 0);
    EXPECT_EQ(ende, 0) << "a living program's draft was offered";
    EXPECT_THAT(n.ordner.lesen("Sicherung/entwurf.qk8"), HasSubstr(";hier;"));
    const auto fund = n.entwurf.Finden();
    ASSERT_TRUE(fund);
    EXPECT_THAT(fund->bytes, HasSubstr(";dort;"));
}

TEST(Rechnungsnummern, GibtKeineZweimalAus) {
    constexpr int kProgramme = 3;
    constexpr int kRechnungen = 40;
    const Probenordner gemeinsam;
    const Programmverzeichnis verzeichnis(gemeinsam.ordner());
    for (int i = 0; i < kProgramme; ++i) {
        if (fork() == 0) {
            Pruefstand p;
            p.einstellungen.Check_RN_automatisch.Value = 1;
            Rechnungsnummern nummern{p.form1, p.einstellungen, p.zustand, verzeichnis, p.dialoge};
            for (int n = 0; n < kRechnungen; ++n) {
                nummern.RNNUMMERZUWEISEN();
                nummern.NummerVerbrauchen();
                ZEILE_ANHAENGEN(gemeinsam.pfad("vergeben" + std::to_string(i)), p.form1.Text_RNnr.Text());
            }
            _exit(0);
        }
    }
    std::set<std::string> vergeben;
    for (int i = 0; i < kProgramme; ++i) {
        wait(nullptr);
    }
    for (int i = 0; i < kProgramme; ++i) {
        for (const std::string& nummer : zeilen_lesen(gemeinsam.pfad("vergeben" + std::to_string(i)))) {
            EXPECT_TRUE(vergeben.insert(nummer).second) << nummer << " twice";
        }
    }
    EXPECT_EQ(vergeben.size(), std::size_t{kProgramme * kRechnungen});
    EXPECT_EQ(gemeinsam.lesen("RN.txt"), std::to_string(kProgramme * kRechnungen + 1) + "\r\n");
}

TEST(Rechnungssperre, SagtWerDieRechnungHatSolangeErLebt) {
    const Probenordner o;
    const StehendeUhr uhr;
    const std::string pfad = o.schreiben("x.qk8", "qk8");
    int bereit[2];
    ASSERT_EQ(pipe(bereit), 0);
    const pid_t kind = fork();
    if (kind == 0) {
        Rechnungssperre dort(uhr);
        dort.Setzen(pfad);
        [[maybe_unused]] const auto gesagt = write(bereit[1], "x", 1);
        pause();
    }
    char zeichen = 0;
    ASSERT_EQ(read(bereit[0], &zeichen, 1), 1);
    Rechnungssperre hier(uhr);
    const auto wer = hier.WerSonst(pfad);
    ASSERT_TRUE(wer);
    EXPECT_EQ(SPERRTEXT(*wer),
              BENUTZERNAME() + " auf dem Rechner " + RECHNERNAME() + ", seit 05.03.2008 10:20:30");
    kill(kind, SIGKILL);
    waitpid(kind, nullptr, 0);
    EXPECT_FALSE(hier.WerSonst(pfad));
    hier.Setzen(pfad);
    EXPECT_FALSE(hier.WerSonst(pfad)) << "its own";
    hier.Setzen("");
    EXPECT_FALSE(fs::exists(SPERRPFAD(pfad)));
}

TEST(Fassungsvergleich, ZeigtWasWegIstUndWasNeuIst) {
    Netz frueher;
    Netz jetzt;
    for (const char* text : {"a", "b", "c", "d"}) {
        frueher.zeile("1", text, "10");
    }
    for (const char* text : {"a", "c", "e", "d"}) {
        jetzt.zeile("1", text, "10");
    }
    jetzt.zeile("2", "f", "1");
    jetzt.form1.Check_RABATT.Value = 1;
    std::string zeichen;
    for (const Vergleichszeile& zeile : FASSUNGEN_VERGLEICHEN(frueher.form1, jetzt.form1)) {
        zeichen += zeile.art == Vergleichszeile::Art::Gleich       ? '='
                   : zeile.art == Vergleichszeile::Art::NurFrueher ? '-'
                                                                   : '+';
        zeichen += zeile.leistung + ' ';
    }
    EXPECT_EQ(zeichen, "=a -b =c +e =d +f -Summe +Summe =Rabatt -Gesamtbetrag +Gesamtbetrag ");
}

} // namespace
} // namespace quittika
