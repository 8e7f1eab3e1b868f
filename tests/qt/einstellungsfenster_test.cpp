#include "tests/qt/desktop_look.hpp"
#include "tests/qt/program_test.hpp"

#include <QtWidgets>

#include <algorithm>
#include <vector>

namespace quittika::test {
namespace {

/// The invoice settings in their real window.
class Einstellungsfenstertest : public ProgramTest {
protected:
    Einstellungsfenstertest() { oeffnen(); }
    void oeffnen() {
        f().m_Rechnungsdaten.Click();
        zeigen("frm_einstellungen");
        QTest::qWait(50);
    }
};

TEST_F(Einstellungsfenstertest, DieTastaturErreichtJedesFeldJederSeite) {
    auto* seiten = feld<QTabWidget>("SSTab1");
    fenster->resize(1024, 700);
    EXPECT_EQ(fenster->size(), QSize(1024, 700));
    for (int seite = 0; seite < seiten->count(); ++seite) {
        seiten->tabBar()->setFocus();
        EXPECT_EQ(seiten->currentIndex(), seite);
        std::vector<const QWidget*> erreicht;
        for (int i = 0; i < 100; ++i) {
            taste(Qt::Key_Tab);
            if (QApplication::focusWidget() == seiten->tabBar()) {
                break;
            }
            erreicht.push_back(QApplication::focusWidget());
            EXPECT_FALSE(erreicht.back()->inherits("QScrollArea")) << "nobody sees the focus there";
        }
        ASSERT_GT(erreicht.size(), 3U);
        EXPECT_TRUE(
            std::all_of(erreicht.begin(), erreicht.end() - 2,
                        [&](const QWidget* stelle) { return seiten->currentWidget()->isAncestorOf(stelle); }))
            << "the fields first, on page " << seite;
        EXPECT_EQ(erreicht.end()[-2], feld("Command_uebernehmen2"));
        EXPECT_EQ(erreicht.end()[-1], feld("Command_nichtuebernehmen"));
        for (const QWidget* widget : fenster->findChildren<QWidget*>()) {
            const bool bedienbar = widget->isVisible() && widget->isEnabled() &&
                                   (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                                   !widget->inherits("QScrollArea") && widget->focusProxy() == nullptr &&
                                   !widget->objectName().startsWith("qt_");
            EXPECT_TRUE(!bedienbar || widget == seiten->tabBar() ||
                        std::count(erreicht.begin(), erreicht.end(), widget) == 1)
                << widget->objectName().toStdString() << " on page " << seite;
        }
        seiten->tabBar()->setFocus();
        taste(Qt::Key_Down);
    }
}

struct GrosseSchrift {
    DesktopLook schrift{18};
};
class EinstellungsfensterInGrosserSchrift : GrosseSchrift, public Einstellungsfenstertest {
protected:
    EinstellungsfensterInGrosserSchrift() { fenster->resize(1024, 700); }
};

TEST_F(EinstellungsfensterInGrosserSchrift, PasstJedeSeiteNebenDasMuster) {
    auto* seiten = feld<QTabWidget>("SSTab1");
    for (int seite = 0; seite < seiten->count(); ++seite) {
        seiten->setCurrentIndex(seite);
        QTest::qWait(10);
        const auto* rolle = qobject_cast<QScrollArea*>(seiten->currentWidget());
        EXPECT_EQ(rolle->horizontalScrollBar()->maximum(), 0) << "page " << seite;
        EXPECT_GT(feld("Picture_Muster")->width(), 150);
    }
}

TEST_F(Einstellungsfenstertest, StrgEingabeUebernimmtUndEscFragt) {
    feld<QLineEdit>("Text_firma_1")->setFocus();
    QTest::keyClicks(feld("Text_firma_1"), "Neu");
    antworten(QMessageBox::No);
    taste(Qt::Key_Escape);
    EXPECT_EQ(frage, "Sind Sie sicher, dass Sie keine Änderungen speichern möchten?");
    EXPECT_TRUE(fenster->isVisible());
    QApplication::setActiveWindow(fenster);
    const QString text = feld<QLineEdit>("Text_firma_1")->text();
    taste(Qt::Key_Return);
    EXPECT_TRUE(fenster->isVisible()) << "Return alone takes nothing over";
    taste(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !fenster->isVisible(); })) << "the button is seen going down";
    EXPECT_NE(ordner.lesen("prog_n.cfg").find("Neu"), std::string::npos);

    oeffnen();
    feld<QLineEdit>("Text_firma_1")->setText("Verworfen");
    antworten(QMessageBox::Yes);
    fenster->close();
    EXPECT_FALSE(fenster->isVisible());
    EXPECT_EQ(feld<QLineEdit>("Text_firma_1")->text(), text);
}

TEST_F(Einstellungsfenstertest, DasMusterFuelltSeinenRahmenUndFolgtDemTippenNachEinerPause) {
    const auto* rahmen = feld("Frame_Muster");
    auto* bild = feld("Picture_Muster");
    for (const QSize groesse : {QSize(1024, 700), QSize(1600, 720), QSize(1100, 1000)}) {
        fenster->resize(groesse);
        QApplication::processEvents();
        EXPECT_TRUE(rahmen->rect().contains(bild->geometry()));
        EXPECT_NEAR(bild->height() * 210.0 / 297, bild->width(), 2);
        EXPECT_GT(bild->width() + 25.0, std::min(rahmen->width() + 0.0, rahmen->height() * 210.0 / 297));
    }

    const QImage vorher = bild->grab().toImage();
    QTest::keyClicks(feld("Text_firma_1"), "Tischlerei");
    EXPECT_EQ(bild->grab().toImage(), vorher) << "typing goes first";
    EXPECT_TRUE(QTest::qWaitFor([&] { return bild->grab().toImage() != vorher; }, 2000));
}

} // namespace
} // namespace quittika::test
