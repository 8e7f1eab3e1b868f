#include "tests/einstellungsstand.hpp"

#include <benchmark/benchmark.h>

#include <fstream>

namespace quittika {
namespace {

void einstellungen(benchmark::State& state) {
    Einstellungsstand p;
    for (auto _ : state) {
        p.einstellungsschreiber.EINSTELLUNGEN_SPEICHERN();
        p.einstellungsleser.EINSTELLUNGEN_LADEN();
    }
}
BENCHMARK(einstellungen)->Unit(benchmark::kMicrosecond);

void einstellungen_grundlage(benchmark::State& state) {
    Einstellungsstand p;
    p.einstellungsschreiber.EINSTELLUNGEN_SPEICHERN();
    const std::string pfad = p.ordner.pfad("prog_n.cfg");
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
}
BENCHMARK(einstellungen_grundlage)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace quittika
