#include "platform/qt/print_pdf.hpp"

#include "platform/laufzeitfehler.hpp"

#include <QFile>
#include <QFileInfo>
#include <QMarginsF>
#include <QPageSize>

#include <cstdio>
#include <utility>

namespace quittika {

namespace {

constexpr int kResolution = 1200; ///< dots per inch
constexpr int kAttempts = 100;    ///< names tried for a new file

bool write(QFile& file, const QByteArray& content) {
    return file.write(content) == content.size() && file.flush();
}

/// Opens a file that did not exist before, beside `path`: it takes nobody's place and follows no link.
bool open_beside(QFile& file, const QString& path) {
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        file.setFileName(path + QStringLiteral(".%1.neu").arg(attempt));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            return true;
        }
        if (!file.exists()) {
            return false;
        }
    }
    return false;
}

/// Writes beside the target first, so that a failure leaves the old file as it was.
bool replace_file(const QString& path, const QByteArray& content) {
    const QFileInfo target(path);
    if (target.exists() && !target.isFile()) {
        QFile device(path);
        return device.open(QIODevice::WriteOnly) && write(device, content);
    }
    const QString place = target.exists() ? target.canonicalFilePath() : path;
    QFile fresh;
    if (!open_beside(fresh, place)) {
        return false;
    }
    const bool written = write(fresh, content);
    fresh.close();
    if (written && std::rename(QFile::encodeName(fresh.fileName()).constData(),
                               QFile::encodeName(place).constData()) == 0) {
        return true;
    }
    fresh.remove();
    return false;
}

} // namespace

QtPdfDevice::QtPdfDevice(const QtFontMetrics& metrics, QString path, const std::string& title, bool grey)
    : PainterDevice(metrics), path_(std::move(path)) {
    if (grey) {
        draw_grey();
    }
    content_.open(QIODevice::WriteOnly);
    writer_.setResolution(kResolution);
    writer_.setPageSize(QPageSize(QPageSize::A4));
    writer_.setPageMargins(QMarginsF());
    writer_.setTitle(QString::fromStdString(title));
    writer_.setCreator(QStringLiteral("Quittika 2008"));
    if (!begin(writer_, kResolution / 25.4)) {
        throw Laufzeitfehler(fehler::kDrucker);
    }
}

QtPdfDevice::~QtPdfDevice() {
    end();
}

void QtPdfDevice::new_page() {
    if (!writer_.newPage()) {
        throw Laufzeitfehler(fehler::kDrucker);
    }
}

void QtPdfDevice::end_document() {
    if (!end() || !replace_file(path_, content_.data())) {
        throw Laufzeitfehler(fehler::kDrucker);
    }
}

} // namespace quittika
