#include "platform/qt/qt_shell.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/verzeichnis.hpp"

#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <string_view>

namespace quittika {

namespace {

QUrl local_file(const std::string& path) {
    const QFileInfo file(path_to_qt(systempfad(path)));
    return file.exists() ? QUrl::fromLocalFile(file.absoluteFilePath()) : QUrl();
}

/// `path`: in the program's own form, with "#" and the place in the page behind it where one is meant.
QUrl local_page(const std::string& path) {
    QUrl address = local_file(path);
    const std::size_t mark = path.rfind('#');
    if (!address.isValid() && mark != std::string::npos) {
        address = local_file(path.substr(0, mark));
        address.setFragment(to_qt(path.substr(mark + 1)));
    }
    return address;
}

/// An address is told from a path by its beginning; a drive letter is no scheme.
QUrl address_of(const std::string& document) {
    const QString text = to_qt(document).trimmed();
    constexpr std::string_view kFile = "file:///";
    if (std::string_view(document).substr(0, kFile.size()) == kFile) {
        return local_page(document.substr(kFile.size()));
    }
    for (const char* scheme : {"http://", "https://", "mailto:"}) {
        if (text.startsWith(QLatin1String(scheme), Qt::CaseInsensitive)) {
            return QUrl(text);
        }
    }
    if (text.startsWith(QLatin1String("www."), Qt::CaseInsensitive)) {
        return QUrl(QStringLiteral("http://") + text);
    }
    return local_file(document);
}

} // namespace

void QtShell::open(const std::string& document) {
    const QUrl address = address_of(document);
    if (!address.isValid() || !QDesktopServices::openUrl(address)) {
        throw Laufzeitfehler(fehler::kDateiFehlt, document);
    }
}

void QtShell::mail(const MailMessage& message) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
    if (program.isEmpty()) {
        throw Laufzeitfehler(fehler::kDateiFehlt, "xdg-email");
    }
    QStringList arguments{QStringLiteral("--utf8"),
                          QStringLiteral("--subject"),
                          to_qt(message.subject),
                          QStringLiteral("--body"),
                          to_qt(message.body),
                          QStringLiteral("--attach"),
                          QFileInfo(path_to_qt(systempfad(message.attachment))).absoluteFilePath()};
    if (!message.to.empty() && message.to.front() != '-') { // which would be an option
        arguments << to_qt(message.to);
    }
    auto* const mailer = new QProcess(QCoreApplication::instance());
    QObject::connect(mailer, &QProcess::finished, mailer, &QObject::deleteLater);
    mailer->start(program, arguments);
    // A mail program may run until its window is closed; one that is missing is reported at once.
    constexpr int kPatience = 3000; // ms
    if (!mailer->waitForStarted(kPatience) ||
        (mailer->waitForFinished(kPatience) && mailer->exitCode() != 0)) {
        throw Laufzeitfehler(fehler::kDateiFehlt, "xdg-email");
    }
}

Zeitpunkt QtClock::now() const {
    const QDateTime time = QDateTime::currentDateTime();
    return {time.date().year(), time.date().month(),  time.date().day(),
            time.time().hour(), time.time().minute(), time.time().second()};
}

} // namespace quittika
