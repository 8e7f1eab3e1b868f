#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/qt_platform.hpp"
#include "platform/qt/widgets/column_list.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

namespace quittika::test {

namespace {

/// Both lists in their real windows.
class Listenfenstertest : public ::testing::Test {
protected:
    Listenfenstertest() {
        ordner.schreiben("Kundenliste.txt",
                         "Meier...Weg 1...\r\nM\xFCller...Hof 2...\r\nMuehl...Tor 3...\r\n");
        ordner.schreiben("Artikelliste.txt", "Nagel$\xA7$0.10$\xA7$4711$\xA7$\r\n" + std::string(90, 'x') +
                                                 "$\xA7$2.00$\xA7$4712$\xA7$\r\n");
        programm.hauptfenster_zeigen();
    }

    Form1& f() { return dynamic_cast<Form1&>(programm.hauptfenster()); }
    QWidget* fenster(const char* name) {
        for (QWidget* offen : QApplication::topLevelWidgets()) {
            if (offen->objectName() == QLatin1String(name) && offen->isVisible()) {
                QApplication::setActiveWindow(offen);
                return offen;
            }
        }
        return nullptr;
    }
    void taste(int key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), held);
        QTest::qWait(held == Qt::NoModifier ? 0 : 150); // the button that it names shows itself pressed
    }
    int markiert(QWidget* w) {
        QApplication::processEvents();
        return w->findChild<ColumnList*>()->currentIndex().row();
    }

    Probenordner ordner;
    QtPlatform plattform;
    Programm programm{plattform.platform(), ordner.ordner()};
};

TEST_F(Listenfenstertest, KundenMitDerTastatur) {
    f().m_Kundenliste.Click();
    QWidget* kunden = fenster("Form_Kundenverwaltung");
    ASSERT_NE(kunden, nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Text_suchen");
    QTest::keyClicks(QApplication::focusWidget(), "mue");
    EXPECT_EQ(markiert(kunden), 1);
    EXPECT_TRUE(kunden->findChild<QPushButton*>("Command_weitersuchen")->isDefault());
    taste(Qt::Key_Return);
    EXPECT_EQ(markiert(kunden), 2) << "Return goes to the next one";
    taste(Qt::Key_F3);
    EXPECT_EQ(markiert(kunden), 1);
    taste(Qt::Key_Down);
    EXPECT_EQ(markiert(kunden), 2);
    const auto* liste = kunden->findChild<ColumnList*>();
    EXPECT_EQ(liste->model()->index(2, 0).data(ColumnList::kColumnTexts).toStringList(),
              QStringList({"Muehl", "Tor 3"}));
    std::string hilfe;
    plattform.desktop().on_help([&hilfe](const Form& form) { hilfe += form.name() + " "; });
    taste(Qt::Key_F1);
    EXPECT_EQ(hilfe, "Form_Kundenverwaltung ");
    taste(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(f().Text_Kunde_2.Text(), "Tor 3");
    EXPECT_EQ(fenster("Form_Kundenverwaltung"), nullptr);

    f().Command_Kundenliste.Click();
    kunden = fenster("Form_Kundenverwaltung");
    auto* neue_liste = kunden->findChild<ColumnList*>();
    neue_liste->setFocus();
    neue_liste->setCurrentIndex(neue_liste->model()->index(0, 0));
    EXPECT_TRUE(kunden->findChild<QPushButton*>("Command_OK")->isDefault());
    taste(Qt::Key_Delete);
    EXPECT_EQ(kunden->windowTitle(), "Kundenliste     -    Einträge: 2");
    taste(Qt::Key_Escape);
    EXPECT_EQ(fenster("Form_Kundenverwaltung"), nullptr);
    EXPECT_EQ(f().Text_Kunde_2.Text(), "Tor 3");
}

TEST_F(Listenfenstertest, ArtikelMitTastaturUndScanner) {
    f().Text_Menge.Text = "5";
    f().m_Artikelliste.Click();
    QWidget* artikel = fenster("Form_Artikelverwaltung");
    ASSERT_NE(artikel, nullptr);
    auto* barcode = artikel->findChild<QLineEdit*>("Text_such_Barcode");
    barcode->setFocus();
    QTest::keyClicks(barcode, "4712");
    taste(Qt::Key_Return);
    EXPECT_EQ(markiert(artikel), 1);
    EXPECT_EQ(barcode->text(), "");
    taste(Qt::Key_N, Qt::AltModifier);
    for (const char* eingabe : {"Nagel b", "1,5", "4713"}) { // each ends with Return, as a scanner does
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(eingabe));
        taste(Qt::Key_Return);
    }
    EXPECT_TRUE(ordner.lesen("Artikelliste.txt").ends_with("\r\nNagel b$\xA7$1.50$\xA7$4713$\xA7$\r\n"));
    EXPECT_EQ(markiert(artikel), 2);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Text_leistung");
    taste(Qt::Key_Escape);
    EXPECT_EQ(fenster("Form_Artikelverwaltung"), nullptr);
    EXPECT_EQ(f().Text_Menge.Text(), "5") << "Escape cancels";
    f().m_Artikelliste.Click();
    fenster("Form_Artikelverwaltung");
    taste(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(f().Text_preis.Text(), "0,10");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Text_Menge") << "how many?";
}

TEST_F(Listenfenstertest, KoepfeStehenUeberDenSpaltenDesTextes) {
    f().m_Artikelliste.Click();
    QWidget* artikel = fenster("Form_Artikelverwaltung");
    auto* liste = artikel->findChild<ColumnList*>();
    const auto ende = [&](const char* kopf) {
        const auto* label = artikel->findChild<QLabel*>(QLatin1String(kopf));
        return label->mapTo(artikel, label->rect().topRight()).x() + 1;
    };
    const auto zeichen = [&](int n) { // right edge of a row's n-th character
        return liste->mapTo(artikel, QPoint()).x() + liste->frameWidth() + ColumnList::kPadding +
               QFontMetricsF(liste->font()).horizontalAdvance(QString(n, '0')) -
               liste->horizontalScrollBar()->value();
    };
    EXPECT_NEAR(ende("ui_Kopf_2"), zeichen(86), 1) << "prices end here";
    EXPECT_NEAR(ende("ui_Kopf_3"), zeichen(119), 1);
    artikel->resize(700, 500);
    QApplication::processEvents();
    EXPECT_GT(liste->horizontalScrollBar()->maximum(), 0) << "what has no room can be scrolled";
    liste->horizontalScrollBar()->setValue(150);
    QApplication::processEvents();
    EXPECT_NEAR(ende("ui_Kopf_2"), zeichen(86), 1);
}

} // namespace

} // namespace quittika::test
