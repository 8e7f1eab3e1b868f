#include "app/programm.hpp"
#include "benchmarks/verhaeltnisse.hpp"
#include "platform/qt/application.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <QGuiApplication>
#include <QMainWindow>
#include <QPainter>
#include <QPdfWriter>

#include <iostream>
#include <string_view>

namespace {

using namespace quittika;

const std::vector<Vergleich> kVergleiche{
    {"recalculating 1,000 rows : parsing 1,000 numbers", "rechnen", "rechnen_grundlage", 10},
    {"saving and opening 1,000 rows : the same bytes by lines", "datei", "datei_grundlage", 4},
    {"writing and reading the settings : the same bytes by lines", "einstellungen", "einstellungen_grundlage",
     3},
    {"the page beside the settings, with 1,000 rows", "muster/1000", "", 16},
    {"one more row on a list of 1,000, window included", "eine_zeile_mehr/1000", "", 16},
    {"taking back a row of 1,000 and doing it again, window included", "zeile_zurueck/1000", "", 32},
    {"one more row on a list of 5,000, window included", "eine_zeile_mehr/5000", "", 16},
    {"a scan to its row, 12,000 articles, 1,000 rows, window included", "scan/12000", "", 16},
    {"the same : with 10 articles", "scan/12000", "scan/10", 2},
    {"reading 12,000 articles : their lines", "artikel_lesen", "artikel_lesen_grundlage", 3},
    {"100 pages of PDF : the same calls on the PDF writer", "pdf_seiten", "pdf_seiten_grundlage", 1.3},
    {"10 pages of pictures : the same calls on images", "bildseiten", "bildseiten_grundlage", 1.3},
    {"preview of 1 page to its first page", "vorschau/1", "", 100},
    {"preview of 50 pages to its first page", "vorschau/50", "", 100},
    {"turning to another of 50 pages", "blaettern", "", 50},
    {"opening the list of 7,000 customers", "kundenliste_oeffnen", "", 150},
    {"opening the list of 12,000 articles", "artikelliste_oeffnen", "", 150},
    {"deleting one of 7,000 customers", "kunde_loeschen", "", 100},
    {"deleting one of 12,000 articles", "artikel_loeschen", "", 100},
    {"searching 7,000 customers", "kunde_suchen", "", 16},
    {"invoice of 60 rows to PDF, cold : as many texts", "rechnung_als_pdf", "texte_als_pdf", 2},
    {"the same as ZUGFeRD : as plain PDF", "rechnung_als_zugferd", "rechnung_als_pdf", 2},
    {"opening the invoice settings for the first time", "einstellungen_oeffnen", "", 150},
    {"the same : an empty window", "einstellungen_oeffnen", "leerer_dialog", 200},
    {"opening them again", "einstellungen_wieder", "", 30},
    {"the same : an empty window", "einstellungen_wieder", "leerer_dialog", 60},
    {"a letter typed into them", "einstellungen_taste", "", 16},
    {"opening the designer", "designer_oeffnen", "", 200},
    {"a mouse move in the designer, all help lines on", "designer_mausbewegung", "", 4},
    {"the same : an empty widget and four lines on that page", "designer_mausbewegung",
     "leeres_widget_bewegen", 3},
    {"analysing 10,000 invoices, window included : reading the same files", "analyse/10000",
     "analyse_grundlage", 2},
    {"the same : 100 invoices, per invoice 1", "analyse/10000", "analyse/100", 100},
    {"marking another of 10,000 invoices", "rechnung_markieren", "", 16},
    {"start to main window : an empty window", "start", "start_grundlage", 3},
    {"start with 10,000 versions : with none", "start_im_ordner/mit_10000_fassungen", "start_im_ordner/leer",
     1.1},
    {"saving with versions : without", "speichern/mit_fassungen", "speichern/ohne", 1.3},
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

/// What an application needs that draws the texts of an invoice of 60 rows.
int texte_als_pdf(int argc, char** argv) {
    const QGuiApplication anwendung(argc, argv);
    QPdfWriter schreiber(QStringLiteral("/dev/shm/quittika-bench-texte.pdf"));
    schreiber.setPageSize(QPageSize(QPageSize::A4));
    QPainter maler(&schreiber);
    constexpr int kTexte = 400;
    constexpr int kZeilenabstand = 200;
    for (int i = 0; i < kTexte; ++i) {
        maler.drawText(0, kZeilenabstand * (i % 60), QStringLiteral("Leistung Nummer %1").arg(i));
    }
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
    if (erstes == "--texte-als-pdf") {
        return texte_als_pdf(argc, argv);
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
