#include "app/programm.hpp"
#include "designer/design.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QMouseEvent>
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

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

/// The program with the shipped pictures and a saved design.
struct Laufend {
    Laufend() {
        std::filesystem::copy(QUITTIKA_BILDER, ordner.ordner(), std::filesystem::copy_options::recursive);
        ordner.schreiben("design.dsg",
                         DESIGN_SCHREIBEN(DESIGN_STANDARD(Programmverzeichnis(ordner.ordner()))).bytes);
        programm.hauptfenster_zeigen();
        QApplication::processEvents();
    }
    void oeffnen() {
        dynamic_cast<Form1&>(programm.hauptfenster()).m_startdesigner.Click();
        QApplication::processEvents();
    }

    Probenordner ordner;
    QtPlatform plattform;
    Programm programm{plattform.platform(), ordner.ordner()};
};

void designer_oeffnen(benchmark::State& state) {
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
BENCHMARK(designer_oeffnen)->Unit(benchmark::kMillisecond);

void maus(QWidget& feld, QEvent::Type art, const QPointF& ort) {
    const bool los = art == QEvent::MouseButtonRelease;
    QMouseEvent ereignis(art, ort, feld.mapToGlobal(ort),
                         art == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                         los ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&feld, &ereignis);
}

/// What has changed is drawn at once, not with the screen's next picture.
void zeichnen(QWidget& fenster) {
    QApplication::processEvents();
    QEvent faellig(QEvent::UpdateRequest);
    QApplication::sendEvent(&fenster, &faellig);
}

/// A block dragged by a pixel with all help lines on, until the window has drawn it.
void designer_mausbewegung(benchmark::State& state) {
    Laufend programm;
    programm.oeffnen();
    QWidget* fenster = offenes_fenster("FORM_DESIGNER");
    for (const char* haken : {"Check_HILFSLINIEN", "Check_DIN_A", "Check_DIN_B"}) {
        fenster->findChild<QCheckBox*>(QLatin1String(haken))->click();
    }
    auto* block = fenster->findChild<QWidget*>(QStringLiteral("Image_KDNR"));
    const QPointF mitte = block->rect().center();
    maus(*block, QEvent::MouseButtonPress, mitte);
    double schritt = 1;
    for (auto _ : state) {
        maus(*block, QEvent::MouseMove, mitte + QPointF(schritt, schritt));
        zeichnen(*fenster);
        schritt = -schritt;
    }
    maus(*block, QEvent::MouseButtonRelease, mitte);
}
BENCHMARK(designer_mausbewegung)->Unit(benchmark::kMillisecond);

/// An empty widget that follows the mouse on that page, with four lines at its edges.
class Leeres : public QWidget {
public:
    explicit Leeres(QWidget& seite) : QWidget(&seite), linien_(4) {
        for (std::unique_ptr<QFrame>& linie : linien_) {
            linie = std::make_unique<QFrame>(&seite);
            linie->show();
        }
    }

protected:
    void mouseMoveEvent(QMouseEvent* ereignis) override {
        move(pos() + ereignis->position().toPoint() - rect().center());
        const QSize seite = parentWidget()->size();
        linien_[0]->setGeometry(x(), 0, 1, seite.height());
        linien_[1]->setGeometry(x() + width(), 0, 1, seite.height());
        linien_[2]->setGeometry(0, y(), seite.width(), 1);
        linien_[3]->setGeometry(0, y() + height(), seite.width(), 1);
    }

private:
    std::vector<std::unique_ptr<QFrame>> linien_;
};

void leeres_widget_bewegen(benchmark::State& state) {
    Laufend programm;
    programm.oeffnen();
    QWidget* fenster = offenes_fenster("FORM_DESIGNER");
    Leeres block(*fenster->findChild<QWidget*>(QStringLiteral("Frame_A4")));
    block.setGeometry(300, 180, 60, 12);
    block.show();
    QApplication::processEvents();
    const QPointF mitte = block.rect().center();
    double schritt = 1;
    for (auto _ : state) {
        maus(block, QEvent::MouseMove, mitte + QPointF(schritt, schritt));
        zeichnen(*fenster);
        schritt = -schritt;
    }
}
BENCHMARK(leeres_widget_bewegen)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quittika
