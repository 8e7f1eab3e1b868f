#include "app/programm.hpp"
#include "platform/datei.hpp"
#include "platform/qt/print_metrics.hpp"
#include "platform/qt/print_pdf.hpp"
#include "platform/script/runner.hpp"

#include <QGuiApplication>
#include <QImageReader>

#include <iostream>

namespace {

using namespace quittika;

std::shared_ptr<void> programm_starten(Platform platform, const std::string& ordner) {
    auto programm = std::make_shared<Programm>(platform, ordner);
    programm->starten();
    return programm;
}

bool bild_lesbar(const std::string& pfad) {
    return QImageReader(QString::fromStdString(pfad)).canRead();
}

} // namespace

int main(int argc, char** argv) {
    dateigroesse_als_fehler();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication anwendung(argc, argv);
    const QtFontMetrics schriften;
    Runner runner(
        {programm_starten, schriften,
         [&schriften](const std::string& pfad, const std::string& titel) -> std::unique_ptr<PrintDevice> {
             return std::make_unique<QtPdfDevice>(schriften, QString::fromStdString(pfad), titel);
         },
         bild_lesbar},
        std::cin, std::cout);
    return runner.run();
}
