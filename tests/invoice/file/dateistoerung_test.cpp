#include "invoice/file/hindernis.hpp"
#include "platform/datei.hpp"
#include "tests/ohne_vorrechte.hpp"
#include "tests/pruefstand.hpp"
#include "tests/stoerung.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <optional>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quittika {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kAufrufe[] = {"open",   "write",     "fsync", "close",
                                    "rename", "ftruncate", "read",  "pread"};

struct Art {
    int fehler;
    const char* grund; ///< part of the message
};
constexpr Art kArten[] = {
    {ENOSPC, "voll"},      {EACCES, "schreibgeschützt"},      {EIO, "meldet einen Fehler"},
    {Stoerung::kHalb, ""}, {Stoerung::kHalbDannVoll, "voll"}, {Stoerung::kTod, ""}};

/// One operation on the file a.txt of a folder; "" for a content is no file.
struct Vorgang {
    const char* name;
    std::string alt;
    std::string neu;
    bool gesperrt; ///< the folder takes no new file
    void (*tun)(const std::string& pfad, const std::string& ausweichordner);
};

void ersetzen(const std::string& pfad, const std::string& ausweichordner) {
    datei_ersetzen(pfad, "neuer Inhalt\r\n", ausweichordner);
}
void anhaengen(const std::string& pfad, const std::string& /*ausweichordner*/) {
    datei_anhaengen(pfad, "neu\r\n");
}

const Vorgang kVorgaenge[] = {
    {"replace", "alter, längerer Inhalt\r\n", "neuer Inhalt\r\n", false, ersetzen},
    {"create", "", "neuer Inhalt\r\n", false, ersetzen},
    {"in place", "alt\r\n", "neuer Inhalt\r\n", true, ersetzen},
    {"append", "alt\r\nohne Ende", "alt\r\nohne Ende\r\nneu\r\n", false, anhaengen},
    {"begin a list", "", "neu\r\n", false, anhaengen},
};

/// A folder with the file, and one to put its content aside, for a user without rights.
class Schauplatz {
public:
    explicit Schauplatz(const Vorgang& vorgang) : vorgang_(vorgang) {
        for (const char* ordner : {"hier", "ausweich"}) {
            std::filesystem::create_directory(o_.pfad(ordner));
            chmod(o_.pfad(ordner).c_str(), 0777);
        }
        if (!vorgang.alt.empty()) {
            o_.schreiben("hier/a.txt", vorgang.alt);
            chmod(o_.pfad("hier/a.txt").c_str(), 0666);
        }
        chmod(o_.pfad("hier").c_str(), vorgang.gesperrt ? 0555 : 0777);
        niemand_.emplace(o_.ordner());
    }
    Schauplatz(const Schauplatz&) = delete;
    Schauplatz& operator=(const Schauplatz&) = delete;
    ~Schauplatz() {
        niemand_.reset();
        chmod(o_.pfad("hier").c_str(), 0777);
    }

    /// Why it failed; empty when it did not.
    std::string versuchen() const {
        try {
            vorgang_.tun(o_.pfad("hier/a.txt"), o_.pfad("ausweich"));
            return {};
        } catch (const Laufzeitfehler& f) {
            return SPEICHERHINDERNIS(f);
        }
    }
    void versuchen_und_sterben() const {
        const pid_t kind = fork();
        if (kind == 0) {
            versuchen();
            _exit(0);
        }
        waitpid(kind, nullptr, 0);
    }
    std::string pfad(const std::string& name) const { return o_.pfad(name); }
    std::string inhalt() const { return o_.lesen("hier/a.txt"); }
    std::string beiseite() const { return o_.lesen("ausweich/Sicherung 1 von a.txt"); }
    std::ptrdiff_t dateien() const {
        return std::distance(std::filesystem::directory_iterator(o_.pfad("hier")), {});
    }

private:
    const Vorgang& vorgang_;
    Probenordner o_;
    std::optional<OhneVorrechte> niemand_;
};

/// Answers false when the operation makes no such call any more.
bool stoeren(const Vorgang& v, const std::string& aufruf, int beim, const Art& art) {
    SCOPED_TRACE(testing::Message() << v.name << ": " << aufruf << " " << beim << ", " << art.fehler);
    const Schauplatz ort(v);
    const bool tod = art.fehler == Stoerung::kTod;
    std::string meldung;
    {
        const Stoerung stoerung(aufruf, beim, art.fehler);
        if (tod) {
            ort.versuchen_und_sterben();
        } else {
            meldung = ort.versuchen();
            if (!stoerung.eingetreten()) {
                return false;
            }
            EXPECT_THAT(meldung, AnyOf("", HasSubstr(art.grund)));
            EXPECT_EQ(ort.dateien(), ort.inhalt().empty() ? 0 : 1) << "nothing is left over";
        }
    }
    if (!tod && meldung.empty()) {
        EXPECT_EQ(ort.inhalt(), v.neu);
    } else if (!tod || !v.gesperrt || ort.beiseite() != v.alt) {
        EXPECT_THAT(ort.inhalt(), AnyOf(v.alt, v.neu));
    }
    if (ort.inhalt() == v.alt) {
        EXPECT_EQ(ort.versuchen(), "") << "the next try";
        EXPECT_EQ(ort.inhalt(), v.neu);
        EXPECT_EQ(ort.dateien(), 1) << "what the killed process left is gone";
    }
    return true;
}

/// All that a call can do wrong at each place where the operation makes it; returns how many there are.
int stellen(const Vorgang& vorgang, const std::string& aufruf) {
    int anzahl = 0;
    for (const Art& art : kArten) {
        if (art.fehler > 0 || art.fehler == Stoerung::kTod || aufruf == "write") {
            // A child that dies tells nothing of its calls.
            for (int beim = 1; art.fehler != Stoerung::kTod || beim <= anzahl; ++beim) {
                if (!stoeren(vorgang, aufruf, beim, art)) {
                    break;
                }
                anzahl = std::max(anzahl, beim);
            }
        }
    }
    return anzahl;
}

TEST(Dateistoerung, AlterOderNeuerInhaltEineMeldungUndDerNaechsteVersuchGelingt) {
    int gestoert = 0;
    for (const Vorgang& vorgang : kVorgaenge) {
        for (const char* aufruf : kAufrufe) {
            gestoert += stellen(vorgang, aufruf);
        }
    }
    EXPECT_GE(gestoert, 44) << "the calls are led to the test";
}

TEST(Dateistoerung, WasAmOrtNichtZuRettenIstLiegtBeiseite) {
    const Schauplatz ort(kVorgaenge[2]);
    const Stoerung stoerung("ftruncate", 1, EIO, true);
    try {
        ersetzen(ort.pfad("hier/a.txt"), ort.pfad("ausweich"));
        FAIL();
    } catch (const Dateischaden& schaden) {
        EXPECT_EQ(schaden.beiseite(), ort.pfad("ausweich/Sicherung 1 von a.txt"));
        EXPECT_EQ(ort.beiseite(), "alt\r\n");
    }
}

TEST(Dateistoerung, GescheitertesSpeichernSagtWarumUndGelingtBeimNaechstenMal) {
    for (const char* aufruf : kAufrufe) {
        for (const Art& art : kArten) {
            if (art.fehler <= 0 && (art.fehler == Stoerung::kTod || std::string(aufruf) != "write")) {
                continue;
            }
            bool gescheitert = false;
            bool eingetreten = true;
            for (int beim = 1; eingetreten && !gescheitert; ++beim) {
                SCOPED_TRACE(testing::Message() << aufruf << " " << beim << ", " << art.fehler);
                Pruefstand p;
                p.einstellungen.Check_RN_automatisch.Value = 1;
                p.nummern.RNStartLesen();
                ASSERT_TRUE(p.speichern("a.qk8"));
                const std::string alt = p.ordner.lesen("a.qk8");
                p.form1.Text_Kunde_1.Text = "Neu";
                p.zustand.aendern();
                {
                    const Stoerung stoerung(aufruf, beim, art.fehler);
                    gescheitert = !p.speichern("a.qk8");
                    eingetreten = stoerung.eingetreten();
                }
                const std::vector<std::string> gesagt = p.dialoge.take_boxes();
                if (gescheitert) {
                    EXPECT_THAT(gesagt, ElementsAre(HasSubstr("|Fehler beim speichern|")));
                    EXPECT_THAT(p.form1.StatusBar1[3].Caption(), HasSubstr(art.grund));
                    EXPECT_EQ(p.ordner.lesen("a.qk8"), alt);
                    EXPECT_TRUE(p.zustand.geaendert());
                    EXPECT_EQ(p.ordner.lesen("RN.txt"), "2\r\n") << "no number is used up";
                } else {
                    EXPECT_THAT(gesagt, testing::Each(testing::ContainsRegex("RN.txt|EINSTELLUNGEN")));
                }
                EXPECT_TRUE(p.speichern("a.qk8"));
                EXPECT_THAT(p.ordner.lesen("a.qk8"), HasSubstr("\r\nNeu\r\n"));
                EXPECT_THAT(p.dialoge.take_boxes(), ElementsAre())
                    << "no question about the file that failed";
            }
        }
    }
}

} // namespace
} // namespace quittika
