#include "app/programm.hpp"
#include "platform/datei.hpp"
#include "platform/qt/chart_sheet.hpp"
#include "platform/qt/paint_tools.hpp"
#include "platform/qt/print_page.hpp"
#include "platform/qt/print_pdf.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/script/runner.hpp"

#include <QApplication>

#include <iostream>

namespace {

using namespace quittika;

std::shared_ptr<void> programm_starten(Platform platform, const std::string& ordner) {
    auto programm = std::make_shared<Programm>(platform, ordner);
    programm->starten();
    return programm;
}

void pdf_schreiben(PaintTools& werkzeug, const std::string& pfad, const RecordedJobs& auftraege) {
    QtPdfDevice geraet(werkzeug, path_to_qt(pfad), auftraege.front()->document);
    for (const auto& auftrag : auftraege) {
        if (auftrag != auftraege.front()) {
            geraet.new_page(auftrag->document.paper);
        }
        replay(*auftrag, geraet);
    }
    geraet.end_document();
}

std::string archivieren(PaintTools& werkzeug, const RecordedJob& auftrag) {
    std::string bytes;
    QtPdfDevice geraet(werkzeug, auftrag.document, [&bytes](std::string pdf) { bytes = std::move(pdf); });
    replay(auftrag, geraet);
    geraet.end_document();
    return bytes;
}

} // namespace

int main(int argc, char** argv) {
    dateigroesse_als_fehler();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication anwendung(argc, argv);
    PaintTools werkzeug;
    const RealPrinting ausgabe{
        [&werkzeug](const std::string& pfad, const RecordedJobs& auftraege) {
            pdf_schreiben(werkzeug, pfad, auftraege);
        },
        [&werkzeug](const RecordedJob& auftrag) { return archivieren(werkzeug, auftrag); },
        [&werkzeug](const DrawnPage& seite, const std::string& pfad, int dpi) {
            save_page(seite, pfad, dpi, werkzeug);
        },
        save_charts};
    Runner runner({programm_starten, werkzeug.metrics, ausgabe, &werkzeug.pictures}, std::cin, std::cout);
    return runner.run();
}
