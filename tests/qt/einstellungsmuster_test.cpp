#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace quittika::test {
namespace {

TEST(Einstellungsmuster, DieSeiteFuelltIhrenRahmenUndFolgtDemTippenNachEinerPause) {
    const Probenordner ordner;
    QtPlatform plattform;
    Programm programm(plattform.platform(), ordner.ordner());
    programm.hauptfenster_zeigen();
    dynamic_cast<Form1&>(programm.hauptfenster()).m_Rechnungsdaten.Click();
    QApplication::processEvents();
    QWidget* fenster = nullptr;
    for (QWidget* offen : QApplication::topLevelWidgets()) {
        fenster = offen->objectName() == "frm_einstellungen" ? offen : fenster;
    }
    ASSERT_NE(fenster, nullptr);
    const auto* rahmen = fenster->findChild<QWidget*>("Frame_Muster");
    auto* bild = fenster->findChild<QWidget*>("Picture_Muster");
    for (const QSize groesse : {QSize(1024, 700), QSize(1600, 720), QSize(1100, 1000)}) {
        fenster->resize(groesse);
        QApplication::processEvents();
        EXPECT_TRUE(rahmen->rect().contains(bild->geometry()));
        EXPECT_NEAR(bild->height() * 210.0 / 297, bild->width(), 2);
        EXPECT_GT(bild->width() + 25.0, std::min(rahmen->width() + 0.0, rahmen->height() * 210.0 / 297));
    }

    auto* feld = fenster->findChild<QLineEdit*>("Text_firma_1");
    const QImage vorher = bild->grab().toImage();
    QTest::keyClicks(feld, "Tischlerei");
    EXPECT_EQ(bild->grab().toImage(), vorher) << "typing goes first";
    EXPECT_TRUE(QTest::qWaitFor([&] { return bild->grab().toImage() != vorher; }, 2000));
}

} // namespace
} // namespace quittika::test
