#include "tests/qt/program_test.hpp"

#include <QComboBox>
#include <QTimer>

namespace quittika::test {
namespace {

using Fassungsfenster = ProgramTest;

TEST_F(Fassungsfenster, ZeigtVergleichtUndOeffnet) {
    zeile("1", "Stuhl", "19,90");
    // the draft, as soon as the user turns to another program
    emit qApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_NE(ordner.lesen("Sicherung/entwurf.qk8").find("Stuhl"), std::string::npos);

    std::filesystem::create_directory(ordner.pfad("Sicherung/Probe 00000000"));
    ordner.schreiben("Sicherung/Probe 00000000/Herkunft.txt", "/tmp/Probe.qk8\r\n");
    std::filesystem::copy_file(ordner.pfad("Sicherung/entwurf.qk8"),
                               ordner.pfad("Sicherung/Probe 00000000/2008-03-05 10-20-30-000 00000000.qk8"));
    zeile("1", "Tisch", "19,90");
    bool gesehen = false;
    QTimer::singleShot(300, [&] {
        fenster = QApplication::activeModalWidget();
        ASSERT_NE(fenster, nullptr);
        gesehen = true;
        EXPECT_EQ(feld<QComboBox>("Combo_Datei")->currentText(), "Probe.qk8");
        EXPECT_TRUE(feld("Picture1")->isVisible());
        QTest::keyClick(fenster, Qt::Key_Escape);
    });
    f().m_Fassungen.Click();
    EXPECT_TRUE(gesehen);
    EXPECT_EQ(f().List_Leistung.ListCount(), 2);
}

} // namespace
} // namespace quittika::test
