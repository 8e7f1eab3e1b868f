#include "platform/qt/print_page.hpp"
#include "print/musterbeleg.hpp"
#include "tests/einstellungsstand.hpp"

#include <benchmark/benchmark.h>

namespace quittika {
namespace {

constexpr QSize kBlatt{360, 509}; ///< pixels

/// The page beside the settings after a change, up to its picture, with an invoice of so many rows in hand.
void muster(benchmark::State& state, int zeilen) {
    Einstellungsstand p;
    for (int i = 0; i < zeilen; ++i) {
        p.zeile("2", "Posten mit einer Bezeichnung", "12,50");
    }
    PaintTools werkzeug;
    Musterbeleg beleg(p.form1, p.einstellungen, p.programm, p.werte, p.verzeichnis, p.dialoge, p.uhr,
                      werkzeug.metrics, werkzeug.pictures);
    PictureBox& bild = p.einstellungen.Picture_Muster;
    int runde = 0;
    for (auto _ : state) {
        p.einstellungen.Text_firma_1.Text = "Firma " + std::to_string(++runde);
        beleg.AUFNEHMEN();
        beleg.ZEICHNEN(bild);
        benchmark::DoNotOptimize(page_image(*bild.page(), kBlatt, werkzeug));
    }
}
BENCHMARK_CAPTURE(muster, 1000, 1000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quittika
