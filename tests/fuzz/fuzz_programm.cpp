// The whole program under a user without a plan: fuzz_programm <seed> <seconds>
// Without a fault it says how much it did and returns 0. A fault is printed as the shortest script found that
// still shows it, which tests/skripte/pruefen.sh and (but for its "#$" lines) quittika-skript replay.
#include "platform/text.hpp"
#include "tests/fuzz/pruefung.hpp"
#include "tests/fuzz/zufallsnutzer.hpp"
#include "tests/programmlauf.hpp"
#include "tests/pruefstand.hpp"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include <unistd.h>

namespace quittika::fuzz {
namespace {

using Zeilen = std::vector<std::string>;

constexpr int kZeilenProLauf = 250;
constexpr std::size_t kArt = 9;        ///< findings that begin alike are of one kind
constexpr unsigned kHoechstdauer = 60; ///< seconds for one line; beyond it the program hangs

/// The runner refuses what a user could not do either; everything else has left a handler of the program.
bool nur_abgelehnt(const std::string& antwort) {
    static constexpr const char* kAblehnungen[] = {
        "ist abgeschaltet",       "ist nicht sichtbar", "ist schreibgeschützt", "nimmt keine Eingabe an",
        "nimmt keinen Wert an",   "nimmt nichts an",    "hat keinen Eintrag",   "hat keine Einträge",
        "error: Vor dem Fenster", "Es gibt kein",       "ist nicht offen",      "Es läuft kein Programm"};
    return std::any_of(std::begin(kAblehnungen), std::end(kAblehnungen), [&antwort](const char* ablehnung) {
        return antwort.find(ablehnung) != std::string::npos;
    });
}

/// What the file of the invoice in hand holds, read by a program of its own, against that invoice.
std::string Lesebefund(Form1& f, const std::string& ordner) {
    const std::string pfad = f.Label_Pfad.Caption();
    Zeilen zeilen{"click form1.m_oeffnen", "answer yes", // the other program has it open: to read it only
                  "file " + pfad, "start " + ordner + "/leser 2008-03-05T10:20:30"};
    std::string befund;
    Programmlauf leser;
    leser.eingabe.naechste = [&](std::string& zeile) {
        if (zeilen.empty()) {
            Form1* const gelesen = leser.form1();
            befund = gelesen == nullptr ? "kein Fenster" : Unterschied(f, *gelesen);
            return false;
        }
        zeile = zeilen.back();
        zeilen.pop_back();
        return true;
    };
    std::filesystem::create_directory(ordner + "/leser");
    leser.runner.run();
    return befund.empty() ? "" : "Die Datei " + pfad + " ist eine andere Rechnung: " + befund;
}

bool eben_gespeichert(const std::string& zeile, const Form1& f) {
    return (beginnt_mit(zeile, "click form1.m_speichern") || zeile == "click form1.Command_jetztSpeichern") &&
           !f.Modified() && !f.Label_Pfad.Caption().empty() &&
           f.StatusBar1[2].Caption().find("ABGESCHLOSSEN") != std::string::npos;
}

/// One run of the program. `weiter` adds the lines that come next, or none to end it.
class Probe {
public:
    explicit Probe(std::ostream* protokoll) : protokoll_(protokoll) {
        lauf_.eingabe.naechste = [this](std::string& zeile) { return naechste(zeile); };
    }

    /// The first thing that was wrong, or nothing.
    std::string laufen(std::function<Zeilen(const ScriptDesktop&)> weiter) {
        weiter_ = std::move(weiter);
        lauf_.runner.run();
        return befund_;
    }
    const Zeilen& gespielt() const { return gespielt_; }
    std::size_t gelesen() const { return gelesen_; }

private:
    bool naechste(std::string& zeile) {
        befund_ = pruefen();
        if (!befund_.empty()) {
            return false;
        }
        if (offen_ == vorrat_.size()) {
            offen_ = 0;
            vorrat_ = weiter_(lauf_.runner.platform().desktop);
            if (vorrat_.empty()) {
                return false;
            }
        }
        gespielt_.push_back(vorrat_[offen_++]);
        if (protokoll_ != nullptr) {
            *protokoll_ << gespielt_.back() << std::endl;
        }
        if (beginnt_mit(gespielt_.back(), "#$")) {
            const std::string befehl = "cd '" + ordner_.ordner() + "' && " + gespielt_.back().substr(2);
            static_cast<void>(!std::system((befehl + " 2>/dev/null").c_str())); // may fail like a user's
        }
        zeile = ersetzen(gespielt_.back(), "@ORDNER@", ordner_.ordner());
        alarm(kHoechstdauer);
        return true;
    }

    std::string pruefen() {
        const std::string antwort = lauf_.aus.str();
        lauf_.aus.str("");
        if (antwort.find("error: ") != std::string::npos && !nur_abgelehnt(antwort)) {
            return antwort;
        }
        Form1* const f = lauf_.form1();
        if (f == nullptr || !f->shown()) {
            return "";
        }
        const std::string befund = Fensterbefund(*f);
        if (!befund.empty() || !eben_gespeichert(gespielt_.back(), *f)) {
            return befund;
        }
        ++gelesen_;
        return Lesebefund(*f, ordner_.ordner());
    }

    Probenordner ordner_;
    std::ostream* protokoll_;
    Programmlauf lauf_;
    std::function<Zeilen(const ScriptDesktop&)> weiter_;
    Zeilen vorrat_;
    std::size_t offen_ = 0;
    Zeilen gespielt_;
    std::size_t gelesen_ = 0; ///< files read back
    std::string befund_;
};

std::string nachspielen(Zeilen zeilen) {
    Probe probe(nullptr);
    return probe.laufen([&zeilen](const ScriptDesktop&) { return std::exchange(zeilen, {}); });
}

/// Leaves out what the fault does not need, larger pieces first, until no single line can go.
Zeilen gekuerzt(Zeilen zeilen, const std::string& befund) {
    for (std::size_t laenge = zeilen.size() / 2; laenge > 0;) {
        const std::size_t vorher = zeilen.size();
        for (std::size_t ab = 1; ab + laenge <= zeilen.size();) {
            Zeilen kuerzer = zeilen;
            const auto von = kuerzer.begin() + static_cast<std::ptrdiff_t>(ab);
            kuerzer.erase(von, von + static_cast<std::ptrdiff_t>(laenge));
            if (nachspielen(kuerzer).substr(0, kArt) != befund.substr(0, kArt)) {
                ab += laenge;
            } else {
                zeilen = std::move(kuerzer);
            }
        }
        laenge = laenge > 1 ? laenge / 2 : zeilen.size() < vorher ? 1 : 0;
    }
    return zeilen;
}

/// A run that dies or hangs leaves its lines in fuzz_programm.log.
int spielen(unsigned saat, int sekunden) {
    using Uhr = std::chrono::steady_clock;
    const auto ende = Uhr::now() + std::chrono::seconds(sekunden);
    std::size_t laeufe = 0;
    std::size_t zeilen = 0;
    std::size_t gelesen = 0;
    for (; Uhr::now() < ende; ++laeufe, ++saat) {
        std::ofstream protokoll("fuzz_programm.log");
        Zufallsnutzer nutzer(saat);
        Probe probe(&protokoll);
        const std::string befund = probe.laufen([&](const ScriptDesktop& desktop) {
            return probe.gespielt().size() < kZeilenProLauf ? nutzer.naechste_zeilen(desktop) : Zeilen{};
        });
        zeilen += probe.gespielt().size();
        gelesen += probe.gelesen();
        if (!befund.empty()) {
            const Zeilen kurz = gekuerzt(probe.gespielt(), befund);
            std::cout << "# Saat " << saat << ": " << nachspielen(kurz) << "\n";
            for (const std::string& zeile : kurz) {
                std::cout << zeile << "\n";
            }
            return 1;
        }
    }
    std::cout << "fuzz_programm: no fault in " << laeufe << " runs of " << zeilen << " lines, " << gelesen
              << " saved files read back\n";
    return 0;
}

} // namespace
} // namespace quittika::fuzz

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "fuzz_programm <seed> <seconds>\n";
        return 2;
    }
    return quittika::fuzz::spielen(static_cast<unsigned>(std::atoi(argv[1])), std::atoi(argv[2]));
}
