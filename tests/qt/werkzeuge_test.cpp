#include "invoice/rechnungszustand.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "tools/helferlein.hpp"
#include "tools/notiz.hpp"

#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QTest>

namespace quittika::test {
namespace {

QPlainTextEdit* feld(QtDesktop& desktop, Form& form, const char* name) {
    QWidget* fenster = desktop.window(form);
    EXPECT_TRUE(QTest::qWaitForWindowActive(fenster));
    return fenster->findChild<QPlainTextEdit*>(QLatin1String(name));
}

/// The sample is marked when the window opens, so that typing replaces it; a click takes it away, and the
/// field keeps the keyboard.
TEST(Helferfenster, DasMusterWeichtDemErstenKlickUndDemTippen) {
    for (const bool klick : {true, false}) {
        Form1 form1;
        QtDesktop desktop;
        Form_Helferlein form;
        const Helferlein helferlein(
            form, {&form1.Text_Kunde_1, &form1.Text_Kunde_2, &form1.Text_Kunde_3, &form1.Text_Kunde_4});
        desktop.adopt(form);
        form.Show();
        QPlainTextEdit* eingabe = feld(desktop, form, "Text_Eingabe");
        ASSERT_TRUE(eingabe->hasFocus());
        if (klick) {
            QTest::mouseClick(eingabe->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
            EXPECT_EQ(eingabe->toPlainText(), "");
        }
        ASSERT_TRUE(eingabe->hasFocus());
        QTest::keyClicks(eingabe, "Eva");
        QTest::keyClick(eingabe, Qt::Key_Return);
        QTest::keyClicks(eingabe, "Markt 1");
        QTest::mouseClick(eingabe->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
        EXPECT_EQ(form.Text_Eingabe.Text(), "Eva\r\nMarkt 1");
        QTest::keyClick(eingabe, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitFor([&form] { return !form.shown(); })) << "the key presses the button";
        EXPECT_EQ(form1.Text_Kunde_1.Text() + "|" + form1.Text_Kunde_2.Text(), "Eva|Markt 1");
        EXPECT_EQ(form1.Text_Kunde_3.Text(), "");
    }
}

/// What is typed goes into the invoice at once and leaves the cursor alone.
TEST(Notizfenster, SchreibtBeimTippenUndLaesstDieMarkeStehen) {
    Form1 form1;
    Rechnungszustand zustand;
    zustand.Notiztext = "eins#$§$#zwei";
    QtDesktop desktop;
    Form_Notiz form;
    Notiz notiz(form, form1, zustand);
    form1.Text_Notiz.Change = [&notiz] { notiz.Zeigen(); };
    desktop.adopt(form);
    form.Show();
    QPlainTextEdit* text = feld(desktop, form, "Text_Notiz");
    EXPECT_EQ(text->toPlainText(), "eins\nzwei");
    EXPECT_FALSE(zustand.geaendert());
    text->moveCursor(QTextCursor::Start);
    text->insertPlainText(QString::fromUtf8("a#$§$#"));
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClicks(text, "b");
    EXPECT_EQ(text->toPlainText(), QString::fromUtf8("a#$§$#\nbeins\nzwei"));
    EXPECT_EQ(zustand.Notiztext, "a#$§$##$§$#beins#$§$#zwei");
    EXPECT_EQ(form1.Text_Notiz.Text(), "a\r\n\r\nbeins\r\nzwei");
    EXPECT_TRUE(zustand.geaendert());
}

} // namespace
} // namespace quittika::test
