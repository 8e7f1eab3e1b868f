#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/print_pdf.hpp"
#include "platform/qt/print_printing.hpp"
#include "platform/qt/qt_platform.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/recording.hpp"
#include "print/form_druckvorschau.hpp"
#include "print/rechnungsdruck.hpp"
#include "print/vorschauzeichnung.hpp"
#include "tests/pruefstand.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <benchmark/benchmark.h>

namespace quittika {
namespace {

constexpr double kMmJeZoll = 25.4;
constexpr int kErsteSeite = 17;
constexpr int kFolgeseite = 28;

/// Rows that fill so many pages.
void zeilen(Form1& form1, int seiten) {
    for (int i = 0; i < kErsteSeite + (seiten - 1) * kFolgeseite; ++i) {
        form1.List_K.AddItem("-");
        form1.List_pos.AddItem(std::to_string(i + 1));
        form1.List_Menge.AddItem("2");
        form1.List_Leistung.AddItem("Posten mit einer Bezeichnung");
        form1.List_Preis.AddItem("12,50");
        form1.List_Gesamtp.AddItem("25,00");
    }
}

/// An invoice of so many pages, drawn for paper, and the calls that reached the device.
struct Druckprobe {
    Pruefstand p;
    Rechnungsdruck druck{p.form1, p.einstellungen, p.werte};
    PaintTools werkzeug;
    std::shared_ptr<RecordedJob> aufrufe = std::make_shared<RecordedJob>(PrintDocument{"Probe"});

    explicit Druckprobe(int seiten) {
        zeilen(p.form1, seiten);
        p.summen.jetztberechnen_List();
        RecordingDevice geraet(aufrufe, werkzeug.pictures);
        drucken(geraet);
    }
    void drucken(PrintDevice& geraet) {
        PrintSurface flaeche(geraet, werkzeug.metrics);
        druck.DRUCKE_RECHNUNG(flaeche, {});
    }
};

/// Draws a page as one would who knows nothing but the toolkit.
void nachzeichnen(QPainter& maler, const DrawnPage& seite, double punkte) {
    for (const Drawing& zeichnung : seite.drawings) {
        if (const auto* t = std::get_if<drawn::Text>(&zeichnung)) {
            QFont schrift(QStringLiteral("Liberation Sans"));
            schrift.setPointSizeF(t->font.size);
            schrift.setBold(t->font.bold);
            maler.setFont(schrift);
            maler.drawText(QPointF(t->left * punkte, t->top * punkte), to_qt(t->text));
        } else if (const auto* l = std::get_if<drawn::Line>(&zeichnung)) {
            maler.drawLine(QPointF(l->x1 * punkte, l->y1 * punkte), QPointF(l->x2 * punkte, l->y2 * punkte));
        }
    }
}

void pdf_seiten(benchmark::State& state) {
    Druckprobe probe(100);
    const QString pfad = QStringLiteral("/dev/shm/quittika-bench.pdf");
    for (auto _ : state) {
        QtPdfDevice geraet(probe.werkzeug, pfad, {"Probe"});
        probe.drucken(geraet);
    }
    QFile::remove(pfad);
}
BENCHMARK(pdf_seiten)->Unit(benchmark::kMillisecond);

void pdf_seiten_grundlage(benchmark::State& state) {
    const Druckprobe probe(100);
    const QString pfad = QStringLiteral("/dev/shm/quittika-bench-grundlage.pdf");
    constexpr int kAufloesung = 1200;
    for (auto _ : state) {
        QPdfWriter schreiber(pfad);
        schreiber.setResolution(kAufloesung);
        schreiber.setPageSize(QPageSize(QPageSize::A4));
        schreiber.setPageMargins({});
        QPainter maler(&schreiber);
        for (const DrawnPage& seite : probe.aufrufe->pages) {
            if (&seite != &probe.aufrufe->pages.front()) {
                schreiber.newPage();
            }
            nachzeichnen(maler, seite, kAufloesung / kMmJeZoll);
        }
    }
    QFile::remove(pfad);
}
BENCHMARK(pdf_seiten_grundlage)->Unit(benchmark::kMillisecond);

constexpr int kBilder = 10;
constexpr int kBildaufloesung = 200;

QString bildpfad(int seite) {
    return QStringLiteral("/dev/shm/quittika-bench-%1.bmp").arg(seite);
}

void bildseiten(benchmark::State& state) {
    Druckprobe probe(kBilder);
    QtPrinting ausgabe(probe.werkzeug, [] { return nullptr; });
    Form_Druckvorschau form;
    const Druckvorlage vorlage = probe.druck.vorbereiten();
    for (auto _ : state) {
        for (int seite = 1; seite <= vorlage.seiten(); ++seite) {
            const auto geraet = ausgabe.picture(form.Picture1, {"Probe", {}, seite});
            PrintSurface flaeche(*geraet, ausgabe.metrics());
            Blatt blatt{flaeche, {}};
            vorlage.SEITE_DRUCKEN(blatt, seite);
            flaeche.EndDoc();
            ausgabe.save_page(*form.Picture1.page(), bildpfad(seite).toStdString(), kBildaufloesung);
        }
    }
}
BENCHMARK(bildseiten)->Unit(benchmark::kMillisecond);

void bildseiten_grundlage(benchmark::State& state) {
    const Druckprobe probe(kBilder);
    const double punkte = kBildaufloesung / kMmJeZoll;
    for (auto _ : state) {
        int nummer = 0;
        for (const DrawnPage& seite : probe.aufrufe->pages) {
            QImage bild((QSizeF(seite.paper.width, seite.paper.height) * punkte).toSize(),
                        QImage::Format_RGB32);
            bild.setDotsPerMeterX(qRound(punkte * 1000));
            bild.setDotsPerMeterY(qRound(punkte * 1000));
            bild.fill(Qt::white);
            QPainter maler(&bild);
            maler.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
            nachzeichnen(maler, seite, punkte);
            maler.end();
            bild.save(bildpfad(++nummer), "bmp");
        }
    }
    for (int seite = 1; seite <= kBilder; ++seite) {
        QFile::remove(bildpfad(seite));
    }
}
BENCHMARK(bildseiten_grundlage)->Unit(benchmark::kMillisecond);

/// The program with an invoice of so many pages.
class Vorschauprobe {
public:
    explicit Vorschauprobe(int seiten) {
        programm_.hauptfenster_zeigen();
        zeilen(form1(), seiten);
        QApplication::processEvents();
    }
    /// Opens the preview, until its first page is seen.
    QWidget* oeffnen() {
        form1().m_Vorschau.Click();
        QApplication::processEvents();
        for (QWidget* fenster : QApplication::topLevelWidgets()) {
            if (fenster->isVisible() && fenster->windowTitle() == QLatin1String("Druckvorschau")) {
                return fenster;
            }
        }
        return nullptr;
    }

private:
    Form1& form1() { return dynamic_cast<Form1&>(programm_.hauptfenster()); }

    Probenordner ordner_;
    QtPlatform plattform_;
    Programm programm_{plattform_.platform(), ordner_.ordner()};
};

void vorschau(benchmark::State& state, int seiten) {
    Vorschauprobe probe(seiten);
    for (auto _ : state) {
        QWidget* const fenster = probe.oeffnen();
        if (fenster == nullptr) {
            state.SkipWithError("no preview");
            break;
        }
        state.PauseTiming();
        fenster->close();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(vorschau, 1, 1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(vorschau, 50, 50)->Unit(benchmark::kMillisecond);

void blaettern(benchmark::State& state) {
    Vorschauprobe probe(50);
    const QWidget* const fenster = probe.oeffnen();
    auto* const weiter = fenster->findChild<QAbstractButton*>(QStringLiteral("cmd_ff"));
    auto* const zurueck = fenster->findChild<QAbstractButton*>(QStringLiteral("cmd_rr"));
    bool vor = true;
    for (auto _ : state) {
        (vor ? weiter : zurueck)->click();
        QApplication::processEvents();
        vor = !vor;
    }
}
BENCHMARK(blaettern)->Unit(benchmark::kMillisecond);

/// The whole process, the program without windows: from a stored invoice of 60 rows to its PDF file, which
/// the last of the commands save under the name queued before them.
void ganzer_prozess(benchmark::State& state, const std::string& davor, const std::string& speichern) {
    Pruefstand p;
    p.form1.Text_RNnr.Text = "17";
    p.form1.Text_Datum.Text = "23.11.2026";
    p.form1.Text_Kunde_1.Text = "Stadt Bonn";
    p.form1.Text_Kunde_2.Text = "Berliner Platz 2";
    p.form1.Text_Kunde_3.Text = "53111 Bonn";
    for (int i = 0; i < 60; ++i) {
        p.zeile("2", "Leistung Nummer " + std::to_string(i), "12,50");
    }
    p.speichern("probe.qk8");
    const Probenordner ordner;
    ordner.schreiben("e_rechnung.cfg",
                     "Name=Holz\r\nPLZ=50667\r\nOrt=Bonn\r\nLand=DE\r\nUSt-IdNr=DE136695976\r\n"
                     "Zahlungstage=14\r\nBefreiungsgrund=Kleinunternehmer\r\n");
    const std::string skript = "start " + ordner.ordner() + "\nfile " + p.ordner.pfad("probe.qk8") +
                               "\nclick form1.m_oeffnen\n" + davor + "file " + ordner.pfad("probe.pdf") +
                               "\nclick " + speichern + "\n";
    for (auto _ : state) {
        QProcess prozess;
        prozess.start(QApplication::applicationDirPath() + QStringLiteral("/quittika-skript"), {});
        prozess.write(skript.c_str());
        prozess.closeWriteChannel();
        if (!prozess.waitForFinished() || prozess.exitCode() != 0) {
            state.SkipWithError("the measured process failed");
        }
        state.PauseTiming();
        if (!QFile::remove(to_qt(ordner.pfad("probe.pdf")))) {
            state.SkipWithError("no PDF file");
        }
        state.ResumeTiming();
    }
}

void rechnung_als_pdf(benchmark::State& state) {
    ganzer_prozess(state, "", "form1.m_Rechnung_pdf_export");
}
BENCHMARK(rechnung_als_pdf)->Unit(benchmark::kMillisecond);

void rechnung_als_zugferd(benchmark::State& state) {
    ganzer_prozess(state, "click form1.m_ERechnung\n", "Form_ERechnung.Command_ZUGFeRD");
}
BENCHMARK(rechnung_als_zugferd)->Unit(benchmark::kMillisecond);

void texte_als_pdf(benchmark::State& state) {
    for (auto _ : state) {
        if (QProcess::execute(QApplication::applicationFilePath(), {QStringLiteral("--texte-als-pdf")}) !=
            0) {
            state.SkipWithError("the measured process failed");
        }
    }
    QFile::remove(QStringLiteral("/dev/shm/quittika-bench-texte.pdf"));
}
BENCHMARK(texte_als_pdf)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quittika
