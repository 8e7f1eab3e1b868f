#include "platform/qt/widgets/column_list.hpp"
#include "tests/qt/program_test.hpp"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace quittika::test {
namespace {

/// Both lists in their real windows.
class Listenfenstertest : public ProgramTest {
protected:
    Listenfenstertest() {
        ordner.schreiben("Kundenliste.txt",
                         "Meier...Weg 1...\r\nM\xFCller...Hof 2...\r\nMuehl...Tor 3...\r\n");
        ordner.schreiben("Artikelliste.txt", "Nagel$\xA7$0.10$\xA7$4711$\xA7$\r\n" + std::string(90, 'x') +
                                                 "$\xA7$2.00$\xA7$4712$\xA7$\r\n");
    }

    static void taste(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        ProgramTest::taste(key, held);
        QTest::qWait(held == Qt::NoModifier ? 0 : 150); // the button that it names shows itself pressed
    }
    static void tippen(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    ColumnList& liste() { return *fenster->findChild<ColumnList*>(); }
    int markiert() {
        QApplication::processEvents();
        return liste().currentIndex().row();
    }
};

TEST_F(Listenfenstertest, KundenMitDerTastatur) {
    f().m_Kundenliste.Click();
    ASSERT_NE(zeigen("Form_Kundenverwaltung"), nullptr);
    EXPECT_EQ(fokus(), "Text_suchen");
    tippen("mue");
    EXPECT_EQ(markiert(), 1);
    taste(Qt::Key_Return);
    EXPECT_EQ(markiert(), 2) << "Return goes to the next one";
    taste(Qt::Key_F3);
    EXPECT_EQ(markiert(), 1);
    taste(Qt::Key_Down);
    EXPECT_EQ(liste().model()->index(2, 0).data(ColumnList::kColumnTexts).toStringList(),
              QStringList({"Muehl", "Tor 3"}));
    taste(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(f().Text_Kunde_2.Text(), "Tor 3");
    EXPECT_EQ(zeigen("Form_Kundenverwaltung"), nullptr);

    f().Command_Kundenliste.Click();
    zeigen("Form_Kundenverwaltung");
    liste().setFocus();
    liste().setCurrentIndex(liste().model()->index(0, 0));
    EXPECT_TRUE(feld<QPushButton>("Command_OK")->isDefault());
    taste(Qt::Key_Delete);
    EXPECT_EQ(fenster->windowTitle(), "Kundenliste     -    Einträge: 2");
    taste(Qt::Key_Escape);
    EXPECT_EQ(zeigen("Form_Kundenverwaltung"), nullptr);
    EXPECT_EQ(f().Text_Kunde_2.Text(), "Tor 3");
}

TEST_F(Listenfenstertest, ArtikelMitTastaturUndScanner) {
    f().Text_Menge.Text = "5";
    f().m_Artikelliste.Click();
    ASSERT_NE(zeigen("Form_Artikelverwaltung"), nullptr);
    auto* barcode = feld<QLineEdit>("Text_such_Barcode");
    barcode->setFocus();
    tippen("4712");
    taste(Qt::Key_Return);
    EXPECT_EQ(markiert(), 1);
    EXPECT_EQ(barcode->text(), "");
    taste(Qt::Key_N, Qt::AltModifier);
    for (const char* eingabe : {"Nagel b", "1,5", "4713"}) { // each ends with Return, as a scanner does
        tippen(eingabe);
        taste(Qt::Key_Return);
    }
    EXPECT_TRUE(ordner.lesen("Artikelliste.txt").ends_with("\r\nNagel b$\xA7$1.50$\xA7$4713$\xA7$\r\n"));
    EXPECT_EQ(markiert(), 2);
    EXPECT_EQ(fokus(), "Text_leistung");
    taste(Qt::Key_Escape);
    EXPECT_EQ(zeigen("Form_Artikelverwaltung"), nullptr);
    EXPECT_EQ(f().Text_Menge.Text(), "5") << "Escape cancels";
    f().m_Artikelliste.Click();
    zeigen("Form_Artikelverwaltung");
    taste(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(f().Text_preis.Text(), "0,10");
    EXPECT_EQ(fokus(), "Text_Menge") << "how many?";
}

TEST_F(Listenfenstertest, KoepfeStehenUeberDenSpaltenDesTextes) {
    f().m_Artikelliste.Click();
    zeigen("Form_Artikelverwaltung");
    const auto ende = [&](const char* kopf) {
        const auto* label = feld<QLabel>(kopf);
        return label->mapTo(fenster, label->rect().topRight()).x() + 1;
    };
    const auto zeichen = [&](int n) { // right edge of a row's n-th character
        return liste().mapTo(fenster, QPoint()).x() + liste().frameWidth() + ColumnList::kPadding +
               QFontMetricsF(liste().font()).horizontalAdvance(QString(n, '0')) -
               liste().horizontalScrollBar()->value();
    };
    EXPECT_NEAR(ende("ui_Kopf_2"), zeichen(86), 1) << "prices end here";
    EXPECT_NEAR(ende("ui_Kopf_3"), zeichen(119), 1);
    fenster->resize(700, 500);
    QApplication::processEvents();
    EXPECT_GT(liste().horizontalScrollBar()->maximum(), 0) << "what has no room can be scrolled";
    liste().horizontalScrollBar()->setValue(150);
    QApplication::processEvents();
    EXPECT_NEAR(ende("ui_Kopf_2"), zeichen(86), 1);
}

} // namespace
} // namespace quittika::test
