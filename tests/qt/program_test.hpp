#pragma once

#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/qt/qt_platform.hpp"
#include "tests/pruefstand.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace quittika::test {

/// The program with its real windows in a folder of its own; one of them is worked with.
class ProgramTest : public ::testing::Test {
protected:
    ProgramTest() {
        programm.hauptfenster_zeigen();
        zeigen("form1");
    }

    Form1& f() { return dynamic_cast<Form1&>(programm.hauptfenster()); }
    /// Takes the open window of a form, gives it the keyboard; null if it is not open.
    QWidget* zeigen(const char* form) {
        fenster = nullptr;
        for (QWidget* offen : QApplication::topLevelWidgets()) {
            fenster = offen->objectName() == QLatin1String(form) && offen->isVisible() ? offen : fenster;
        }
        if (fenster != nullptr) {
            QApplication::setActiveWindow(fenster);
            QTest::qWait(10);
        }
        return fenster;
    }
    template <class W = QWidget> W* feld(const char* name) {
        return fenster->findChild<W*>(QLatin1String(name));
    }
    static void taste(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }
    static std::string fokus() { return QApplication::focusWidget()->objectName().toStdString(); }
    void zeile(const std::string& menge, const std::string& leistung, const std::string& preis) {
        f().Text_Menge.Text = menge;
        f().Text_leistung.Text = leistung;
        f().Text_preis.Text = preis;
        f().Cmd_Add_To_list.Click();
    }

    /// Answers the box that comes up, and notes its text.
    void antworten(QMessageBox::StandardButton knopf) {
        QTimer::singleShot(100, qApp, [this, knopf] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            frage = box == nullptr ? QString() : box->text();
            if (box != nullptr) {
                box->button(knopf)->click();
            }
        });
    }

    Probenordner ordner;
    QtPlatform plattform;
    Programm programm{plattform.platform(), ordner.ordner()};
    QWidget* fenster = nullptr;
    QString frage; ///< of the box that was answered
};

} // namespace quittika::test
