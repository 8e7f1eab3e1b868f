#include "platform/qt/qt_shell.hpp"

#include "platform/laufzeitfehler.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/verzeichnis.hpp"

#include <QDateTime>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include <string_view>

namespace quittika {

namespace {

/// An address is told from a path by its beginning; a drive letter is no scheme.
QUrl address_of(const std::string& document) {
    const QString text = to_qt(document).trimmed();
    constexpr std::string_view kFile = "file:///";
    if (std::string_view(document).substr(0, kFile.size()) == kFile) {
        return address_of(document.substr(kFile.size())); // the program's own form of a path stands behind it
    }
    for (const char* scheme : {"http://", "https://", "mailto:"}) {
        if (text.startsWith(QLatin1String(scheme), Qt::CaseInsensitive)) {
            return QUrl(text);
        }
    }
    if (text.startsWith(QLatin1String("www."), Qt::CaseInsensitive)) {
        return QUrl(QStringLiteral("http://") + text);
    }
    const QFileInfo file(path_to_qt(systempfad(document)));
    return file.exists() ? QUrl::fromLocalFile(file.absoluteFilePath()) : QUrl();
}

} // namespace

void QtShell::open(const std::string& document) {
    const QUrl address = address_of(document);
    if (!address.isValid() || !QDesktopServices::openUrl(address)) {
        throw Laufzeitfehler(fehler::kDateiFehlt, document);
    }
}

Zeitpunkt QtClock::now() const {
    const QDateTime time = QDateTime::currentDateTime();
    return {time.date().year(), time.date().month(),  time.date().day(),
            time.time().hour(), time.time().minute(), time.time().second()};
}

} // namespace quittika
