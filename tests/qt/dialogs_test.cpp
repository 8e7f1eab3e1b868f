#include "platform/qt/print_dialog.hpp"
#include "platform/qt/print_printing.hpp"
#include "platform/qt/qt_dialogs.hpp"
#include "platform/qt/qt_shell.hpp"
#include "tests/fehlernummer.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

/// Runs `work` on the next dialog that is open.
template <class D> void on_dialog(std::function<void(D&)> work) {
    QTimer::singleShot(5, qApp, [work] {
        auto* dialog = qobject_cast<D*>(QApplication::activeModalWidget());
        dialog != nullptr ? work(*dialog) : on_dialog<D>(work);
    });
}

class DialogsTest : public ::testing::Test {
protected:
    DialogsTest() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    PrinterChoice printer;
    QtDialogs dialogs{printer};
};

struct Box {
    const char* what;
    Buttons buttons;
    Answer preset;
    Qt::Key key; ///< pressed by the user
    const char* texts;
    Answer answer;
};

const Box kBoxes[] = {
    {"Return on one button", Buttons::Ok, Answer::Ok, Qt::Key_Return, "OK", Answer::Ok},
    {"Escape on one button", Buttons::Ok, Answer::Ok, Qt::Key_Escape, "OK", Answer::Ok},
    {"Return on a question", Buttons::YesNo, Answer::Ok, Qt::Key_Return, "Ja Nein", Answer::Yes},
    {"preset no", Buttons::YesNo, Answer::No, Qt::Key_Return, "Ja Nein", Answer::No},
    {"Escape on a question, then Return", Buttons::YesNo, Answer::Yes, Qt::Key_Escape, "Ja Nein",
     Answer::Yes},
    {"preset cancel", Buttons::YesNoCancel, Answer::Cancel, Qt::Key_Return, "Ja Nein Abbrechen",
     Answer::Cancel},
    {"Escape with cancel", Buttons::YesNoCancel, Answer::Yes, Qt::Key_Escape, "Ja Nein Abbrechen",
     Answer::Cancel},
};

TEST_F(DialogsTest, MessageBoxes) {
    for (const Box& c : kBoxes) {
        QStringList texts;
        on_dialog<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), "Titel & <b>") << c.what;
            EXPECT_EQ(box.text(), "<i>Zeile 1\nZeile 2") << c.what;
            EXPECT_EQ(box.textFormat(), Qt::PlainText) << c.what;
            EXPECT_EQ(box.icon(), QMessageBox::Question) << c.what;
            for (const auto button :
                 {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
                if (box.button(button) != nullptr) {
                    texts.append(box.button(button)->text().remove('&'));
                }
            }
            QTest::keyClick(&box, c.key);
            const bool insists = c.buttons == Buttons::YesNo && c.key == Qt::Key_Escape;
            EXPECT_EQ(box.isVisible(), insists) << c.what;
            if (insists) {
                box.close();
                EXPECT_TRUE(box.isVisible()) << "the frame knows no third way either";
                QTest::keyClick(&box, Qt::Key_Return);
            }
        });
        EXPECT_EQ(
            dialogs.message({"<i>Zeile 1\r\nZeile 2", "Titel & <b>", c.buttons, Symbol::Question, c.preset}),
            c.answer)
            << c.what;
        EXPECT_EQ(texts.join(' '), c.texts) << c.what;
    }
}

TEST(FileFilters, BecomeTheToolkits) {
    const struct {
        const char* filter;
        const char* filters; ///< joined by "|"
        const char* suffix;  ///< of the first
    } cases[] = {
        {"Rechnungen (*.rn)|*.rn", "Rechnungen (*.rn)", "rn"},
        {"Bilder (*.bmp;*.jpg)|*.bmp;*.jpg|Alle Dateien (*.*)|*.*|", "Bilder (*.bmp *.jpg)|Alle Dateien (*)",
         "bmp"},
        {"Bitte Zielverzeichnis angeben...  |", "Bitte Zielverzeichnis angeben... (*)", ""},
        {"Artikelliste (Artikelliste.txt)|Artikelliste.txt",
         "Artikelliste (Artikelliste.txt) (Artikelliste.txt)", ""},
        {"", "", ""},
    };
    for (const auto& c : cases) {
        const QStringList filters = name_filters(c.filter);
        EXPECT_EQ(filters.join('|'), c.filters);
        EXPECT_EQ(default_suffix(filters.value(0)), c.suffix) << c.filter;
    }
}

TEST_F(DialogsTest, SavingProposesANameAddsTheEndingAndRemembersTheFolder) {
    QTemporaryDir folder;
    on_dialog<QFileDialog>([&](QFileDialog& window) {
        EXPECT_EQ(QFileInfo(window.selectedFiles().value(0)).completeBaseName(), "Müller");
        window.setDirectory(folder.path());
        window.selectFile("Straße #7");
        QMetaObject::invokeMethod(&window, "accept");
    });
    const std::string chosen = dialogs.save_file({"Rechnungen (*.rn)|*.rn", "Müller", ""});
    EXPECT_EQ(QString::fromStdString(chosen), folder.filePath("Straße #7.rn"));
    on_dialog<QFileDialog>([&](QFileDialog& window) {
        EXPECT_EQ(window.directory(), QDir(folder.path()));
        window.reject();
    });
    EXPECT_EQ(fehlernummer([&] {
                  dialogs.open_file({"Rechnungen (*.rn)|*.rn", "", ""});
              }),
              fehler::kDialogAbgebrochen);
    on_dialog<QFileDialog>([&](QFileDialog& window) {
        window.findChild<QLineEdit*>("fileNameEdit")->setText("Sicherung");
        QMetaObject::invokeMethod(&window, "accept");
    });
    EXPECT_EQ(QString::fromStdString(dialogs.save_file({"Wohin? |", "Alles.xpt", ""})),
              folder.filePath("Sicherung.xpt"))
        << "where no filter has one, that of the name proposed";
}

TEST_F(DialogsTest, OpeningTakesANewNameWhereItMay) {
    QTemporaryDir folder;
    const auto choose = [&](bool must_exist) {
        on_dialog<QFileDialog>([&](QFileDialog& window) {
            EXPECT_EQ(window.acceptMode(), QFileDialog::AcceptOpen);
            EXPECT_EQ(QFileInfo(window.selectedFiles().value(0)).fileName(), "5-08.txt");
            window.setDirectory(folder.path());
            window.selectFile("neu.txt");
            if (must_exist) {
                on_dialog<QMessageBox>([](QMessageBox& box) { box.accept(); }); // there is no such file
                QTimer::singleShot(50, &window, &QDialog::reject);
            }
            QMetaObject::invokeMethod(&window, "accept");
        });
        return dialogs.open_file({"Texte (*.txt)|*.txt", "5/08.txt", "", must_exist});
    };
    EXPECT_EQ(QString::fromStdString(choose(false)), folder.filePath("neu.txt"));
    EXPECT_EQ(fehlernummer([&] { choose(true); }), fehler::kDialogAbgebrochen);
}

TEST_F(DialogsTest, CancelledColourIsAnErrorAndAChosenOneIsNot) {
    on_dialog<QColorDialog>([](QColorDialog& window) { window.reject(); });
    EXPECT_EQ(fehlernummer([&] { dialogs.choose_color(color::kYellow); }), fehler::kDialogAbgebrochen);
    on_dialog<QColorDialog>([](QColorDialog& window) {
        EXPECT_EQ(window.currentColor(), QColor(255, 255, 0));
        window.setCurrentColor(QColor(1, 2, 3));
        window.accept();
    });
    EXPECT_EQ(dialogs.choose_color(color::kYellow), color::rgb(1, 2, 3));
}

TEST_F(DialogsTest, PrintingIntoAFileProposesANameAndAsksBeforeItReplacesOne) {
    const QTemporaryDir folder;
    const QString old = folder.filePath("alt.pdf");
    QFile(old).open(QFile::WriteOnly);
    const auto field = [](QPrintDialog& window) { return window.findChild<QLineEdit*>("filename"); };
    const auto print = [](QPrintDialog& window) {
        window.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    };
    QString question;
    on_dialog<QPrintDialog>([&](QPrintDialog& window) {
        auto* printers = window.findChild<QComboBox*>("printers");
        printers->setCurrentIndex(printers->count() - 1);
        EXPECT_EQ(field(window)->text(), QDir::home().filePath("RECHNUNG 7.pdf"));
        EXPECT_TRUE(window.findChild<QWidget*>("gbPrintRange")->isHidden());
        EXPECT_TRUE(window.findChild<QWidget*>("pageSetCombo")->isHidden());
        EXPECT_FALSE(window.findChild<QWidget*>("copies")->isEnabled());
        on_dialog<QMessageBox>([&](QMessageBox& box) {
            question = box.text();
            box.button(QMessageBox::No)->click();
        });
        field(window)->setText(folder.filePath("alt"));
        print(window);
        EXPECT_TRUE(window.isVisible());
        field(window)->setText(folder.filePath("neu"));
        print(window);
    });
    EXPECT_EQ(dialogs.choose_printer({3, "RECHNUNG 7.pdf"}), 1) << "one copy in a file";
    EXPECT_TRUE(question.contains(old)) << question.toStdString();
    PaintTools tools;
    QtPrinting printing(tools, [this] { return &printer.printer(); });
    EXPECT_EQ(printing.output_file(), folder.filePath("neu.pdf").toStdString());
    printing.printer({"x"})->end_document();
    EXPECT_TRUE(QFile::exists(folder.filePath("neu.pdf")));

    on_dialog<QPrintDialog>([&](QPrintDialog& window) {
        EXPECT_EQ(field(window)->text(), folder.filePath("RECHNUNG 8.pdf")) << "never an earlier name";
        window.reject();
    });
    EXPECT_EQ(fehlernummer([&] {
                  dialogs.choose_printer({1, "RECHNUNG 8.pdf"});
              }),
              fehler::kDialogAbgebrochen);
}

TEST(PdfPath, IsWhatTheUserMeans) {
    const QString home = QDir::homePath();
    const QString cases[][2] = {
        {"/a/b.pdf", "/a/b.pdf"},
        {" /a/b.PDF ", "/a/b.PDF"},
        {"b", "/hier/b.pdf"},
        {"b 1.2", "/hier/b 1.2.pdf"},
        {"../b.pdf", "/b.pdf"},
        {"~/b", home + "/b.pdf"},
        {"", ""},
        {"/a/", "/a/"},
    };
    for (const auto& [typed, path] : cases) {
        EXPECT_EQ(pdf_path(typed, "/hier"), path) << typed.toStdString();
    }
}

/// Takes what the shell hands to the system.
class Opener : public QObject {
    Q_OBJECT
public:
    Opener() {
        for (const char* scheme : {"file", "http", "https", "mailto"}) {
            QDesktopServices::setUrlHandler(scheme, this, "open");
        }
    }
    ~Opener() override {
        for (const char* scheme : {"file", "http", "https", "mailto"}) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }
    Q_INVOKABLE void open(const QUrl& url) { opened.append(url); }
    QList<QUrl> opened;
};

TEST(ShellTest, TellsFilesFromAddresses) {
    QTemporaryDir folder;
    QFile file(folder.filePath("100% #1.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    Opener opener;
    QtShell shell;
    shell.open(file.fileName().toStdString());
    shell.open("file:///" + folder.path().toStdString() + "\\100% #1.txt");
    shell.open("file:///" + folder.path().toStdString() + "\\100% #1.txt#kunden");
    shell.open("http://www.firma.example/a?b=c");
    shell.open("www.firma.example");
    shell.open("mailto:info@firma.example");
    const QUrl local = QUrl::fromLocalFile(file.fileName());
    QUrl chapter = local;
    chapter.setFragment("kunden");
    const QList<QUrl> expected{local,
                               local,
                               chapter,
                               QUrl("http://www.firma.example/a?b=c"),
                               QUrl("http://www.firma.example"),
                               QUrl("mailto:info@firma.example")};
    EXPECT_EQ(opener.opened, expected);
    EXPECT_EQ(fehlernummer([&] { shell.open(folder.filePath("fehlt.txt").toStdString()); }), 53);
}

/// A desktop whose mail program writes down what it is asked for, for as long as this lives.
class MailDesktop {
public:
    explicit MailDesktop(const QByteArray& script) {
        QFile program(folder_.filePath("xdg-email"));
        if (!script.isEmpty() && program.open(QIODevice::WriteOnly)) {
            program.write("#!/bin/sh\n" + script);
            program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        qputenv("PATH", QFile::encodeName(folder_.path()));
    }
    MailDesktop(const MailDesktop&) = delete;
    MailDesktop& operator=(const MailDesktop&) = delete;
    ~MailDesktop() { qputenv("PATH", path_); }
    QString path(const char* name) const { return folder_.filePath(name); }

private:
    QTemporaryDir folder_;
    QByteArray path_ = qgetenv("PATH");
};

TEST(ShellTest, HandsAMessageToTheMailProgram) {
    const MailMessage message{"eva@emsig.example", "Rechnung \"7\" für $HOME", "Guten Tag\n`id`\n",
                              "/tmp/a b.pdf"};
    const MailDesktop desktop("printf '%s|' \"$@\" > \"$(dirname \"$0\")/asked\" 2>&1 || exit 9\n");
    qputenv("PATH", qgetenv("PATH") + ":/usr/bin:/bin"); // what the script needs
    QtShell().mail(message);
    QFile asked(desktop.path("asked"));
    ASSERT_TRUE(asked.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(asked.readAll()),
              "--utf8|--subject|Rechnung \"7\" für $HOME|--body|Guten Tag\n`id`\n|--attach|/tmp/a b.pdf|"
              "eva@emsig.example|");
}

TEST(ShellTest, SaysWhereThereIsNoMailProgram) {
    EXPECT_EQ(fehlernummer([] {
                  const MailDesktop without("");
                  QtShell().mail({"a@b.example", "", "", "a.pdf"});
              }),
              53);
    EXPECT_EQ(fehlernummer([] {
                  const MailDesktop failing("exit 3\n");
                  QtShell().mail({"--option", "", "", "a.pdf"});
              }),
              53);
}

} // namespace
} // namespace quittika::test

#include "dialogs_test.moc"
