#include "app/programm.hpp"
#include "benchmarks/verhaeltnisse.hpp"
#include "platform/qt/application.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <QMainWindow>

#include <iostream>
#include <string_view>

namespace {

using namespace quittika;

const std::vector<Vergleich> kVergleiche{
    {"recalculating 1,000 rows : parsing 1,000 numbers", "rechnen", "rechnen_grundlage", 10},
    {"saving and opening 1,000 rows : the same bytes by lines", "datei", "datei_grundlage", 4},
    {"writing and reading the settings : the same bytes by lines", "einstellungen", "einstellungen_grundlage",
     3},
    {"one more row on a list of 1,000, window included", "eine_zeile_mehr/1000", "", 16},
    {"one more row on a list of 5,000, window included", "eine_zeile_mehr/5000", "", 16},
    {"a page of PDF : the same calls on the PDF writer", "pdf_seite", "pdf_seite_grundlage", 1.5},
    {"start to main window : an empty window", "start", "start_grundlage", 3},
};

/// What an application with nothing in it needs.
int leeres_fenster(int argc, char** argv) {
    const QApplication anwendung(argc, argv);
    QMainWindow fenster;
    fenster.resize(1360, 860);
    fenster.show();
    QApplication::processEvents();
    return 0;
}

int ganzes_programm(int argc, char** argv) {
    const QtApplication anwendung(argc, argv);
    const Probenordner ordner;
    QtPlatform plattform;
    Programm programm(plattform.platform(), ordner.ordner());
    programm.hauptfenster_zeigen();
    QApplication::processEvents();
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::string_view erstes = argc > 1 ? argv[1] : "";
    if (erstes == "--start-leer") {
        return leeres_fenster(argc, argv);
    }
    if (erstes == "--start-programm") {
        return ganzes_programm(argc, argv);
    }
    benchmark::Initialize(&argc, argv);
    const QtApplication anwendung(argc, argv);
    Verhaeltnistabelle tabelle;
    benchmark::RunSpecifiedBenchmarks(&tabelle);
    tabelle.drucken(std::cout, kVergleiche);
    return 0;
}
