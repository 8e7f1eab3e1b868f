#include "tests/qt/program_test.hpp"

#include <QAbstractButton>

namespace quittika::test {
namespace {

using Programmfenster = ProgramTest;

TEST_F(Programmfenster, TastenProbierenEinenStilUndDerResetBeendetSofort) {
    for (const char* datei : {"prog_n.cfg", "prog_WS.cfg", "RN.txt"}) {
        ordner.schreiben(datei, "7\r\n");
    }
    const auto oeffnen = [this] {
        f().m_Programmeinstellungen.Click();
        ASSERT_NE(zeigen("frm_Programm"), nullptr);
    };
    oeffnen();
    QTest::keyClick(fenster, Qt::Key_S, Qt::AltModifier);
    taste(Qt::Key_Down);
    EXPECT_EQ(plattform.desktop().window(f())->palette().color(QPalette::Window), QColor(0x5B, 0x78, 0x97))
        << "the first of the seven";
    QTest::keyClick(fenster, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return zeigen("frm_Programm") == nullptr; }));
    f().Text_Kunde_1.Text = "Kaiser"; // unsaved: nobody is asked
    plattform.desktop().run([&] {
        oeffnen();
        antworten(QMessageBox::Ok);
        feld<QAbstractButton>("Command_delreg")->click();
    });
    EXPECT_EQ(frage, "Das Programm wird nun zurückgesetzt und beendet.");
    EXPECT_EQ(ordner.lesen("prog_n.cfg"), "");
    EXPECT_EQ(ordner.lesen("prog_WS.cfg") + ordner.lesen("RN.txt"), "7\r\n7\r\n");
}

} // namespace
} // namespace quittika::test
