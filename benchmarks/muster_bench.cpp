#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/print_page.hpp"
#include "platform/qt/qt_platform.hpp"
#include "print/musterbeleg.hpp"
#include "tests/einstellungsstand.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
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

/// A key in a field of the settings, until the window has drawn it.
void taste(benchmark::State& state) {
    const Probenordner ordner;
    QtPlatform plattform;
    Programm programm(plattform.platform(), ordner.ordner());
    programm.hauptfenster_zeigen();
    dynamic_cast<Form1&>(programm.hauptfenster()).m_Rechnungsdaten.Click();
    QApplication::processEvents();
    QLineEdit* feld = nullptr;
    for (const QWidget* fenster : QApplication::topLevelWidgets()) {
        if (fenster->objectName() == QLatin1String("frm_einstellungen")) {
            feld = fenster->findChild<QLineEdit*>(QStringLiteral("Text_firma_1"));
        }
    }
    if (feld == nullptr) {
        state.SkipWithError("no settings");
        return;
    }
    for (auto _ : state) {
        feld->clear();
        QKeyEvent druck(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QApplication::sendEvent(feld, &druck);
        QApplication::processEvents();
    }
}
BENCHMARK(taste)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quittika
