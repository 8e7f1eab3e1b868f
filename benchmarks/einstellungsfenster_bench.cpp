#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <benchmark/benchmark.h>

namespace quittika {
namespace {

QWidget* offenes_fenster(const char* name) {
    for (QWidget* fenster : QApplication::topLevelWidgets()) {
        if (fenster->objectName() == QLatin1String(name)) {
            return fenster;
        }
    }
    return nullptr;
}

/// The program with its main window shown.
struct Laufend {
    Laufend() {
        programm.hauptfenster_zeigen();
        QApplication::processEvents();
    }
    void oeffnen() {
        dynamic_cast<Form1&>(programm.hauptfenster()).m_Rechnungsdaten.Click();
        QApplication::processEvents();
    }

    Probenordner ordner;
    QtPlatform plattform;
    Programm programm{plattform.platform(), ordner.ordner()};
};

void einstellungen_oeffnen(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            Laufend programm;
            state.ResumeTiming();
            programm.oeffnen();
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}
BENCHMARK(einstellungen_oeffnen)->Unit(benchmark::kMillisecond);

void einstellungen_wieder(benchmark::State& state) {
    Laufend programm;
    programm.oeffnen();
    auto* knopf = offenes_fenster("frm_einstellungen")->findChild<QPushButton*>("Command_uebernehmen2");
    for (auto _ : state) {
        state.PauseTiming();
        knopf->click();
        QApplication::processEvents();
        state.ResumeTiming();
        programm.oeffnen();
    }
}
BENCHMARK(einstellungen_wieder)->Unit(benchmark::kMillisecond);

/// A letter typed into the first company line, until the window has drawn it.
void einstellungen_taste(benchmark::State& state) {
    Laufend programm;
    programm.oeffnen();
    auto* feld = offenes_fenster("frm_einstellungen")->findChild<QLineEdit*>(QStringLiteral("Text_firma_1"));
    constexpr int kFeldlaenge = 40;
    for (auto _ : state) {
        QKeyEvent taste(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QApplication::sendEvent(feld, &taste);
        QApplication::processEvents();
        if (feld->text().size() > kFeldlaenge) {
            feld->clear();
        }
    }
}
BENCHMARK(einstellungen_taste)->Unit(benchmark::kMillisecond);

void leerer_dialog(benchmark::State& state) {
    for (auto _ : state) {
        QDialog fenster;
        fenster.resize(1024, 700);
        fenster.show();
        QApplication::processEvents();
    }
}
BENCHMARK(leerer_dialog)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quittika
