#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

QWidget& dialogfenster() {
    const QWidgetList fenster = QApplication::topLevelWidgets();
    const auto gefunden = std::find_if(fenster.begin(), fenster.end(), [](const QWidget* eines) {
        return eines->objectName() == "frm_Programm";
    });
    return **gefunden;
}

/// Does this in every event loop that a box opens, one after the other.
void nacheinander(const std::vector<std::function<void()>>& schritte) {
    for (std::size_t i = 0; i < schritte.size(); ++i) {
        QTimer::singleShot(30 * static_cast<int>(i + 1), schritte[i]);
    }
}

TEST(Programmfenster, TastenProbierenEinenStilUndDerResetBeendetSofort) {
    const Probenordner ordner;
    for (const char* datei : {"prog_n.cfg", "prog_WS.cfg", "RN.txt"}) {
        ordner.schreiben(datei, "7\r\n");
    }
    QtPlatform plattform;
    Programm programm{plattform.platform(), ordner.ordner()};
    auto& f = dynamic_cast<Form1&>(programm.hauptfenster());
    QColor grund;
    std::string frage;
    nacheinander({[&] { f.m_Programmeinstellungen.Click(); },
                  [] { QTest::keyClick(&dialogfenster(), Qt::Key_S, Qt::AltModifier); },
                  [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down); },
                  [&] { grund = plattform.desktop().window(f)->palette().color(QPalette::Window); },
                  [] { QTest::keyClick(&dialogfenster(), Qt::Key_Escape); },
                  [&] {
                      f.Text_Kunde_1.Text = "Kaiser"; // unsaved: nobody is asked
                      f.m_Programmeinstellungen.Click();
                  },
                  [] { dialogfenster().findChild<QAbstractButton*>("Command_delreg")->click(); },
                  [&] {
                      QWidget& box = *QApplication::activeModalWidget();
                      frage = box.findChild<QLabel*>("qt_msgbox_label")->text().toStdString();
                      QTest::keyClick(&box, Qt::Key_Return);
                  }});
    plattform.desktop().run([&programm] { programm.hauptfenster_zeigen(); });
    EXPECT_EQ(grund, QColor(0x5B, 0x78, 0x97)) << "the first of the seven";
    EXPECT_EQ(frage, "Das Programm wird nun zurückgesetzt und beendet.");
    EXPECT_EQ(ordner.lesen("prog_n.cfg"), "");
    EXPECT_EQ(ordner.lesen("prog_WS.cfg") + ordner.lesen("RN.txt"), "7\r\n7\r\n");
}

} // namespace
} // namespace quittika::test
