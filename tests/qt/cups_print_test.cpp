#include "platform/laufzeitfehler.hpp"
#include "platform/print_surface.hpp"
#include "platform/qt/print_printer.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QPrinter>
#include <QtWidgets>

#include <memory>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quittika::test {
namespace {

/// Output of a command, with its error output; fails the test when the command does.
QByteArray call(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool good = process.waitForFinished(20000) && process.exitCode() == 0;
    QByteArray output = process.readAll();
    EXPECT_TRUE(good) << program.toStdString() << ": " << output.toStdString();
    return output;
}

/// A port of the loopback address that nobody listens on, 0 if there is none.
int free_port() {
    const int probe = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* place = reinterpret_cast<sockaddr*>(&address);
    const bool found = bind(probe, place, length) == 0 && getsockname(probe, place, &length) == 0;
    close(probe);
    return found ? ntohs(address.sin_port) : 0;
}

/// A print server of the test's own, in a folder of its own, with the queue "GP" that leaves PDF files there.
class OwnPrintServer {
public:
    OwnPrintServer() {
        for (const char* name : {"bin/backend", "ppd", "spool", "out"}) {
            QDir(folder_.path()).mkpath(QString::fromLatin1(name));
        }
        for (const char* part : {"daemon", "filter"}) {
            QFile::link(QStringLiteral("/usr/lib/cups/") + part, path(QStringLiteral("bin/") + part));
        }
        write("bin/backend/testdir", kBackend);
        for (const char* name : {"", "bin/backend/testdir"}) {
            QFile::setPermissions(path(name), QFile::Permissions(0x7755));
        }
        call("chown", {"lp:lp", path("out"), path("spool")});
        configure();
        server_.start("cupsd", {"-f", "-c", path("cupsd.conf"), "-s", path("cups-files.conf")});
        qputenv("CUPS_SERVER", ("127.0.0.1:" + port_).toUtf8());
        wait_until_ready();
        call("lpadmin", {"-p", "GP", "-E", "-v", "testdir:" + path("out"), "-P",
                         "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd"});
    }
    OwnPrintServer(const OwnPrintServer&) = delete;
    OwnPrintServer& operator=(const OwnPrintServer&) = delete;
    ~OwnPrintServer() {
        stop();
        qunsetenv("CUPS_SERVER");
    }

    void stop() {
        server_.terminate();
        server_.waitForFinished(5000);
    }

    /// The documents that have come out, once the queue is empty.
    QStringList documents() const {
        for (int i = 0; i < 100 && !call("lpstat", {"-o", "GP"}).isEmpty(); ++i) {
            QThread::msleep(50);
        }
        QStringList files;
        for (const QString& name : QDir(path("out")).entryList({"*.pdf"}, QDir::Files, QDir::Name)) {
            files << path("out/" + name);
        }
        return files;
    }

private:
    static constexpr const char* kBackend =
        "#!/bin/sh\n"
        "[ $# -eq 0 ] && { echo 'direct testdir \"Unknown\" \"test dir\"'; exit 0; }\n"
        "cat ${6:--} > \"${DEVICE_URI#testdir:}/job$1.pdf\"\n";

    QString path(const QString& name) const { return folder_.filePath(name); }

    void write(const QString& name, const QString& text) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(text.toUtf8());
    }

    void configure() {
        port_ = QString::number(free_port());
        ASSERT_NE(port_, "0");
        write("cups-files.conf",
              QStringLiteral("ServerRoot %1\nRequestRoot %1/spool\nTempDir %1/spool\nCacheDir %1/spool\n"
                             "StateDir %1/spool\nAccessLog %1/spool/access\nErrorLog %1/spool/error\nPageLog "
                             "%1/spool/page\n"
                             "ServerBin %1/bin\nUser lp\nGroup lp\n")
                  .arg(folder_.path()));
        write("cupsd.conf",
              QStringLiteral("Listen 127.0.0.1:%1\nBrowsing Off\nWebInterface No\n"
                             "DefaultAuthType None\nIdleExitTimeout 0\n"
                             "<Policy default>\n<Limit All>\nOrder allow,deny\n</Limit>\n</Policy>\n")
                  .arg(port_));
    }

    void wait_until_ready() {
        for (int i = 0; i < 100; ++i) {
            QProcess status;
            status.start("lpstat", {"-r"});
            status.waitForFinished(2000);
            if (status.readAll().contains("is running")) {
                return;
            }
            QThread::msleep(50);
        }
        QFile log(path("spool/error"));
        log.open(QFile::ReadOnly);
        ADD_FAILURE() << "the print server does not start: " << server_.readAllStandardError().toStdString()
                      << log.readAll().toStdString();
    }

    QTemporaryDir folder_{QDir::tempPath() + "/quittika-cups-XXXXXX"};
    QString port_;
    QProcess server_;
};

class CupsTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        if (geteuid() == 0) {
            server = std::make_unique<OwnPrintServer>();
        }
    }
    static void TearDownTestSuite() { server.reset(); }
    void SetUp() override {
        if (server == nullptr) {
            GTEST_SKIP() << "a print server can only be run by root";
        }
    }

    static void print_page(QPrinter& printer, int pages) {
        PaintTools tools;
        QtPrinterDevice device(tools, printer, {"QK-> Prüfung"});
        PrintSurface surface(device, tools.metrics);
        const QTemporaryDir folder;
        const QString picture = folder.filePath("bild.png");
        QImage red(300, 200, QImage::Format_RGB32);
        red.fill(Qt::red);
        red.save(picture);
        for (int page = 1; page <= pages; ++page) {
            if (page > 1) {
                surface.NewPage();
            }
            surface.CurrentX = 20;
            surface.CurrentY = 30;
            surface.Print("Blatt Nummer " + std::to_string(page));
            surface.PaintPicture(picture.toStdString(), 100, 100, 30, 20);
        }
        surface.EndDoc();
    }
    /// What the user is told of a job that failed; empty if it did not.
    static std::string reason_of_failure(QPrinter& printer) {
        try {
            print_page(printer, 1);
        } catch (const Laufzeitfehler& f) {
            EXPECT_EQ(f.nummer(), fehler::kDrucker);
            return f.ort();
        }
        return {};
    }

    static std::unique_ptr<OwnPrintServer> server;
};

std::unique_ptr<OwnPrintServer> CupsTest::server;

TEST_F(CupsTest, APageComesOutAndCopiesAreNotMultiplied) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName("GP");
    ASSERT_EQ(printer.printerName(), "GP");
    printer.setCopyCount(3); // the program prints each copy as a job of its own
    print_page(printer, 2);
    const QStringList documents = server->documents();
    ASSERT_EQ(documents.size(), 1);
    const QByteArray text = call("pdftotext", {documents[0], "-"});
    EXPECT_TRUE(text.contains("Blatt Nummer 1")) << text.toStdString();
    EXPECT_TRUE(text.contains("Blatt Nummer 2"));
    EXPECT_TRUE(call("pdfinfo", {documents[0]}).contains("Pages:           2"));
    const QByteArray pictures = call("pdfimages", {"-list", documents[0]});
    EXPECT_TRUE(pictures.contains(" 300   200 ")) << pictures.toStdString();
    EXPECT_FALSE(pictures.contains("jpeg")) << pictures.toStdString();
}

TEST_F(CupsTest, AFailureSaysWhatStoodInTheWay) {
    using testing::HasSubstr;
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName("GP");
    call("cupsreject", {"GP"});
    EXPECT_THAT(reason_of_failure(printer), HasSubstr("GP nimmt keine Aufträge an."));
    call("cupsaccept", {"GP"});
    call("cupsdisable", {"GP"});
    EXPECT_THAT(reason_of_failure(printer), HasSubstr("GP ist angehalten."));
    call("cupsenable", {"GP"});
    EXPECT_EQ(reason_of_failure(printer), "");

    call("lpadmin", {"-p", "WEG", "-E", "-v", "testdir:/tmp", "-P",
                     "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd"});
    printer.setPrinterName("WEG");
    ASSERT_EQ(printer.printerName(), "WEG");
    call("lpadmin", {"-x", "WEG"});
    EXPECT_THAT(reason_of_failure(printer), HasSubstr("WEG ist dem System nicht bekannt."));

    server->stop();
    EXPECT_THAT(reason_of_failure(printer), HasSubstr("Druckserver ist nicht erreichbar."));
}

} // namespace
} // namespace quittika::test
