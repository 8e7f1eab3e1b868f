#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "masterdata/artikel.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <QApplication>
#include <QLineEdit>
#include <benchmark/benchmark.h>

namespace quittika {
namespace {

constexpr int kHoechstens = 12000;
constexpr int kZeilen = 1000;

std::string artikelliste(int anzahl) {
    std::string bytes;
    for (int i = 1; i <= anzahl; ++i) {
        const std::string nummer = std::to_string(i);
        bytes += "Apfelsaft naturtr\xFC"
                 "b, Kasten " +
                 nummer + "$\xA7$12.50$\xA7$40039" + nummer + "$\xA7$\r\n";
    }
    return bytes;
}

QLineEdit* codefeld() {
    for (QWidget* fenster : QApplication::topLevelWidgets()) {
        if (auto* feld = fenster->findChild<QLineEdit*>("Text_Barcode");
            feld != nullptr && fenster->isVisible()) {
            return feld;
        }
    }
    return nullptr;
}

/// A scan of the list's last article, from the line end to its row on an invoice of 1,000, until it is drawn.
void scan(benchmark::State& state, int artikel) {
    const Probenordner ordner;
    ordner.schreiben("Artikelliste.txt", artikelliste(artikel));
    QtPlatform plattform;
    Programm programm(plattform.platform(), ordner.ordner());
    programm.hauptfenster_zeigen();
    auto& f = dynamic_cast<Form1&>(programm.hauptfenster());
    f.Cmd_Barcode.Click();
    QLineEdit* feld = codefeld();
    const QString code = QString::fromStdString("40039" + std::to_string(artikel) + "\n");
    for (int i = 0; i < kZeilen; ++i) {
        feld->setText(code);
    }
    QApplication::processEvents();
    if (f.List_pos.ListCount() != kZeilen) {
        state.SkipWithError("not booked");
    }
    for (auto _ : state) {
        feld->setText(code);
        QApplication::processEvents();
        state.PauseTiming();
        f.md_Del_artikel.Click();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(scan, 12000, kHoechstens)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scan, 10, 10)->Unit(benchmark::kMillisecond);

void artikel_lesen(benchmark::State& state) {
    const Probenordner ordner;
    const std::string pfad = ordner.schreiben("Artikelliste.txt", artikelliste(kHoechstens));
    Artikelzustand zustand{Programmverzeichnis(ordner.ordner())};
    Artikeltabelle ARTIKEL(zustand);
    for (auto _ : state) {
        ARTIKEL.Artikelliste_einlesen(pfad);
        benchmark::DoNotOptimize(ARTIKEL[kHoechstens].Barcode.data());
    }
}
BENCHMARK(artikel_lesen)->Unit(benchmark::kMillisecond);

void artikel_lesen_grundlage(benchmark::State& state) {
    const Probenordner ordner;
    const std::string pfad = ordner.schreiben("Artikelliste.txt", artikelliste(kHoechstens));
    for (auto _ : state) {
        std::vector<std::string> zeilen;
        std::ifstream ein(pfad, std::ios::binary);
        for (std::string zeile; std::getline(ein, zeile);) {
            zeilen.push_back(zeile);
        }
        benchmark::DoNotOptimize(zeilen.data());
    }
}
BENCHMARK(artikel_lesen_grundlage)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quittika
