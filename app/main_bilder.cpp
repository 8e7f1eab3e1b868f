// The pictures of the user's manual, taken from the program's own windows.
// Usage: quittika-bilder TARGET SOURCE...; the files of the source folders are what the program finds around
// it.

#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/datei.hpp"
#include "platform/qt/application.hpp"
#include "platform/qt/qt_platform.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/qt/widgets/theme.hpp"
#include "platform/qt/window_picture.hpp"

#include <QAbstractButton>
#include <QEventLoop>
#include <QFont>
#include <QLineEdit>
#include <QListView>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

using namespace quittika;
namespace fs = std::filesystem;

constexpr double kVergroesserung = 1.5; ///< for paper and for screens with small pixels

/// A day on which every picture is taken.
class Bilduhr final : public Clock {
public:
    Zeitpunkt now() const override { return {2008, 3, 5, 10, 20, 30}; }
};

QWidget* fenster(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String(name) && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

/// The part of that name in an open window.
template <class W> W& teil(const char* name_des_fensters, const char* name) {
    QWidget* offen = fenster(name_des_fensters);
    W* gefunden = offen == nullptr ? nullptr : offen->findChild<W*>(QString::fromUtf8(name));
    if (gefunden == nullptr) {
        throw std::runtime_error(std::string(name_des_fensters) + "." + name + " ist nicht zu sehen");
    }
    return *gefunden;
}

/// One picture: the program is brought there by `hinfuehren`, which may keep a modal window open.
struct Aufnahme {
    const char* datei;
    const char* fenster;
    void (*hinfuehren)(Form1&);
    void (*im_fenster)() = [] {};
};

void blatt(int seite) {
    fenster("frm_einstellungen")->findChild<QTabWidget*>()->setCurrentIndex(seite);
}

void oeffnen(Form1& form1, const char* rechnung) {
    form1.FilesDropped({(fs::current_path() / rechnung).string()});
}

const Aufnahme kAufnahmen[] = {
    {"leer", "form1", [](Form1&) {}},
    {"hauptfenster", "form1",
     [](Form1& f) {
         oeffnen(f, "Beispielrechnung.qk8");
         f.List_DARSTELLUNG.ListIndex = 0;
     }},
    {"kundenliste", "Form_Kundenverwaltung", [](Form1& f) { f.m_Kundenliste.Click(); },
     [] { teil<QLineEdit>("Form_Kundenverwaltung", "Text_suchen").setText("muster"); }},
    {"artikelliste", "Form_Artikelverwaltung", [](Form1& f) { f.m_Artikelliste.Click(); },
     [] { teil<QAbstractButton>("Form_Artikelverwaltung", "Command_neuerArtikel").click(); }},
    {"scanner", "Form_Etp_Barcode", [](Form1& f) { f.Cmd_Barcode.Click(); }},
    {"vorschau", "Form_Druckvorschau", [](Form1& f) { f.m_Vorschau.Click(); }},
    {"firmendaten", "frm_einstellungen", [](Form1& f) { f.m_Rechnungsdaten.Click(); }, [] { blatt(0); }},
    {"logo", "frm_einstellungen", [](Form1& f) { f.m_Rechnungsdaten.Click(); }, [] { blatt(4); }},
    {"layouts", "frm_einstellungen", [](Form1& f) { f.m_Rechnungsdaten.Click(); }, [] { blatt(6); }},
    {"justierung", "frm_einstellungen", [](Form1& f) { f.m_Rechnungsdaten.Click(); }, [] { blatt(9); }},
    {"programmeinstellungen", "frm_Programm", [](Form1& f) { f.m_Programmeinstellungen.Click(); }},
    {"designer", "FORM_DESIGNER", [](Form1& f) { f.m_startdesigner.Click(); }},
    {"umschlag", "Form2_Breiter_Brief", [](Form1& f) { f.m_druckenBRIEF.Click(); }},
};

/// Brings the program there, waits until the window is at rest, saves the picture and closes the window.
void aufnehmen(const Aufnahme& aufnahme, Form1& form1, const fs::path& ziel) {
    constexpr int kRuhe = 250; ///< milliseconds
    QEventLoop warten;
    QTimer::singleShot(0, &warten, [&] {
        try {
            aufnahme.hinfuehren(form1);
        } catch (const std::exception& fehler) {
            std::cerr << aufnahme.datei << ": " << fehler.what() << '\n';
        }
    });
    bool gelungen = false;
    QTimer::singleShot(kRuhe, &warten, [&] {
        QWidget* offen = fenster(aufnahme.fenster);
        if (offen != nullptr) {
            aufnahme.im_fenster();
            QTimer::singleShot(kRuhe, &warten, [&, offen] {
                const QImage bild = window_picture(*offen, kVergroesserung);
                gelungen = bild.save(path_to_qt((ziel / aufnahme.datei).string() + ".png"));
                if (offen->objectName() != "form1") {
                    offen->close();
                }
                warten.quit();
            });
            return;
        }
        warten.quit();
    });
    warten.exec();
    if (!gelungen) {
        throw std::runtime_error(std::string("Kein Bild ") + aufnahme.datei);
    }
}

/// A program folder of its own, with what ships and the sample lists in it.
void einrichten(const fs::path& ordner, const std::vector<fs::path>& quellen) {
    for (const fs::path& quelle : quellen) {
        fs::copy(quelle, ordner, fs::copy_options::recursive);
    }
    std::ofstream(ordner / "prgaufruf.lld") << "1\r\n"; // no start that asks something
    fs::current_path(ordner);
}

int alle_aufnehmen(const fs::path& ziel, const fs::path& ordner) {
    QtPlatform plattform;
    Platform teile = plattform.platform();
    Bilduhr uhr;
    Platform mit_uhr{teile.desktop,  teile.dialogs,  teile.shell,   uhr,
                     teile.printing, teile.progress, teile.pictures};
    Programm programm(mit_uhr, ordner.string());
    auto& form1 = dynamic_cast<Form1&>(programm.hauptfenster());
    int ergebnis = 0;
    QTimer::singleShot(0, [&] {
        try {
            for (const Aufnahme& aufnahme : kAufnahmen) {
                aufnehmen(aufnahme, form1, ziel);
            }
        } catch (const std::exception& fehler) {
            std::cerr << fehler.what() << '\n';
            ergebnis = 1;
        }
        plattform.desktop().end();
    });
    plattform.desktop().run([&programm] { programm.hauptfenster_zeigen(); });
    return ergebnis;
}

/// A screen that every window has room on.
void bildschirm_beschreiben(const fs::path& datei) {
    std::ofstream(datei) << R"({"screens": [{"name": "Bild", "x": 0, "y": 0, "width": 1920, "height": 1200,
        "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
    qputenv("QT_QPA_PLATFORM", QByteArray("offscreen:configfile=") + datei.c_str());
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "quittika-bilder ZIEL QUELLE...\n";
        return 2;
    }
    dateigroesse_als_fehler();
    const QTemporaryDir arbeit;
    const fs::path bildschirm = fs::path(arbeit.path().toStdString()) / "bildschirm.json";
    const fs::path ordner = fs::path(arbeit.path().toStdString()) / "quittika";
    const fs::path ziel = fs::absolute(argv[1]);
    std::vector<fs::path> quellen;
    for (int i = 2; i < argc; ++i) {
        quellen.push_back(fs::absolute(argv[i]));
    }
    fs::create_directories(ziel);
    fs::create_directories(ordner);
    bildschirm_beschreiben(bildschirm);
    const QtApplication anwendung(argc, argv);
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 10));
    theme::apply(*qApp);
    einrichten(ordner, quellen);
    return alle_aufnehmen(ziel, ordner);
}
