#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <QTimer>

namespace quittika::test {

namespace {

TEST(Fassungsfenster, ZeigtVergleichtUndOeffnet) {
    Probenordner ordner;
    QtPlatform plattform;
    Programm programm{plattform.platform(), ordner.ordner()};
    programm.hauptfenster_zeigen();
    Form1& f = dynamic_cast<Form1&>(programm.hauptfenster());
    const auto zeile = [&f](const char* text) {
        f.Text_Menge.Text = "1";
        f.Text_leistung.Text = text;
        f.Text_preis.Text = "19,90";
        f.Cmd_Add_To_list.Click();
    };
    zeile("Stuhl");
    // the draft, as soon as the user turns to another program
    emit qApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_TRUE(std::filesystem::exists(ordner.pfad("Sicherung/entwurf.qk8")));
    EXPECT_NE(ordner.lesen("Sicherung/entwurf.qk8").find("Stuhl"), std::string::npos);

    std::filesystem::create_directory(ordner.pfad("Sicherung/Probe 00000000"));
    ordner.schreiben("Sicherung/Probe 00000000/Herkunft.txt", "/tmp/Probe.qk8\r\n");
    std::filesystem::copy_file(ordner.pfad("Sicherung/entwurf.qk8"),
                               ordner.pfad("Sicherung/Probe 00000000/2008-03-05 10-20-30-000 00000000.qk8"));
    zeile("Tisch");
    f.Text_Kunde_1.Text = "Jetzt";
    bool gesehen = false;
    QTimer::singleShot(300, [&] {
        QWidget* fenster = QApplication::activeModalWidget();
        ASSERT_NE(fenster, nullptr);
        gesehen = true;
        EXPECT_EQ(fenster->findChild<QComboBox*>("Combo_Datei")->currentText(), "Probe.qk8");
        EXPECT_FALSE(fenster->findChild<QLabel*>("Picture1")->grab().toImage().isNull());
        EXPECT_TRUE(fenster->findChild<QLabel*>("Picture1")->isVisible());
        QTest::keyClick(fenster, Qt::Key_Escape);
    });
    f.m_Fassungen.Click();
    EXPECT_TRUE(gesehen);
    EXPECT_EQ(f.List_Leistung.ListCount(), 2);
}

} // namespace

} // namespace quittika::test
