#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace quittika {
namespace {

namespace fs = std::filesystem;
using Zeilen = std::vector<std::string>;

/// The script runner as a process of its own.
class Laeufer {
public:
    Laeufer() {
        std::array<int, 2> hin{};
        std::array<int, 2> her{};
        if (pipe(hin.data()) != 0 || pipe(her.data()) != 0) {
            throw std::runtime_error("pipe");
        }
        kind_ = fork();
        if (kind_ == 0) {
            dup2(hin[0], STDIN_FILENO);
            dup2(her[1], STDOUT_FILENO);
            for (const int ende : {hin[0], hin[1], her[0], her[1]}) {
                close(ende);
            }
            execl(QUITTIKA_SKRIPT, QUITTIKA_SKRIPT, nullptr);
            _exit(127);
        }
        close(hin[0]);
        close(her[1]);
        ein_ = fdopen(hin[1], "w");
        aus_ = fdopen(her[0], "r");
    }
    Laeufer(const Laeufer&) = delete;
    Laeufer& operator=(const Laeufer&) = delete;
    ~Laeufer() {
        fclose(ein_);
        fclose(aus_);
        waitpid(kind_, nullptr, 0);
    }

    void toeten() const { kill(kind_, SIGKILL); }
    /// The lines answered; nothing when the process is gone.
    std::optional<Zeilen> tun(const std::string& befehl) {
        fputs((befehl + "\n").c_str(), ein_);
        fflush(ein_);
        Zeilen antwort;
        std::array<char, 4096> puffer{};
        std::string zeile;
        while (fgets(puffer.data(), static_cast<int>(puffer.size()), aus_) != nullptr) {
            zeile += puffer.data();
            if (zeile.back() != '\n') {
                continue;
            }
            zeile.pop_back();
            if (zeile == "ok") {
                return antwort;
            }
            if (zeile.rfind("error:", 0) == 0) {
                ADD_FAILURE() << befehl << ": " << zeile;
                return antwort;
            }
            antwort.push_back(zeile);
            zeile.clear();
        }
        return std::nullopt;
    }

private:
    pid_t kind_;
    FILE* ein_;
    FILE* aus_;
};

/// What the invoice in hand was from a time on.
struct Stand {
    std::int64_t ab; ///< ms of the virtual clock
    Zeilen zeilen;
    bool geaendert;
};

Zeilen zeilen_aus(const std::string& bytes) {
    Zeilen zeilen;
    std::istringstream strom(bytes);
    for (std::string zeile; std::getline(strom, zeile);) {
        zeilen.push_back(zeile.substr(0, zeile.find('\r')));
    }
    return zeilen;
}

/// A day of work that is cut short, and what must be left of it.
class Arbeitstag {
public:
    explicit Arbeitstag(unsigned saat) : zufall_(saat) {}

    /// Goes on from what is there until the kill.
    void Arbeiten(int lauf) {
        Laeufer laeufer;
        laeufer_ = &laeufer;
        Beginnen(lauf);
        std::thread ende([&laeufer, ms = wuerfel(2, 250)] {
            std::this_thread::sleep_for(std::chrono::milliseconds(ms));
            laeufer.toeten();
        });
        while (Schritt()) {
        }
        ende.join();
        laeufer_ = nullptr;
        DateienPruefen();
    }

private:
    int wuerfel(int von, int bis) { return std::uniform_int_distribution<>(von, bis)(zufall_); }
    bool tun(const std::string& befehl) { return laeufer_->tun(befehl).has_value(); }
    Zeilen lesen(const std::string& befehl) { return laeufer_->tun(befehl).value_or(Zeilen()); }

    void Beginnen(int lauf) {
        const bool entwurf = fs::exists(ordner_.pfad("Sicherung/entwurf.qk8"));
        if (entwurf) {
            ASSERT_TRUE(tun("answer yes"));
        }
        std::ostringstream tag;
        tag << "2008-03-" << 10 + lauf % 20 << "T10:00:00";
        ASSERT_TRUE(tun("start " + ordner_.ordner() + " " + tag.str()));
        const bool gefragt = !lesen("boxes").empty();
        const Zeilen da = lesen("items form1.List_Leistung");
        WiederhergestelltesPruefen(gefragt, da);
        if (entwurf && !gefragt) { // it was saved already: nobody has taken the answer yet
            ASSERT_TRUE(tun("set form1.Text_Kunde_1 K") && tun("click form1.m_neu") && tun("answer no") &&
                        tun("click form1.m_neu"));
        }
        staende_ = {{0, da, gefragt}};
        zeit_ = 0;
        pfad_.clear();
        if (lauf == 0) {
            tun("click form1.m_Rechnungsdaten");
            tun("click frm_einstellungen.Check_RN_automatisch");
            tun("click frm_einstellungen.Command_uebernehmen2");
        }
    }

    void WiederhergestelltesPruefen(bool gefragt, const Zeilen& da) {
        if (staende_.empty()) {
            return;
        }
        constexpr std::int64_t kHoechstalter = 20'000;
        bool sauber = false;
        bool bekannt = false;
        for (std::size_t i = 0; i < staende_.size(); ++i) {
            const bool vorbei = i + 1 < staende_.size() && staende_[i + 1].ab < zeit_ - kHoechstalter;
            if (!vorbei) {
                sauber = sauber || !staende_[i].geaendert;
                bekannt = bekannt || staende_[i].zeilen == da;
            }
        }
        if (gefragt) {
            EXPECT_TRUE(bekannt) << "a draft of " << da.size() << " rows is older than 20 s";
        } else {
            EXPECT_TRUE(sauber) << "an unsaved invoice of " << staende_.back().zeilen.size()
                                << " rows is lost";
        }
    }

    const Stand& jetzt() const { return staende_.back(); }
    void wird(Zeilen zeilen, bool geaendert) { staende_.push_back({zeit_, std::move(zeilen), geaendert}); }

    bool Schritt() {
        switch (wuerfel(0, 9)) {
        case 0:
            return Speichern();
        case 1:
            return !pfad_.empty() && jetzt().geaendert ? Nachspeichern() : Warten();
        case 2:
            return jetzt().zeilen.size() > 5 ? Neu() : Zeile();
        case 3:
            return Kunde();
        case 4:
            return KundeLoeschen();
        case 5:
            return Einstellung();
        case 6:
            return Warten();
        default:
            return Zeile();
        }
    }

    bool Zeile() {
        const std::string name = "L" + std::to_string(++nummer_);
        Zeilen zeilen = jetzt().zeilen;
        zeilen.push_back(name);
        if (!tun("set form1.Text_Menge 1") || !tun("set form1.Text_leistung " + name) ||
            !tun("set form1.Text_preis 2")) {
            return false;
        }
        wird(zeilen, true);
        return tun("click form1.Cmd_Add_To_list");
    }
    bool Warten() {
        const int ms = wuerfel(100, 9000);
        const bool weiter = tun("wait " + std::to_string(ms));
        zeit_ += weiter ? ms : 0;
        return weiter;
    }
    /// An invoice that was opened again as an unsaved one goes where its number is already.
    bool Speichern() {
        const Zeilen nummer = lesen("get form1.Text_RNnr");
        if (nummer.empty()) {
            return false;
        }
        const auto da = pfade_.find(nummer.front());
        pfad_ = !pfad_.empty()       ? pfad_
                : da != pfade_.end() ? da->second
                                     : ordner_.pfad("r" + std::to_string(++nummer_) + ".qk8");
        erlaubt_[pfad_].insert(jetzt().zeilen);
        if (!fs::exists(pfad_)) {
            kann_fehlen_.insert(pfad_);
        }
        wird(jetzt().zeilen, false);
        const bool weiter = tun("file " + pfad_) && tun("click form1.m_speichern");
        if (weiter) {
            kann_fehlen_.erase(pfad_);
            erlaubt_[pfad_] = {jetzt().zeilen};
            const Zeilen vergeben = lesen("get form1.Text_RNnr");
            if (vergeben.empty()) {
                return false;
            }
            pfade_[vergeben.front()] = pfad_;
        }
        return weiter;
    }
    bool Nachspeichern() {
        erlaubt_[pfad_].insert(jetzt().zeilen);
        wird(jetzt().zeilen, false);
        const bool weiter = tun("click form1.m_speichern_kurz");
        if (weiter) {
            erlaubt_[pfad_] = {jetzt().zeilen};
        }
        return weiter;
    }
    bool Neu() {
        const Zeilen geaendert = lesen("get form1.Modified");
        if (geaendert.empty()) {
            return false;
        }
        const bool gefragt = geaendert.front() == "-1";
        wird({}, false);
        pfad_.clear();
        return (!gefragt || tun("answer no")) && tun("click form1.m_neu");
    }
    bool Kunde() {
        const std::string name = "K" + std::to_string(++nummer_);
        if (!tun("set form1.Text_Kunde_1 " + name)) {
            return false;
        }
        wird(jetzt().zeilen, true);
        Zeilen liste = *kunden_.begin();
        liste.push_back(name);
        kunden_.insert(liste);
        const bool weiter = tun("click form1.Command_KD_Add");
        kunden_ = weiter ? std::set<Zeilen>{liste} : kunden_;
        return weiter;
    }
    bool KundeLoeschen() {
        Zeilen liste = *kunden_.begin();
        if (liste.empty()) {
            return true;
        }
        liste.erase(liste.begin());
        kunden_.insert(liste);
        const bool weiter =
            tun("click form1.m_Kundenliste") && tun("select Form_Kundenverwaltung.List_Kundenverwaltung 0") &&
            tun("click Form_Kundenverwaltung.Command_delete") && tun("close Form_Kundenverwaltung");
        kunden_ = weiter ? std::set<Zeilen>{liste} : kunden_;
        return weiter;
    }

    /// What the invoice takes over of the settings changes it, or not.
    bool Einstellung() {
        if (!tun("click form1.m_Rechnungsdaten") ||
            !tun("set frm_einstellungen.Text_firma_2 Weg " + std::to_string(++nummer_)) ||
            !tun("click frm_einstellungen.Command_uebernehmen2")) {
            return false;
        }
        const Zeilen geaendert = lesen("get form1.Modified");
        if (!geaendert.empty()) {
            wird(jetzt().zeilen, geaendert.front() == "-1");
        }
        return !geaendert.empty();
    }

    void DateienPruefen() {
        pfade_.clear();
        for (auto& [pfad, erlaubt] : erlaubt_) {
            if (!fs::exists(pfad)) {
                EXPECT_TRUE(kann_fehlen_.count(pfad)) << pfad << " is gone";
                continue;
            }
            kann_fehlen_.erase(pfad);
            const Zeilen zeilen = RechnungPruefen(pfad);
            EXPECT_TRUE(erlaubt.count(Positionen(zeilen)))
                << pfad << " is neither old nor new: " << ::testing::PrintToString(Positionen(zeilen))
                << " in " << ::testing::PrintToString(erlaubt);
            erlaubt = {Positionen(zeilen)};
            EXPECT_TRUE(pfade_.emplace(zeilen.at(80), pfad).second)
                << zeilen.at(80) << " was given out twice";
            EXPECT_LT(std::stoi(zeilen.at(80)), std::stoi(ordner_.lesen("RN.txt")));
        }
        std::erase_if(erlaubt_, [](const auto& eintrag) { return !fs::exists(eintrag.first); });
        const Zeilen liste = Kundennamen();
        EXPECT_TRUE(kunden_.count(liste)) << "the customer list is neither old nor new";
        kunden_ = {liste};
        EXPECT_EQ(zeilen_aus(ordner_.lesen("prog_n.cfg")).size(), 1001U);
        for (const auto& eintrag : fs::recursive_directory_iterator(ordner_.pfad("Sicherung"))) {
            if (eintrag.is_regular_file() && eintrag.path().extension() == ".qk8") {
                RechnungPruefen(eintrag.path());
            }
        }
    }

    static Zeilen RechnungPruefen(const fs::path& pfad) {
        std::ifstream datei(pfad, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(datei), {}};
        Zeilen zeilen = zeilen_aus(bytes);
        EXPECT_GE(zeilen.size(), 1002U) << pfad;
        EXPECT_TRUE(bytes.ends_with("\r\n")) << pfad;
        zeilen.resize(std::max<std::size_t>(zeilen.size(), 1002));
        return zeilen;
    }
    static Zeilen Positionen(const Zeilen& datei) {
        Zeilen namen;
        for (const std::string& zeile : datei) {
            if (zeile.rfind("#qk8LIST#", 0) == 0) {
                namen.emplace_back(FELD_AUS_ZEILE(zeile, ";", 4));
            }
        }
        return namen;
    }
    Zeilen Kundennamen() const {
        Zeilen namen;
        for (const std::string& zeile : zeilen_aus(ordner_.lesen("Kundenliste.txt"))) {
            namen.emplace_back(FELD_AUS_ZEILE(zeile, "...", 0));
        }
        return namen;
    }

    Probenordner ordner_;
    std::mt19937 zufall_;
    Laeufer* laeufer_ = nullptr;
    std::vector<Stand> staende_; ///< since the start
    std::int64_t zeit_ = 0;
    int nummer_ = 0;
    std::string pfad_;                                ///< of the invoice in hand
    std::map<std::string, std::set<Zeilen>> erlaubt_; ///< rows that a file may hold: old and new
    std::map<std::string, std::string> pfade_;        ///< of the files, by the numbers of their invoices
    std::set<std::string> kann_fehlen_;
    std::set<Zeilen> kunden_{Zeilen()};
};

/// More of them: QUITTIKA_ABBRUECHE=1000.
TEST(Abbruch, KostetHoechstensZwanzigSekundenUndKeineDatei) {
    std::signal(SIGPIPE, SIG_IGN);
    const char* const wunsch = std::getenv("QUITTIKA_ABBRUECHE");
    const int abbrueche = wunsch == nullptr ? 25 : std::atoi(wunsch);
    constexpr int kJeOrdner = 25; // what is looked through after each of them grows
    std::optional<Arbeitstag> tag;
    for (int lauf = 0; lauf < abbrueche && !::testing::Test::HasFailure(); ++lauf) {
        SCOPED_TRACE("kill " + std::to_string(lauf));
        if (lauf % kJeOrdner == 0) {
            tag.emplace(static_cast<unsigned>(lauf));
        }
        tag->Arbeiten(lauf % kJeOrdner);
    }
}

} // namespace
} // namespace quittika
