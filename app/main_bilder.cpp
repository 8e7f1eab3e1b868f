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
#include "platform/script/script_dialogs.hpp"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QEventLoop>
#include <QFont>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
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
    const char* ausschnitt = nullptr; ///< the part of the window that is wanted; all of it without
};

void druecken(const char* fenster, const char* knopf) {
    teil<QAbstractButton>(fenster, knopf).click();
}

void tippen(const char* fenster, const char* feld, const char* text) {
    teil<QLineEdit>(fenster, feld).setText(QString::fromUtf8(text));
}

/// A text of some lines in a window that is no bigger than it needs.
void schreiben(const char* name_des_fensters, const char* feld, const char* text) {
    fenster(name_des_fensters)->resize(420, 230);
    auto& eingabe = teil<QPlainTextEdit>(name_des_fensters, feld);
    eingabe.setPlainText(QString::fromUtf8(text));
    eingabe.moveCursor(QTextCursor::End);
}

void taste(int code, const QString& text) {
    QKeyEvent druck(QEvent::KeyPress, code, Qt::NoModifier, text);
    QApplication::sendEvent(QApplication::focusWidget(), &druck);
}

void scannen(const char* code) {
    for (const char* zeichen = code; *zeichen != 0; ++zeichen) {
        taste(*zeichen, QString(QLatin1Char(*zeichen)));
    }
    taste(Qt::Key_Return, QStringLiteral("\r"));
}

/// A page of the invoice settings.
void blatt(int seite) {
    QWidget* einstellungen = fenster("frm_einstellungen");
    einstellungen->resize(1024, 560);
    einstellungen->findChild<QTabWidget*>()->setCurrentIndex(seite);
}

void oeffnen(Form1& form1, const char* rechnung) {
    form1.FilesDropped({(fs::current_path() / rechnung).string()});
    form1.Label_Pfad.Caption = std::string("Rechnungen 2008/") + rechnung;
}

void zeile_eintippen(Form1& form1) {
    form1.Text_Menge.Text = "3";
    form1.Text_leistung.Text = "Haken, verzinkt";
    form1.Text_preis.Text = "1,25";
}

/// The sample invoices, sorted by their dates; which page stands below them.
void analysieren(int seite) {
    constexpr const char* kAnalyzer = "Form_Analyzer";
    fenster(kAnalyzer)->resize(1180, 760);
    druecken(kAnalyzer, "CMD_START_ANALYSE");
    druecken(kAnalyzer, "CMD_Sortieren(0)");
    QApplication::processEvents(); // a list follows when its window is idle
    teil<QAbstractItemView>(kAnalyzer, "List_ANSICHT").setFocus();
    for (const int code : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down}) {
        taste(code, {});
    }
    teil<QTabWidget>(kAnalyzer, "SSTab_Ergebnis").setCurrentIndex(seite);
}

/// A picture more is a row here, and its name in the text of the manual.
const Aufnahme kAufnahmen[] = {
    {"hauptfenster", "form1", [](Form1& f) { oeffnen(f, "Beispielrechnung.qk8"); },
     [] { fenster("form1")->resize(1360, 760); }},
    {"kunde", "form1", [](Form1&) {}, [] {}, "Frame_Kundendaten"},
    {"mehrwertsteuer", "form1", [](Form1&) {}, [] {}, "Frame6"},
    {"positionen", "form1", zeile_eintippen, [] { fenster("form1")->resize(1180, 716); }, "Frame_ADDs"},
    {"firmendaten", "frm_einstellungen", [](Form1& f) { f.m_Rechnungsdaten.Click(); }, [] { blatt(0); }},
    {"logo", "frm_einstellungen", [](Form1& f) { f.m_Rechnungsdaten.Click(); }, [] { blatt(4); }},
    {"layouts", "frm_einstellungen", [](Form1& f) { f.m_Rechnungsdaten.Click(); }, [] { blatt(6); }},
    {"justierung", "frm_einstellungen", [](Form1& f) { f.m_druckjustierung.Click(); }, [] {}, "SSTab1"},
    {"designer", "FORM_DESIGNER", [](Form1& f) { f.m_startdesigner.Click(); }},
    {"kundenliste", "Form_Kundenverwaltung", [](Form1& f) { f.m_Kundenliste.Click(); },
     [] { fenster("Form_Kundenverwaltung")->resize(940, 360); }},
    {"artikelliste", "Form_Artikelverwaltung", [](Form1& f) { f.m_Artikelliste.Click(); },
     [] {
         fenster("Form_Artikelverwaltung")->resize(1000, 460);
         druecken("Form_Artikelverwaltung", "Command_neuerArtikel");
         tippen("Form_Artikelverwaltung", "Text_leistung", "Regalboden Eiche, 80 x 30 cm");
         tippen("Form_Artikelverwaltung", "Text_preis", "24,90");
     }},
    {"vorschau", "Form_Druckvorschau", [](Form1& f) { f.m_Vorschau.Click(); }},
    {"blatt", "Form_Druckvorschau", [](Form1& f) { f.m_Vorschau.Click(); },
     [] {
         fenster("Form_Druckvorschau")->resize(660, 960);
         druecken("Form_Druckvorschau", "Command_Seite");
     }},
    {"e-rechnung", "Form_ERechnung", [](Form1& f) { f.m_ERechnung.Click(); },
     [] {
         tippen("Form_ERechnung", "Text_Verkaeufer_Name", "Tischlerei Hölzer");
         tippen("Form_ERechnung", "Text_Verkaeufer_Strasse", "Sägeweg 7");
         tippen("Form_ERechnung", "Text_Verkaeufer_PLZ", "50667");
         tippen("Form_ERechnung", "Text_Verkaeufer_Ort", "Köln");
         tippen("Form_ERechnung", "Text_Verkaeufer_USt_IdNr", "DE136695976");
         tippen("Form_ERechnung", "Text_Verkaeufer_Telefon", "0221 4711");
         tippen("Form_ERechnung", "Text_Zahlungstage", "14");
         fenster("Form_ERechnung")->resize(820, 620);
     }},
    {"lieferschein", "Form_Lieferschein_opt",
     [](Form1& f) {
         f.Option_LIEFERSCHEIN.Value = true;
         f.m_Rechnung_pdf_export.Click();
     },
     [] {}},
    {"umschlag", "Form2_Breiter_Brief", [](Form1& f) { f.m_druckenBRIEF.Click(); }},
    {"scanner", "Form_Etp_Barcode", [](Form1& f) { f.Cmd_Barcode.Click(); },
     [] { scannen("4006381333931"); }},
    {"programmeinstellungen", "frm_Programm", [](Form1& f) { f.m_Programmeinstellungen.Click(); }},
    {"analyzer", "Form_Analyzer", [](Form1& f) { f.m_start_analyzer.Click(); }, [] { analysieren(0); }},
    {"diagramm", "Form_Analyzer", [](Form1& f) { f.m_start_analyzer.Click(); }, [] { analysieren(1); },
     "SSTab_Ergebnis"},
    {"textvorlagen", "Form_txt_Vorlagen", [](Form1& f) { f.Cmd_Vorlagen.Click(); }},
    {"helfer", "Form_Helferlein", [](Form1& f) { f.CMD_FORM_HELFERLEIN.Click(); },
     [] {
         schreiben("Form_Helferlein", "Text_Eingabe",
                   "Eva Lindner\nBachweg 21\n12345 Musterstadt\nTel.: 01234/778899");
     }},
    {"notiz", "Form_Notiz", [](Form1& f) { f.Cmd_Notiz.Click(); },
     [] { schreiben("Form_Notiz", "Text_Notiz", "Ruft am Freitag wieder an."); }},
};

QImage ausschneiden(QWidget& offen, const char* name) {
    constexpr int kRand = 4;
    QImage ganz = window_picture(offen, kVergroesserung);
    if (name == nullptr) {
        return ganz;
    }
    const auto& ausschnitt = teil<QWidget>(qPrintable(offen.objectName()), name);
    const QRect platz = QRect(ausschnitt.mapTo(&offen, QPoint()), ausschnitt.size())
                            .marginsAdded({kRand, kRand, kRand, kRand}) &
                        offen.rect();
    ganz.setDevicePixelRatio(1);
    return ganz.copy(QRect(platz.topLeft() * kVergroesserung, platz.size() * kVergroesserung));
}

/// Takes the pictures, one after the other.
class Fotograf {
public:
    Fotograf(Form1& form1, fs::path ziel) : form1_(form1), ziel_(std::move(ziel)) {
        constexpr int kTakt = 100; ///< milliseconds
        takt_.setInterval(kTakt);
        QObject::connect(&takt_, &QTimer::timeout, [this] { hinsehen(); });
    }

    /// Brings the program there, waits until two looks at the window see the same, saves that and closes the
    /// window. Returns whether there is a picture.
    bool aufnehmen(const Aufnahme& aufnahme) {
        aufnahme_ = &aufnahme;
        zuletzt_ = QImage();
        blicke_ = 0;
        gelungen_ = false;
        takt_.start();
        QTimer::singleShot(0, &takt_, [this] { aufnahme_->hinfuehren(form1_); });
        warten_.exec();
        takt_.stop();
        return gelungen_;
    }

private:
    void hinsehen() {
        constexpr int kGeduld = 50; ///< looks
        QWidget* offen = fenster(aufnahme_->fenster);
        if (++blicke_ > kGeduld) {
            warten_.quit();
        } else if (offen != nullptr && zuletzt_.isNull()) {
            aufnahme_->im_fenster();
            zuletzt_ = ausschneiden(*offen, aufnahme_->ausschnitt);
        } else if (offen != nullptr) {
            const QImage bild = ausschneiden(*offen, aufnahme_->ausschnitt);
            if (bild == std::exchange(zuletzt_, bild)) {
                fertig(*offen);
            }
        }
    }

    void fertig(QWidget& offen) {
        gelungen_ = zuletzt_.save(path_to_qt((ziel_ / aufnahme_->datei).string() + ".png"));
        if (offen.objectName() != form1_.name().c_str()) {
            offen.close();
        }
        warten_.quit();
    }

    Form1& form1_;
    fs::path ziel_;
    QTimer takt_;
    QEventLoop warten_;
    const Aufnahme* aufnahme_ = nullptr;
    QImage zuletzt_;
    int blicke_ = 0;
    bool gelungen_ = false;
};

/// A program folder of its own, with what ships and the sample lists in it.
void einrichten(const fs::path& ordner, const std::vector<fs::path>& quellen) {
    for (const fs::path& quelle : quellen) {
        fs::copy(quelle, ordner, fs::copy_options::recursive);
    }
    std::ofstream(ordner / "prgaufruf.lld") << "1\r\n";
    std::ofstream(ordner / "RN.txt") << "18\r\n";
    std::ofstream(ordner / "analyse_quelle.txt") << "Rechnungen 2008\r\n";
    fs::current_path(ordner);
}

int alle_aufnehmen(const fs::path& ziel, const fs::path& ordner) {
    QtPlatform plattform;
    Platform teile = plattform.platform();
    Bilduhr uhr;
    ScriptDialogs stumm; // no question stops the work
    Platform mit_uhr{teile.desktop, stumm, teile.shell, uhr, teile.printing, teile.progress, teile.pictures};
    Programm programm(mit_uhr, ordner.string());
    auto& form1 = dynamic_cast<Form1&>(programm.hauptfenster());
    Fotograf fotograf(form1, ziel);
    int fehlend = 0;
    QTimer::singleShot(0, [&] {
        for (const Aufnahme& aufnahme : kAufnahmen) {
            if (!fotograf.aufnehmen(aufnahme)) {
                std::cerr << "Kein Bild: " << aufnahme.datei << '\n';
                ++fehlend;
            }
        }
        plattform.desktop().end();
    });
    plattform.desktop().run([&programm] { programm.hauptfenster_zeigen(); });
    return fehlend == 0 ? 0 : 1;
}

/// A screen that every window has room on.
void bildschirm_beschreiben(const fs::path& datei) {
    std::ofstream(datei) << R"({"screens": [{"name": "Bild", "x": 0, "y": 0, "width": 1920, "height": 1200,
        "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
    qputenv("QT_LOGGING_RULES", "default.warning=false"); // about what such a screen cannot do
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
    QApplication::setCursorFlashTime(0);
    theme::apply(*qApp);
    einrichten(ordner, quellen);
    return alle_aufnehmen(ziel, ordner);
}
