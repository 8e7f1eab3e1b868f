#include "tests/qt/program_test.hpp"

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

/// The real main window, worked by keyboard.
class Hauptfenstertest : public ProgramTest {
protected:
    void tippen(const char* name, const char* text) {
        auto* eingabe = feld<QLineEdit>(name);
        eingabe->setFocus();
        eingabe->selectAll();
        QTest::keyClicks(eingabe, QString::fromUtf8(text));
    }
    void zeile(const char* menge, const char* leistung, const char* preis) {
        tippen("Text_Menge", menge);
        tippen("Text_leistung", leistung);
        tippen("Text_preis", preis);
        QTest::keyClick(feld("Text_preis"), Qt::Key_Return);
        QTest::qWait(1);
    }
};

TEST_F(Hauptfenstertest, TastenGeltenDerGeholtenZeile) {
    zeile("2", "Stuhl", "12,5");
    zeile("1", "Tisch", "80");
    EXPECT_TRUE(feld<QLineEdit>("Text_Menge")->hasFocus());
    auto* liste = feld<QListView>("List_DARSTELLUNG");
    const auto stuhl_holen = [&] {
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, {},
                          liste->visualRect(liste->model()->index(0, 0)).center());
        QTest::qWait(1);
        EXPECT_EQ(feld<QLineEdit>("Text_leistung")->text(), "Stuhl");
    };
    stuhl_holen();
    tippen("Text_Menge", "3");
    EXPECT_EQ(feld<QLineEdit>("Text_gesamtp")->text(), "37,50") << "the total follows";
    QTest::keyClick(feld<QLineEdit>("Text_Menge"), Qt::Key_Return);
    QTest::qWait(1);
    EXPECT_EQ(f().List_Menge.items(), (std::vector<std::string>{"3", "1"}));
    stuhl_holen();
    tippen("Text_preis", "1");
    QTest::keyClick(feld<QLineEdit>("Text_preis"), Qt::Key_Escape);
    EXPECT_FALSE(feld<QAbstractButton>("Command_AENDERN")->isEnabled());
    EXPECT_EQ(feld<QLineEdit>("Text_preis")->text(), vorgabe::kBetrag);
    EXPECT_EQ(liste->selectionModel()->selectedIndexes().value(0).row(), 0);
    liste->setFocus();
    QTest::keyClick(liste, Qt::Key_Delete);
    QTest::qWait(1);
    EXPECT_TRUE(liste->hasFocus());
    EXPECT_EQ(f().List_Leistung.items(), std::vector<std::string>{"Tisch"});
    EXPECT_EQ(feld<QLineEdit>("Text_gesamtbetrag")->text(), "80,00");
    feld<QAbstractButton>("md_Del_artikel")->setFocus();
    feld<QAbstractButton>("md_Del_artikel")->click();
    QTest::qWait(1);
    EXPECT_TRUE(liste->hasFocus()) << "the button is disabled now";
    EXPECT_EQ(f().List_K.ListCount(), 0);
}

TEST_F(Hauptfenstertest, ZeilenmenueUndStrgPfeilVerschiebenZeilen) {
    zeile("1", "Stuhl", "1");
    zeile("1", "Tisch", "2");
    zeile("1", "Bank", "3");
    auto* liste = feld<QListView>("List_DARSTELLUNG");
    const auto* menue = feld<QMenu>("ui_Zeilenmenue");
    liste->setFocus();
    const auto rechtsklick = [&](QPoint stelle) {
        QTest::mousePress(liste->viewport(), Qt::RightButton, {}, stelle);
        QContextMenuEvent wunsch(QContextMenuEvent::Mouse, stelle, liste->viewport()->mapToGlobal(stelle));
        QApplication::sendEvent(liste->viewport(), &wunsch);
    };
    rechtsklick(liste->visualRect(liste->model()->index(0, 0)).center());
    EXPECT_TRUE(menue->isVisible());
    EXPECT_EQ(feld<QLineEdit>("Text_leistung")->text(), "Stuhl") << "the row under the mouse is meant";
    EXPECT_FALSE(feld<QAction>("m_Zeile_hoch")->isEnabled());
    QTest::keyClick(feld<QMenu>("ui_Zeilenmenue"), Qt::Key_U);
    QTest::qWait(1);
    EXPECT_EQ(f().List_Leistung.items(), (std::vector<std::string>{"Tisch", "Stuhl", "Bank"}));
    EXPECT_EQ(liste->currentIndex().row(), 1);
    QApplication::setActiveWindow(fenster); // no desktop gives the focus back from the menu
    liste->setFocus();
    QTest::keyClick(liste, Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(liste, Qt::Key_Down, Qt::ControlModifier);
    feld<QLineEdit>("Text_Kunde_1")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up, Qt::ControlModifier);
    QTest::qWait(1);
    EXPECT_EQ(f().List_Leistung.items(), (std::vector<std::string>{"Tisch", "Bank", "Stuhl"}));
    const QPoint daneben = liste->viewport()->rect().bottomLeft() - QPoint(-5, 5);
    rechtsklick(daneben);
    EXPECT_FALSE(menue->isVisible()) << "there is no row";
    QTest::mouseRelease(liste->viewport(), Qt::RightButton, {}, daneben);
    QTest::qWait(1);
    EXPECT_EQ(liste->selectionModel()->selectedIndexes().value(0).row(), 2);
}

TEST_F(Hauptfenstertest, JederSchalterRechnet) {
    int schalter = 0;
    for (Control* control : f().controls()) {
        auto* option = dynamic_cast<OptionButton*>(control);
        if (option == nullptr && dynamic_cast<CheckBox*>(control) == nullptr) {
            continue;
        }
        if (option != nullptr) {
            option->Value.adopt(false);
        }
        f().StatusBar1[2].Caption = "";
        control->user_click();
        EXPECT_EQ(f().StatusBar1[2].Caption(), "Anzahl Druckseiten: 1") << control->name();
        ++schalter;
    }
    EXPECT_GT(schalter, 20);
}

TEST_F(Hauptfenstertest, TabulatorFolgtDerArbeit) {
    const std::vector<const char*> wege[] = {
        {"Text_Kunde_1", "Text_Kunde_2", "Text_Kunde_3", "Text_Kunde_4", "Text_KundennrK"},
        {"Text_Menge", "Text_leistung", "Text_preis", "Cmd_Add_To_list"}};
    for (const auto& weg : wege) {
        feld(weg.front())->setFocus();
        for (const char* stelle : weg) {
            EXPECT_EQ(fokus(), stelle);
            taste(Qt::Key_Tab);
        }
    }
}

TEST_F(Hauptfenstertest, BuchstabenMitAltErreichenJedeGruppe) {
    const std::pair<Qt::Key, const char*> ziele[] = {
        {Qt::Key_N, "Text_Kunde_1"},       {Qt::Key_O, "Option_RECHNUNG"},
        {Qt::Key_M, "Text_RNnr"},          {Qt::Key_D, "Text_Datum"},
        {Qt::Key_U, "Check_versendet"},    {Qt::Key_P, "Text_Menge"},
        {Qt::Key_G, "Option_anschreiben"}, {Qt::Key_W, "Option_Satz1"},
        {Qt::Key_V, "Check_Versandkosten"}};
    for (const auto& [buchstabe, ziel] : ziele) {
        feld("Text_leistung")->setFocus();
        taste(buchstabe, Qt::AltModifier);
        EXPECT_EQ(fokus(), ziel);
    }
    f().Command_PLUS_LIST.Enabled = false;
    tippen("Text_Kunde_2", "Weg 1");
    QTest::keyClick(feld<QLineEdit>("Text_Kunde_2"), Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(f().Text_Kunde_2.Text(), "Weg 1") << "the letter of a disabled button is no text";
}

TEST_F(Hauptfenstertest, RueckgaengigGehoertDemFeldSolangeDarinGetipptWird) {
    const auto strg = [](Qt::Key key) { taste(key, Qt::ControlModifier); };
    tippen("Text_Kunde_1", "Kern");
    tippen("Text_Kunde_2", "Gasse 1");
    EXPECT_EQ(feld<QAction>("m_rueckgaengig")->text(), QStringLiteral("&Rückgängig: Eingabe"));
    while (f().Text_Kunde_2.Text() != vorgabe::kKunde2) {
        ASSERT_TRUE(feld<QLineEdit>("Text_Kunde_2")->isUndoAvailable());
        strg(Qt::Key_Z);
    }
    EXPECT_EQ(f().Text_Kunde_1.Text(), "Kern") << "the field took back its own";
    strg(Qt::Key_Y);
    EXPECT_NE(f().Text_Kunde_2.Text(), vorgabe::kKunde2);
    while (feld<QLineEdit>("Text_Kunde_2")->isUndoAvailable()) {
        strg(Qt::Key_Z);
    }
    strg(Qt::Key_Z);
    EXPECT_EQ(f().Text_Kunde_1.Text(), vorgabe::kKunde1)
        << "the field has nothing left: now it is the window's";
    taste(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(f().Text_Kunde_1.Text(), "Kern");
    feld<QLineEdit>("Text_Kunde_1")->setFocus();
    strg(Qt::Key_Z);
    EXPECT_EQ(f().Text_Kunde_1.Text(), vorgabe::kKunde1) << "a field that was left is one step";
}

TEST_F(Hauptfenstertest, PlatzhalterSindBeimBetretenMarkiert) {
    EXPECT_EQ(QApplication::focusWidget(), feld<QLineEdit>("Text_Kunde_1"));
    EXPECT_EQ(feld<QLineEdit>("Text_Kunde_1")->selectedText(), "Name, Vorname");
    auto* strasse = feld<QLineEdit>("Text_Kunde_2");
    QTest::mouseClick(strasse, Qt::LeftButton);
    EXPECT_EQ(strasse->selectedText(), "Strasse, Hausnr");
    QTest::mouseClick(strasse, Qt::LeftButton);
    EXPECT_EQ(strasse->selectedText(), "") << "the second click sets the cursor";
    tippen("Text_Kunde_2", "Weg 1");
    QTest::keyClick(strasse, Qt::Key_F2);
    EXPECT_TRUE(feld<QLineEdit>("Text_Menge")->hasFocus());
    EXPECT_EQ(feld<QLineEdit>("Text_Menge")->selectedText(), "0");
    strasse->setFocus();
    EXPECT_EQ(strasse->selectedText(), "") << "no placeholder any more";
}

TEST_F(Hauptfenstertest, ZuLangeLeistungIstGekuerztUndTraegtIhrenTextAlsHinweis) {
    const QString leistung = QString(30, QLatin1Char('W')).replace(QLatin1Char('W'), QLatin1String("Brett "));
    zeile("2", leistung.toUtf8(), "999999999,99");
    zeile("1", "Stuhl", "5");
    EXPECT_EQ(feld<QLineEdit>("Text_gesamtbetrag")->text(), "2000000004,98");
    auto* liste = feld<QListView>("List_DARSTELLUNG");
    const QModelIndex erste = liste->model()->index(0, 0);
    EXPECT_TRUE(erste.data().toString().contains(leistung)) << "the item itself is whole";
    EXPECT_EQ(erste.data(Qt::AccessibleTextRole).toString(),
              "1; 2; " + leistung + "; 999999999,99; 1999999999,98");
    const auto hinweis = [](QWidget* ziel, QPoint ort) {
        QHelpEvent wunsch(QEvent::ToolTip, ort, ziel->mapToGlobal(ort));
        QApplication::sendEvent(ziel, &wunsch);
        return QToolTip::text();
    };
    const auto zeilenhinweis = [&](int nummer) {
        return hinweis(liste->viewport(), liste->visualRect(liste->model()->index(nummer, 0)).center());
    };
    EXPECT_EQ(zeilenhinweis(1), "");
    EXPECT_TRUE(zeilenhinweis(0).contains(leistung.trimmed()));
    f().Hinweise.melden(std::string("<b> ") + leistung.toStdString() + leistung.toStdString());
    const QString ganzer = hinweis(feld<QWidget>("StatusBar1(3)"), {5, 5});
    EXPECT_TRUE(ganzer.startsWith("<p>&lt;b&gt; Brett") && ganzer.endsWith("Brett </p>")) << "in lines";
}

TEST_F(Hauptfenstertest, RasterEntstehtBeimAufklappen) {
    f().Raster[0].Text_leistung[0].Text = "vorher";
    EXPECT_EQ(feld<QLineEdit>("Text_leistung1(0)"), nullptr) << "not made before it is looked at";
    feld<QAbstractButton>("ui_Raster_Kopf")->click();
    QTest::qWait(1);
    auto* eingabe = feld<QLineEdit>("Text_leistung1(0)");
    ASSERT_NE(eingabe, nullptr);
    EXPECT_EQ(eingabe->text(), "vorher");
    QTest::qWait(20);
    EXPECT_GE(eingabe->height(), eingabe->minimumSizeHint().height()) << "rows have room to be read";
    tippen("Text_leistung9(0)", "Griff");
    EXPECT_EQ(f().Raster[8].Text_leistung[0].Text(), "Griff");
}

TEST_F(Hauptfenstertest, EinDateinameImMenueHatKeinenBuchstaben) {
    f().m_R1.Caption = "/A & B.qk8";
    EXPECT_EQ(feld<QAction>("m_R1")->text(), "/A && B.qk8");
}

} // namespace
} // namespace quittika::test
