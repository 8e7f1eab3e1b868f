#include "analyzer/analyzeransicht.hpp"
#include "platform/qt/qt_platform.hpp"
#include "platform/qt/widgets/column_head.hpp"
#include "platform/qt/widgets/column_list.hpp"
#include "platform/script/script_dialogs.hpp"
#include "tests/analyzerprobe.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QChart>
#include <QChartView>
#include <QImage>
#include <QLineEdit>
#include <QTest>

namespace quittika::test {
namespace {

/// The analyzer's window with six invoices.
class Ansichtsfenster : public ::testing::Test {
protected:
    Ansichtsfenster() {
        plattform.desktop().adopt(form);
        PROBE_EINTRAGEN(form, kProbenrechnungen);
        ansicht.NEUE_DATEN({});
        form.SSTab_Ergebnis.Tab = 1;
        form.Show();
        fenster = plattform.desktop().window(form);
        QApplication::setActiveWindow(fenster);
        QApplication::processEvents();
    }
    template <class W> W& widget(const char* name) { return *fenster->findChild<W*>(name); }
    /// Clicks into a bar, at an amount.
    void klicken(int saeule, double betrag) {
        auto& bild = widget<QChartView>("Diagramm_Monate");
        const QPointF im_diagramm = bild.chart()->mapToPosition({static_cast<double>(saeule), betrag});
        const QPoint ort = bild.mapFromScene(bild.chart()->mapToScene(im_diagramm));
        QTest::mouseMove(bild.viewport(), ort);
        QTest::mouseClick(bild.viewport(), Qt::LeftButton, {}, ort);
        QApplication::processEvents();
    }
    QStringList gezeigt() {
        QApplication::processEvents();
        const auto& liste = widget<ColumnList>("List_ANSICHT");
        QStringList nummern;
        for (int i = 0; i < liste.model()->rowCount(); ++i) {
            nummern.append(liste.model()->index(i, 0).data().toString().mid(12, 21).trimmed());
        }
        return nummern;
    }
    int markiert() { return widget<ColumnList>("List_ANSICHT").currentIndex().row(); }

    Probenordner ordner;
    QtPlatform plattform;
    ScriptDialogs dialoge;
    Form_Analyzer form;
    Analyzeransicht ansicht{form, plattform.platform().printing, dialoge};
    QWidget* fenster = nullptr;
};

TEST_F(Ansichtsfenster, EinKlickAufDenBalkenZeigtSeineRechnungen) {
    auto& diagramm = widget<QChartView>("Diagramm_Monate");
    klicken(2, 600);
    EXPECT_EQ(form.Diagramm_Monate.main_value(), "01.2009, unbezahlt: 1.190,00");
    EXPECT_EQ(gezeigt(), QStringList{"RN-9"});
    EXPECT_EQ(form.List_ANSICHT.ListIndex(), 1);
    EXPECT_EQ(markiert(), 0);
    klicken(0, 200);
    EXPECT_EQ(gezeigt(), (QStringList{"RN-10", "RN-8"}));
    klicken(0, 200);
    EXPECT_EQ(gezeigt().size(), 6) << "the second click shows all again";
    QTest::keyClick(&diagramm, Qt::Key_Right);
    QTest::keyClick(&diagramm, Qt::Key_Right);
    EXPECT_EQ(form.Diagramm_Monate.main_value(), "01.2009, unbezahlt: 1.190,00") << "past an empty month";
    QTest::keyClick(&diagramm, Qt::Key_Escape);
    EXPECT_EQ(gezeigt().size(), 6);
}

TEST_F(Ansichtsfenster, KoepfeSortierenMitMausUndTastatur) {
    auto& datum = widget<ColumnHead>("CMD_Sortieren(0)");
    QTest::mouseClick(&datum, Qt::LeftButton);
    EXPECT_EQ(gezeigt(), (QStringList{"RN-2", "RN-10", "RN-100", "RN-8", "RN-9", "RN-11"}));
    QTest::keyClick(&datum, Qt::Key_Right);
    ASSERT_EQ(QApplication::focusWidget(), &widget<ColumnHead>("CMD_Sortieren(1)"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(gezeigt(), (QStringList{"RN-2", "RN-8", "RN-9", "RN-10", "RN-11", "RN-100"}));
    auto& liste = widget<ColumnList>("List_ANSICHT");
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                      liste.visualRect(liste.model()->index(1, 0)).center());
    QApplication::processEvents();
    EXPECT_EQ(form.List_ANSICHT.ListIndex(), 5) << "the index is that of the file";
    QTest::keyClick(&liste, Qt::Key_Down);
    EXPECT_EQ(form.List_ANSICHT.ListIndex(), 1);
    datum.click();
    gezeigt();
    EXPECT_EQ(markiert(), 4) << "the marked invoice stays marked";
}

TEST_F(Ansichtsfenster, DieSucheMitDerTastatur) {
    auto& feld = widget<QLineEdit>("Text_suchen");
    QTest::keyClick(fenster, Qt::Key_F, Qt::ControlModifier);
    ASSERT_EQ(QApplication::focusWidget(), &feld);
    QTest::keyClicks(&feld, "zander");
    EXPECT_EQ(gezeigt(), QStringList{"RN-100"});
    QTest::keyClick(&feld, Qt::Key_Escape);
    EXPECT_EQ(gezeigt().size(), 6);
    QTest::keyClick(&feld, Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &widget<ColumnList>("List_ANSICHT"));
}

TEST_F(Ansichtsfenster, SpeichertDasDiagrammAlsPngUndPdf) {
    const std::string png = ordner.ordner() + "/bild.png";
    const std::string pdf = ordner.ordner() + "/bild.PDF";
    dialoge.queue(choice::File{ordner.ordner() + "/bild"});
    dialoge.queue(choice::File{pdf});
    widget<QAbstractButton>("CMD_Diagramm_speichern").click();
    widget<QAbstractButton>("CMD_Diagramm_speichern").click();
    const QImage bild(QString::fromStdString(png));
    ASSERT_EQ(bild.size(), QSize(1785, 2526));
    const auto kommt_vor = [&bild](QRgb farbe) {
        for (int y = 0; y < bild.height(); ++y) {
            for (int x = 0; x < bild.width(); ++x) {
                if (bild.pixel(x, y) == farbe) {
                    return true;
                }
            }
        }
        return false;
    };
    EXPECT_TRUE(kommt_vor(qRgb(0, 114, 178))) << "paid";
    EXPECT_TRUE(kommt_vor(qRgb(213, 94, 0))) << "unpaid";
    EXPECT_EQ(ordner.lesen("bild.PDF").substr(0, 5), "%PDF-");
}

} // namespace
} // namespace quittika::test
