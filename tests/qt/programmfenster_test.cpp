#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

bool ist_dialog(const QWidget* fenster) {
    return fenster != nullptr && fenster->objectName() == "frm_Programm";
}

QWidget& dialogfenster() {
    const QWidgetList fenster = QApplication::topLevelWidgets();
    return **std::find_if(fenster.begin(), fenster.end(), ist_dialog);
}

struct Schritt {
    std::function<bool()> bereit;
    std::function<void()> tun;
};

/// Does one after the other as soon as it can be done, in whatever event loop a box has opened by then.
void nacheinander(const std::vector<Schritt>& schritte, std::size_t naechster = 0) {
    QTimer::singleShot(5, [&schritte, naechster] {
        if (naechster < schritte.size()) {
            const Schritt& schritt = schritte[naechster];
            const bool bereit = schritt.bereit();
            nacheinander(schritte, naechster + (bereit ? 1 : 0));
            if (bereit) {
                schritt.tun();
            }
        }
    });
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
    const auto immer = [] { return true; };
    const auto dialog_offen = [] { return ist_dialog(QApplication::activeWindow()); };
    const auto dialog_zu = [&] { return QApplication::activeWindow() == plattform.desktop().window(f); };
    const auto im_dialog = [] {
        const QWidget* eingabe = QApplication::focusWidget();
        return eingabe != nullptr && ist_dialog(eingabe->window());
    };
    const auto frage_offen = [] {
        const QWidget* box = QApplication::activeModalWidget();
        return box != nullptr && box->isActiveWindow();
    };
    const std::vector<Schritt> schritte = {
        {dialog_zu, [&] { f.m_Programmeinstellungen.Click(); }},
        {dialog_offen, [] { QTest::keyClick(&dialogfenster(), Qt::Key_S, Qt::AltModifier); }},
        {im_dialog, [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down); }},
        {immer, [&] { grund = plattform.desktop().window(f)->palette().color(QPalette::Window); }},
        {dialog_offen, [] { QTest::keyClick(&dialogfenster(), Qt::Key_Escape); }},
        {dialog_zu,
         [&] {
             f.Text_Kunde_1.Text = "Kaiser"; // unsaved: nobody is asked
             f.m_Programmeinstellungen.Click();
         }},
        {dialog_offen, [] { dialogfenster().findChild<QAbstractButton*>("Command_delreg")->click(); }},
        {frage_offen,
         [&] {
             QWidget& box = *QApplication::activeModalWidget();
             frage = box.findChild<QLabel*>("qt_msgbox_label")->text().toStdString();
             QTest::keyClick(&box, Qt::Key_Return);
         }},
    };
    nacheinander(schritte);
    plattform.desktop().run([&programm] { programm.hauptfenster_zeigen(); });
    EXPECT_EQ(grund, QColor(0x5B, 0x78, 0x97)) << "the first of the seven";
    EXPECT_EQ(frage, "Das Programm wird nun zurückgesetzt und beendet.");
    EXPECT_EQ(ordner.lesen("prog_n.cfg"), "");
    EXPECT_EQ(ordner.lesen("prog_WS.cfg") + ordner.lesen("RN.txt"), "7\r\n7\r\n");
}

} // namespace
} // namespace quittika::test
