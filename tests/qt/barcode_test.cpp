#include "platform/qt/widgets/contrast.hpp"
#include "tests/qt/program_test.hpp"

#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

namespace quittika::test {
namespace {

constexpr int kCodes = 50;
constexpr const char* kVorschau = "4003994155486";

/// The program with a list of articles 1001 to 1050 and one without a price, 9999, and the barcode window.
class Barcodetest : public ProgramTest {
protected:
    Barcodetest() {
        std::string liste = "Ohne Preis$\xA7$abc$\xA7$9999$\xA7$\r\n";
        for (int i = 1; i <= kCodes; ++i) {
            liste +=
                "Artikel " + std::to_string(i) + "$\xA7$2.50$\xA7$" + std::to_string(1000 + i) + "$\xA7$\r\n";
        }
        ordner.schreiben("Artikelliste.txt", liste);
        f().Cmd_Barcode.Click();
        zeigen("Form_Etp_Barcode");
        EXPECT_TRUE(QTest::qWaitFor([this] { return fenster != nullptr && fenster->isActiveWindow(); }));
    }

    /// A key as the desktop reports it, for the window that has the keyboard then.
    static void gescannt(char zeichen) {
        const bool cr = zeichen == '\r';
        const bool lf = zeichen == '\n';
        const Qt::Key key = cr ? Qt::Key_Return : lf ? Qt::Key_J : static_cast<Qt::Key>(zeichen);
        QTest::simulateEvent(QGuiApplication::focusWindow(), true, key,
                             lf ? Qt::ControlModifier : Qt::NoModifier, QString(QLatin1Char(zeichen)), false);
    }
    /// Sends one key after the other whatever the program does meanwhile.
    void scannen(const std::string& zeichen) {
        std::size_t naechstes = 0;
        QTimer scanner;
        QObject::connect(&scanner, &QTimer::timeout, [&] {
            if (naechstes < zeichen.size()) {
                gescannt(zeichen[naechstes++]);
            }
        });
        scanner.start(0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return naechstes == zeichen.size(); }, 20000));
    }
};

TEST_F(Barcodetest, CodesOhnePauseWerdenZeilenInIhrerReihenfolge) {
    constexpr const char* kEnden[] = {"\r\n", "\r", "\n"};
    std::string zeichen;
    for (int i = 1; i <= kCodes; ++i) {
        zeichen += std::to_string(1000 + i) + kEnden[i % 3];
        zeichen += i == 10 ? std::string(kVorschau) + "\r\n" : i == 20 ? "9999\r\n" : "";
    }
    // Whoever is there closes the box when the scanner has finished.
    int boxen = 0;
    QTimer kassierer;
    QObject::connect(&kassierer, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr && box->isActiveWindow()) { // before that it still waits for the scanner
            ++boxen;
            gescannt('\r');
            EXPECT_FALSE(box->isVisible());
        }
    });
    QTimer::singleShot(1500, &kassierer, [&] { kassierer.start(20); });
    scannen(zeichen);
    EXPECT_TRUE(QTest::qWaitFor([this] { return f().List_Leistung.ListCount() == kCodes; }, 10000));
    EXPECT_EQ(boxen, 1);
    for (int i = 0; i < f().List_Leistung.ListCount(); ++i) {
        EXPECT_EQ(f().List_Leistung.List(i), "Artikel " + std::to_string(i + 1));
    }
    EXPECT_EQ(feld<QLabel>("Label_Summe")->text(), "125,00 EUR");
    EXPECT_TRUE(fenster->isActiveWindow()) << "neither the main window nor the preview took the keyboard";
    EXPECT_EQ(fenster->focusWidget()->objectName(), "Text_Barcode");
}

TEST_F(Barcodetest, DerZeilenumbruchNachDerEingabetasteGehoertNichtInDieMenge) {
    feld<QAbstractButton>("Check_set_Menge")->click();
    scannen("3\r\n1001\r\n2\r\n1002\r\n");
    EXPECT_EQ(f().List_Menge.items(), (std::vector<std::string>{"3", "2"}));
    EXPECT_EQ(fenster->focusWidget()->objectName(), "Text_Menge");
}

TEST_F(Barcodetest, JederStandIstLesbar) {
    const QWidget& info = *feld("Label_Artikel_INFO");
    for (const auto& [code, grund] : {std::pair("1001\r", 0x00FF00), std::pair("1\r", 0xFF0000),
                                      std::pair("BEFEHL1\r", 0xFFFF00), std::pair("", 0xFF8000)}) {
        scannen(code);
        if (*code == '\0') {
            QTest::keyClick(fenster->focusWidget(), Qt::Key_CapsLock);
        }
        const QPalette farben = info.palette();
        EXPECT_EQ(farben.color(QPalette::Window).rgb() & 0xFFFFFF, static_cast<unsigned>(grund));
        EXPECT_GE(theme::contrast(farben.color(QPalette::WindowText), farben.color(QPalette::Window)), 4.5)
            << code;
    }
}

} // namespace
} // namespace quittika::test
