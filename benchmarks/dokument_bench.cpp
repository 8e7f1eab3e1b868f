#include "platform/textdatei.hpp"
#include "platform/zahlen.hpp"
#include "tests/pruefstand.hpp"

#include <benchmark/benchmark.h>

#include <charconv>
#include <fstream>

namespace quittika {
namespace {

constexpr int kZeilen = 1000;

std::string betrag(int i) {
    return format_zahl(i * 1.37, "0.00");
}

void tausend_zeilen(Pruefstand& p) {
    for (int i = 0; i < kZeilen; ++i) {
        p.form1.List_K.AddItem("-");
        p.form1.List_pos.AddItem("");
        p.form1.List_Menge.AddItem("1");
        p.form1.List_Leistung.AddItem("Leistung Nummer " + std::to_string(i));
        p.form1.List_Preis.AddItem(betrag(i));
        p.form1.List_Gesamtp.AddItem(betrag(i));
    }
    p.summen.jetztberechnen_List();
    p.rechnung.DarstellungAufbauen();
}

void rechnen(benchmark::State& state) {
    Pruefstand p;
    tausend_zeilen(p);
    for (auto _ : state) {
        p.summen.jetztberechnen_List();
        benchmark::DoNotOptimize(p.form1.Text_summe.Text().data());
    }
}
BENCHMARK(rechnen)->Unit(benchmark::kMicrosecond);

void rechnen_grundlage(benchmark::State& state) {
    std::vector<std::string> texte;
    for (int i = 0; i < kZeilen; ++i) {
        texte.push_back(betrag(i));
        texte.back()[texte.back().find(',')] = '.';
    }
    for (auto _ : state) {
        double summe = 0;
        for (const std::string& text : texte) {
            double wert = 0;
            std::from_chars(text.data(), text.data() + text.size(), wert);
            summe += wert;
        }
        benchmark::DoNotOptimize(summe);
    }
}
BENCHMARK(rechnen_grundlage)->Unit(benchmark::kMicrosecond);

/// A folder in memory, so that both sides measure work and not the disk.
std::string ramdatei(const char* name) {
    return "/dev/shm/quittika-bench-" + std::string(name);
}

void datei(benchmark::State& state) {
    Pruefstand p;
    tausend_zeilen(p);
    const std::string pfad = ramdatei("rechnung.qk8");
    for (auto _ : state) {
        p.schreiber.DateiDatenSammeln();
        p.schreiber.DateiSchreiben(pfad);
        p.befehle.oeffneRN(pfad);
    }
    std::filesystem::remove(pfad);
}
BENCHMARK(datei)->Unit(benchmark::kMicrosecond);

void datei_grundlage(benchmark::State& state) {
    Pruefstand p;
    tausend_zeilen(p);
    const std::string pfad = ramdatei("grundlage.qk8");
    p.schreiber.DateiDatenSammeln();
    p.schreiber.DateiSchreiben(pfad);
    for (auto _ : state) {
        std::vector<std::string> zeilen;
        {
            std::ifstream ein(pfad, std::ios::binary);
            for (std::string zeile; std::getline(ein, zeile);) {
                zeilen.push_back(zeile);
            }
        }
        std::ofstream aus(pfad, std::ios::binary);
        for (const std::string& zeile : zeilen) {
            aus << zeile << '\n';
        }
    }
    std::filesystem::remove(pfad);
}
BENCHMARK(datei_grundlage)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace quittika
