#include "analyzer/form_analyzer.hpp"
#include "analyzer/spalten.hpp"
#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/widgets/column_list.hpp"
#include "tests/qt/desktop_look.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

TEST(Analyzerfenster, DieKoepfeStehenZeichenFuerZeichenUeberDenZeilen) {
    for (const double points : {9.0, 18.0}) {
        const DesktopLook look(points);
        QtDesktop desktop;
        Form_Analyzer form;
        desktop.adopt(form);
        form.Label_BESCHRIFTUNG_LISTE[0].Caption = kTabellenkopf[0];
        form.Label_BESCHRIFTUNG_LISTE[1].Caption = kTabellenkopf[1];
        form.List_ANSICHT.assign({std::string(128, 'x')});
        form.Show();
        QWidget& window = *desktop.window(form);
        window.resize(window.minimumSizeHint());
        QCoreApplication::processEvents();
        const auto& list = *window.findChild<QListView*>("List_ANSICHT");
        const int furthest = list.horizontalScrollBar()->maximum();
        ASSERT_GT(furthest, 50) << "too narrow for all columns";
        for (const int scrolled : {0, 50, furthest}) {
            list.horizontalScrollBar()->setValue(scrolled);
            QCoreApplication::processEvents();
            const QPoint row = list.visualRect(list.model()->index(0, 0)).topLeft();
            const int text = list.viewport()->mapTo(&window, row).x() + ColumnList::kPadding;
            for (const char* name : {"Label_BESCHRIFTUNG_LISTE(0)", "Label_BESCHRIFTUNG_LISTE(1)"}) {
                const auto& head = *window.findChild<QLabel*>(name);
                EXPECT_EQ(head.mapTo(&window, QPoint()).x(), text) << name << " scrolled by " << scrolled;
                EXPECT_EQ(QFontMetricsF(head.font()).horizontalAdvance(QString(128, 'x')),
                          QFontMetricsF(list.font()).horizontalAdvance(QString(128, 'x')));
            }
        }
    }
}

TEST(Analyzerfenster, DieDateinamenRollenMitDerTabelle) {
    QtDesktop desktop;
    Form_Analyzer form;
    desktop.adopt(form);
    form.List_ANSICHT.assign(std::vector<std::string>(100, "x"));
    form.List_dateien.assign(std::vector<std::string>(100, "x.qk8"));
    form.Show();
    QWidget& window = *desktop.window(form);
    auto& table = *window.findChild<ColumnList*>("List_ANSICHT")->verticalScrollBar();
    auto& names = *window.findChild<ColumnList*>("List_dateien")->verticalScrollBar();
    table.setValue(40);
    form.List_dateien.Visible = true;
    QCoreApplication::processEvents();
    EXPECT_EQ(names.value(), 40) << "shown beside a table that has been scrolled";
    table.setValue(7);
    EXPECT_EQ(names.value(), 7);
    names.setValue(50);
    EXPECT_EQ(table.value(), 50);
    form.List_ANSICHT.show_rows({5, 3});
    form.List_dateien.show_rows({5, 3});
    form.List_ANSICHT.show_all();
    form.List_dateien.show_all();
    form.List_ANSICHT.ListIndex = 99;
    form.List_dateien.ListIndex = 99;
    QCoreApplication::processEvents();
    EXPECT_EQ(names.value(), table.value());
}

} // namespace
} // namespace quittika::test
