#include "app/programm.hpp"
#include "platform/qt/qt_platform.hpp"
#include "safety/fassungsablage.hpp"
#include "tests/pruefstand.hpp"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <optional>

namespace quittika {
namespace {

/// A folder on a disk: the sample folders lie in memory, where a save costs nothing that it costs a user.
class Plattenordner {
public:
    Plattenordner() : ordner_("/var/tmp/quittika-XXXXXX") { ordner_ = mkdtemp(ordner_.data()); }
    Plattenordner(const Plattenordner&) = delete;
    Plattenordner& operator=(const Plattenordner&) = delete;
    ~Plattenordner() {
        std::error_code egal;
        std::filesystem::remove_all(ordner_, egal);
    }
    const std::string& ordner() const { return ordner_; }

private:
    std::string ordner_;
};

/// Saving an invoice of 100 rows to its file; each version is another, and as many are there as ever stay.
void speichern(benchmark::State& state, bool fassungen) {
    const Plattenordner platte;
    const Programmverzeichnis verzeichnis(platte.ordner());
    Pruefstand p;
    std::optional<Fassungsablage> ablage;
    if (fassungen) {
        ablage.emplace(verzeichnis, p.uhr, p.form1.Hinweise);
    }
    for (int i = 0; i < 100; ++i) {
        p.zeile("1", "Posten", "1,99");
    }
    p.speichern(platte.ordner() + "/a.qk8");
    int saetze = 0;
    const auto sichern = [&] {
        p.uhr.zeit = zeitpunkt_aus(sekunden_aus(p.uhr.zeit) + 1);
        p.form1.Text_Kunde_1.Text = "Kunde " + std::to_string(++saetze);
        p.befehle.m_speichern_kurz_Click();
    };
    for (int i = 0; i < 60; ++i) {
        sichern();
    }
    for (auto _ : state) {
        sichern();
    }
}
BENCHMARK_CAPTURE(speichern, mit_fassungen, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(speichern, ohne, false)->Unit(benchmark::kMicrosecond);

/// The main window of a program whose folder holds that many versions.
void start_im_ordner(benchmark::State& state, int fassungen) {
    const Probenordner ordner;
    for (int i = 0; i < fassungen; ++i) {
        const std::string gruppe = "Sicherung/r" + std::to_string(i / 100) + ".qk8 00000000";
        std::filesystem::create_directories(ordner.pfad(gruppe));
        ordner.schreiben(gruppe + "/2008-03-05 10-20-30-" + std::to_string(100 + i % 100) + " 00000000.qk8",
                         "qk8");
    }
    for (auto _ : state) {
        QtPlatform plattform;
        Programm programm(plattform.platform(), ordner.ordner());
        programm.hauptfenster_zeigen();
        QApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(start_im_ordner, mit_10000_fassungen, 10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(start_im_ordner, leer, 0)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quittika
