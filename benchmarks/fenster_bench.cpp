#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/print_pdf.hpp"
#include "platform/qt/qt_platform.hpp"
#include "print/rechnungsdruck.hpp"
#include "tests/pruefstand.hpp"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
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

/// Keeps the calls that reach a device.
class Aufrufe : public PrintDevice {
public:
    struct Text {
        double links;
        double oben;
        PrintFont schrift;
        QString text;
    };
    std::vector<Text> texte;
    std::vector<std::array<double, 4>> linien;

    void text(double left, double top, double, const PrintFont& font, Color, std::string_view text) override {
        texte.push_back(
            {left, top, font, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))});
    }
    void line(double x1, double y1, double x2, double y2, Color) override {
        linien.push_back({x1, y1, x2, y2});
    }
    void picture(double, double, double, double, const std::string&) override {}
    void new_page() override {}
    void end_document() override {}
};

struct Druckprobe {
    Pruefstand p;
    Rechnungsdruck druck{p.form1, p.einstellungen, p.werte};
    PaintTools werkzeug;
    Druckprobe() {
        for (int i = 0; i < 15; ++i) {
            p.zeile("2", "Posten mit einer Bezeichnung", "12,50");
        }
    }
};

void pdf_seite(benchmark::State& state) {
    Druckprobe probe;
    const QString pfad = QStringLiteral("/dev/shm/quittika-bench.pdf");
    for (auto _ : state) {
        QtPdfDevice geraet(probe.werkzeug, pfad, {"Probe"});
        PrintSurface flaeche(geraet, probe.werkzeug.metrics);
        probe.druck.DRUCKE_RECHNUNG(flaeche, {});
    }
    QFile::remove(pfad);
}
BENCHMARK(pdf_seite)->Unit(benchmark::kMillisecond);

void pdf_seite_grundlage(benchmark::State& state) {
    Druckprobe probe;
    Aufrufe aufrufe;
    PrintSurface flaeche(aufrufe, probe.werkzeug.metrics);
    probe.druck.DRUCKE_RECHNUNG(flaeche, {});
    const QString pfad = QStringLiteral("/dev/shm/quittika-bench-grundlage.pdf");
    for (auto _ : state) {
        QPdfWriter schreiber(pfad);
        schreiber.setResolution(1200);
        schreiber.setPageSize(QPageSize(QPageSize::A4));
        schreiber.setPageMargins({});
        QPainter maler(&schreiber);
        const double punkte = 1200 / 25.4;
        for (const Aufrufe::Text& t : aufrufe.texte) {
            QFont schrift(QStringLiteral("Liberation Sans"));
            schrift.setPointSizeF(t.schrift.size);
            schrift.setBold(t.schrift.bold);
            maler.setFont(schrift);
            maler.drawText(QPointF(t.links * punkte, t.oben * punkte), t.text);
        }
        for (const auto& l : aufrufe.linien) {
            maler.drawLine(QPointF(l[0] * punkte, l[1] * punkte), QPointF(l[2] * punkte, l[3] * punkte));
        }
    }
    QFile::remove(pfad);
}
BENCHMARK(pdf_seite_grundlage)->Unit(benchmark::kMillisecond);

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
