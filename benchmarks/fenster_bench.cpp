#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <QApplication>
#include <QProcess>
#include <benchmark/benchmark.h>

namespace quittika {
namespace {

/// One more row on a list of `vorher` rows, until the window has drawn it.
void eine_zeile_mehr(benchmark::State& state, int vorher) {
    const Probenordner ordner;
    QtPlatform plattform;
    Programm programm(plattform.platform(), ordner.ordner());
    programm.hauptfenster_zeigen();
    auto& f = dynamic_cast<Form1&>(programm.hauptfenster());
    const auto zeile = [&f] {
        f.Text_Menge.Text = "1";
        f.Text_leistung.Text = "Posten";
        f.Text_preis.Text = "1,99";
        f.Cmd_Add_To_list.Click();
    };
    for (int i = 0; i < vorher; ++i) {
        zeile();
    }
    QApplication::processEvents();
    for (auto _ : state) {
        zeile();
        QApplication::processEvents();
        state.PauseTiming();
        f.md_Del_artikel.Click();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(eine_zeile_mehr, 1000, 1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(eine_zeile_mehr, 5000, 5000)->Unit(benchmark::kMillisecond);

/// A row taken out of the middle comes back and goes again, until the window has drawn both.
void zeile_zurueck(benchmark::State& state, int zeilen) {
    const Probenordner ordner;
    QtPlatform plattform;
    Programm programm(plattform.platform(), ordner.ordner());
    programm.hauptfenster_zeigen();
    auto& f = dynamic_cast<Form1&>(programm.hauptfenster());
    for (int i = 0; i < zeilen; ++i) {
        f.Text_Menge.Text = "1";
        f.Text_leistung.Text = "Posten";
        f.Text_preis.Text = "1,99";
        f.Cmd_Add_To_list.Click();
    }
    f.List_DARSTELLUNG.user_select(zeilen / 2);
    f.md_Del_artikel.Click();
    for (auto _ : state) {
        f.m_rueckgaengig.Click();
        QApplication::processEvents();
        f.m_wiederholen.Click();
        QApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(zeile_zurueck, 1000, 1000)->Unit(benchmark::kMillisecond);

void start_messen(benchmark::State& state, const char* art) {
    const QString selbst = QApplication::applicationFilePath();
    for (auto _ : state) {
        if (QProcess::execute(selbst, {QString::fromLatin1(art)}) != 0) {
            state.SkipWithError("the measured process failed");
        }
    }
}
void start(benchmark::State& state) {
    start_messen(state, "--start-programm");
}
BENCHMARK(start)->Unit(benchmark::kMillisecond);
void start_grundlage(benchmark::State& state) {
    start_messen(state, "--start-leer");
}
BENCHMARK(start_grundlage)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quittika
